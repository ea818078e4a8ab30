#include "platform/macos/MacInputTaps.h"

#include "platform/macos/HardwareObserver.h"
#include "platform/macos/KeyEventMonitors.h"
#include "platform/macos/QuartzEventTap.h"

#include <utility>

namespace tarvin::macos {

std::unique_ptr<EventTap> MacInputTaps::createTap(TapLocation location, TapHandler handler)
{
    return QuartzEventTap::create(location, std::move(handler));
}

std::unique_ptr<EventMonitor> MacInputTaps::addGlobalMonitor(MonitorHandler handler)
{
    return addGlobalKeyMonitor(std::move(handler));
}

std::unique_ptr<EventMonitor> MacInputTaps::addLocalMonitor(LocalMonitorHandler handler)
{
    return addLocalKeyMonitor(std::move(handler));
}

std::unique_ptr<HidManager> MacInputTaps::openHidManager(HidHandler handler)
{
    return std::make_unique<HardwareObserver>(std::move(handler));
}

} // namespace tarvin::macos
