#include "platform/macos/MacInputTaps.h"

#include "platform/macos/HardwareObserver.h"
#include "platform/macos/KeyEventMonitors.h"
#include "platform/macos/QuartzEventTap.h"
#include "platform/macos/translation/RecordingGate.h"

#include <utility>

namespace tarvin::macos {

namespace {

/// The handler of one path behind its own gate.
template <typename Handler> auto gated(const bool& isRecording, Handler handler)
{
    return [&isRecording, gate = RecordingGate(), handler = std::move(handler)](const InputEvent& event) mutable {
        return gate.admits(event, isRecording) ? handler(event) : EventVerdict::pass;
    };
}

} // namespace

std::unique_ptr<EventTap> MacInputTaps::createTap(TapLocation location, TapHandler handler)
{
    return QuartzEventTap::create(location, gated(m_isRecording, std::move(handler)));
}

std::unique_ptr<EventMonitor> MacInputTaps::addGlobalMonitor(MonitorHandler handler)
{
    auto observed = [handler = std::move(handler)](const InputEvent& event) {
        handler(event);
        return EventVerdict::pass;
    };
    return addGlobalKeyMonitor(gated(m_isRecording, std::move(observed)));
}

std::unique_ptr<EventMonitor> MacInputTaps::addLocalMonitor(LocalMonitorHandler handler)
{
    return addLocalKeyMonitor(gated(m_isRecording, std::move(handler)));
}

std::unique_ptr<HidManager> MacInputTaps::openHidManager(HidHandler handler)
{
    return std::make_unique<HardwareObserver>(
        [&isRecording = m_isRecording, handler = std::move(handler)](const HidValue& value) {
            if (RecordingGate::admits(value, isRecording))
                handler(value);
        });
}

} // namespace tarvin::macos
