#pragma once

#include "model/ActionParameters.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <variant>

namespace tarvin {

/// Puts the machine to sleep.
struct SleepNow
{
    friend bool operator==(const SleepNow&, const SleepNow&) = default;
};

/// Switches the displays off until the next input.
struct DisplaySleepNow
{
    friend bool operator==(const DisplaySleepNow&, const DisplaySleepNow&) = default;
};

/// The two ways to end the session and the machine's run.
enum class PowerEvent : std::uint8_t { shutDown, restart };

/// Asks for a power event by a helper process, one of several roads to the same end.
struct RequestPowerEvent
{
    PowerEvent event = PowerEvent::shutDown;
    friend bool operator==(const RequestPowerEvent&, const RequestPowerEvent&) = default;
};

/// Takes a picture of the screen.
struct CaptureScreen
{
    ScreenCaptureMode mode = ScreenCaptureMode::screen;
    /// Where the picture goes as a PNG file; to the clipboard if there is none.
    std::optional<QString> file;
    friend bool operator==(const CaptureScreen&, const CaptureScreen&) = default;
};

/// Something that a process of its own does. macOS names the tool and its arguments; another platform does the same by
/// its own means, or leaves it silent where another road already does it.
using SystemCommand = std::variant<SleepNow, DisplaySleepNow, RequestPowerEvent, CaptureScreen>;

/// Gives commands that a process of its own carries out.
class SystemCommands
{
public:
    virtual ~SystemCommands() = default;
    /// Starts the command and does not wait for its end; called on a background queue. A failure is not reported to the
    /// caller; where the user should know of it, the platform tells the user itself.
    virtual void run(const SystemCommand& command) = 0;
};

/// The process that owns the login window, and with it the end of the session.
class LoginWindow
{
public:
    virtual ~LoginWindow() = default;
    /// Asks for the power event so that applications can save first. Called on a background queue; waits for at most
    /// two seconds, for no answer. Errors are dropped.
    virtual void send(PowerEvent event) = 0;
};

} // namespace tarvin
