#pragma once

#include "platform/linux/x11/InputThread.h"
#include "platform/ports/InputTaps.h"

#include <vector>

namespace tarvin::x11 {

/// The input paths that an X session gives to any program: the session tap, the two monitors. Main thread only.
///
/// There is no HID tap and no HID manager here. Keys above evdev code 247, the fn key among them, can't be seen at all.
class X11InputTaps final : public InputTaps
{
public:
    explicit X11InputTaps(InputThread& thread);
    ~X11InputTaps() override;
    X11InputTaps(const X11InputTaps&) = delete;
    X11InputTaps& operator=(const X11InputTaps&) = delete;
    X11InputTaps(X11InputTaps&&) = delete;
    X11InputTaps& operator=(X11InputTaps&&) = delete;

    /// Empty for the HID location, without a server, and while there is a tap already.
    [[nodiscard]] std::unique_ptr<EventTap> createTap(TapLocation location, TapHandler handler) override;
    [[nodiscard]] std::unique_ptr<EventMonitor> addGlobalMonitor(MonitorHandler handler) override;
    [[nodiscard]] std::unique_ptr<EventMonitor> addLocalMonitor(LocalMonitorHandler handler) override;
    [[nodiscard]] std::unique_ptr<HidManager> openHidManager(HidHandler handler) override;
    void publishConsumedKeys(FKeySet customKeys, SummonShortcut summon) override;

    /// Whether the Studio is the active window. Only then does the tap see the keys that nobody customises; the verdict
    /// on them does not count.
    void setStudioActive(bool active);
    /// Whether a session tap can be had now.
    [[nodiscard]] bool isAvailable() const;

private:
    class SessionTap;
    class GlobalMonitor;
    class LocalMonitor;

    void receive(const Delivery& delivery);
    void receiveForTap(const Delivery& delivery);
    void updateTap();

    InputThread& m_thread;
    SessionTap* m_tap = nullptr; ///< not owned
    std::vector<GlobalMonitor*> m_globalMonitors; ///< not owned
};

} // namespace tarvin::x11
