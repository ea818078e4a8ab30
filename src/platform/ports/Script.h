#pragma once

#include "model/WindowSnapPosition.h"
#include "platform/ports/EventFlags.h"
#include "platform/ports/InputEvent.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <variant>

namespace tarvin {

/// Quits the settings application and opens it again on the page where Accessibility is granted.
struct OpenAccessibilityPage
{
    friend bool operator==(const OpenAccessibilityPage&, const OpenAccessibilityPage&) = default;
};

/// Asks the system to press a key, by the road beside the posted event.
struct PressKeyByScript
{
    KeyCode keyCode = 0;
    EventFlags flags = EventFlags::none; ///< none or command
    friend bool operator==(const PressKeyByScript&, const PressKeyByScript&) = default;
};

/// Adds the program to, or removes it from, the list of applications opened at login. Name and path go in as they are.
struct SetLoginItem
{
    QString name;
    QString path;
    bool enabled = false;
    friend bool operator==(const SetLoginItem&, const SetLoginItem&) = default;
};

/// Makes the sound output louder or quieter, within its limits.
struct AdjustOutputVolume
{
    int delta = 0; ///< percentage points
    friend bool operator==(const AdjustOutputVolume&, const AdjustOutputVolume&) = default;
};

/// Silences the sound output, or lets it be heard again.
struct ToggleOutputMute
{
    friend bool operator==(const ToggleOutputMute&, const ToggleOutputMute&) = default;
};

enum class MediaCommand : std::uint8_t { playPause, next, previous };

/// Tells the music player that runs what to do.
struct ControlMediaPlayer
{
    MediaCommand command = MediaCommand::playPause;
    friend bool operator==(const ControlMediaPlayer&, const ControlMediaPlayer&) = default;
};

/// Sets the input volume to nothing or, if it is that already, to three quarters. Its result is the text that tells the
/// user which of the two it was.
struct ToggleMicrophone
{
    friend bool operator==(const ToggleMicrophone&, const ToggleMicrophone&) = default;
};

enum class PowerRequest : std::uint8_t { sleep, shutDown, restart };

/// Who is asked for a change of power.
enum class PowerAddressee : std::uint8_t { systemEvents, finder };

/// Asks for sleep or for the end of the machine's run, one of several roads to the same end.
struct RequestPowerByScript
{
    PowerRequest request = PowerRequest::sleep;
    PowerAddressee addressee = PowerAddressee::systemEvents;
    friend bool operator==(const RequestPowerByScript&, const RequestPowerByScript&) = default;
};

/// Brings the file manager to the front; one that was ended is started again.
struct ActivateFileManager
{
    friend bool operator==(const ActivateFileManager&, const ActivateFileManager&) = default;
};

/// Opens the system's list of applications that can be forced to quit.
struct OpenForceQuitDialog
{
    friend bool operator==(const OpenForceQuitDialog&, const OpenForceQuitDialog&) = default;
};

// What follows acts on the front window of the application in front, for an application whose windows can't be reached
// by the direct road.

struct SnapWindowByScript
{
    WindowSnapPosition position = WindowSnapPosition::left;
    friend bool operator==(const SnapWindowByScript&, const SnapWindowByScript&) = default;
};

struct ToggleFullScreenByScript
{
    friend bool operator==(const ToggleFullScreenByScript&, const ToggleFullScreenByScript&) = default;
};

struct MinimizeWindowByScript
{
    friend bool operator==(const MinimizeWindowByScript&, const MinimizeWindowByScript&) = default;
};

/// What a script is to do. macOS turns it into source text; another platform performs its meaning, or leaves it
/// silent where a second road already does the same.
using Script = std::variant<OpenAccessibilityPage, PressKeyByScript, SetLoginItem, AdjustOutputVolume, ToggleOutputMute,
    ControlMediaPlayer, ToggleMicrophone, RequestPowerByScript, ActivateFileManager, OpenForceQuitDialog,
    SnapWindowByScript, ToggleFullScreenByScript, MinimizeWindowByScript>;

/// The outcome of one run.
struct ScriptResult
{
    std::optional<QString> error; ///< the system's description of what went wrong
    std::optional<QString> text; ///< the result of the script, if it is a text
};

/// Runs scripts. Called on a background queue; blocks until the script has ended.
class Scripts
{
public:
    virtual ~Scripts() = default;
    /// @return nothing where the script could not even be built
    [[nodiscard]] virtual std::optional<ScriptResult> run(const Script& script) = 0;
};

} // namespace tarvin
