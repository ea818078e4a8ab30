#pragma once

#include "platform/ports/InputTaps.h"

namespace tarvin::macos {

/// The input paths of the window server, the toolkit and the hardware layer. All of them call on the main thread.
class MacInputTaps final : public InputTaps
{
public:
    [[nodiscard]] std::unique_ptr<EventTap> createTap(TapLocation location, TapHandler handler) override;
    [[nodiscard]] std::unique_ptr<EventMonitor> addGlobalMonitor(MonitorHandler handler) override;
    [[nodiscard]] std::unique_ptr<EventMonitor> addLocalMonitor(LocalMonitorHandler handler) override;
    [[nodiscard]] std::unique_ptr<HidManager> openHidManager(HidHandler handler) override;
    /// The taps ask their handler about each event, so nothing need be told beforehand.
    void publishConsumedKeys(FKeySet, SummonShortcut) override { }
};

} // namespace tarvin::macos
