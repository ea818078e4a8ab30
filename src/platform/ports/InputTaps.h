#pragma once

#include "model/FKeySet.h"
#include "platform/ports/InputEvent.h"

#include <functional>
#include <memory>

namespace tarvin {

/// Where in the road of an event a tap sits. The numbers are those that the system uses and logs show.
enum class TapLocation : std::uint32_t { hid = 0, session = 1 };

/// What a path that can consume does with an event.
enum class EventVerdict { pass, consume };

/// One event tap. Destroying it removes the tap.
class EventTap
{
public:
    virtual ~EventTap() = default;
    /// Lets events reach the handler, by the main loop. A tap is created detached and disabled.
    virtual void attachToMainLoop() = 0;
    virtual void detachFromMainLoop() = 0;
    virtual void enable() = 0;
    virtual void disable() = 0;
    /// False also after the system has switched the tap off by itself.
    [[nodiscard]] virtual bool isEnabled() const = 0;
};

/// A running monitor; destroying it ends the monitoring.
class EventMonitor
{
public:
    virtual ~EventMonitor() = default;
};

/// The observer of raw hardware values; destroying it closes the devices.
class HidManager
{
public:
    virtual ~HidManager() = default;
    /// Whether opening the devices succeeded; a manager that could not open them stays silent.
    [[nodiscard]] virtual bool isOpen() const = 0;
};

/// One raw hardware value.
struct HidValue
{
    std::uint32_t page = 0;
    std::uint32_t usage = 0;
    std::int64_t value = 0; ///< 1 for down, 0 for up; other values exist and mean nothing to us
};

/// Whether the summon shortcut is to be taken from the focused application.
enum class SummonShortcut { released, taken };

/// The input paths: two places where events can be consumed, and three observers.
///
/// All handlers are called on the main thread. A platform whose paths run on a thread or in a process of their own
/// decides there by the set that `publishConsumedKeys` gave, and hands the event over afterwards; the handler's verdict
/// then says the same by construction, and where it does not (the set changed in between) the platform posts the event
/// again.
class InputTaps
{
public:
    using TapHandler = std::function<EventVerdict(const InputEvent&)>;
    using MonitorHandler = std::function<void(const InputEvent&)>;
    /// Answers `consume` to swallow an event addressed to the program's own windows.
    using LocalMonitorHandler = std::function<EventVerdict(const InputEvent&)>;
    using HidHandler = std::function<void(const HidValue&)>;

    virtual ~InputTaps() = default;

    /// @return empty where the tap can't be had: no permission, no such path on this platform
    [[nodiscard]] virtual std::unique_ptr<EventTap> createTap(TapLocation location, TapHandler handler) = 0;
    /// Observes key events of other applications; cannot consume. Empty where the platform has no such path.
    [[nodiscard]] virtual std::unique_ptr<EventMonitor> addGlobalMonitor(MonitorHandler handler) = 0;
    /// Sees, and can swallow, the key events on their way to the program's own windows.
    [[nodiscard]] virtual std::unique_ptr<EventMonitor> addLocalMonitor(LocalMonitorHandler handler) = 0;
    /// Observes keyboards, consumer controls and the vendor page 0xFF01. Never empty; see `HidManager::isOpen`.
    [[nodiscard]] virtual std::unique_ptr<HidManager> openHidManager(HidHandler handler) = 0;

    /// Tells the consuming paths what to consume from now on. Called at every change, cheap to call.
    virtual void publishConsumedKeys(FKeySet customKeys, SummonShortcut summon) = 0;
};

} // namespace tarvin
