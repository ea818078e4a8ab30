#pragma once

#include "platform/ports/InputTaps.h"

namespace tarvin::macos {

/// The input paths of the window server, the toolkit and the hardware layer. All of them call on the main thread. Main
/// thread only; outlives what it made.
class MacInputTaps final : public InputTaps
{
public:
    [[nodiscard]] std::unique_ptr<EventTap> createTap(TapLocation location, TapHandler handler) override;
    [[nodiscard]] std::unique_ptr<EventMonitor> addGlobalMonitor(MonitorHandler handler) override;
    [[nodiscard]] std::unique_ptr<EventMonitor> addLocalMonitor(LocalMonitorHandler handler) override;
    [[nodiscard]] std::unique_ptr<HidManager> openHidManager(HidHandler handler) override;
    /// The taps ask their handler about each event, so nothing need be told beforehand.
    void publishConsumedKeys(FKeySet, SummonShortcut) override { }

    /// While keys are recorded they pass all paths, customised ones too, so that the recorder gets them.
    void setRecording(bool isRecording) { m_isRecording = isRecording; }

private:
    bool m_isRecording = false;
};

} // namespace tarvin::macos
