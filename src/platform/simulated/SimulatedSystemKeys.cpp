#include "platform/simulated/SimulatedSystemKeys.h"

#include "platform/simulated/SimulatedDisplayBrightness.h"
#include "platform/simulated/SimulatedPermission.h"
#include "platform/simulated/SimulatedScheduler.h"

#include <algorithm>

namespace tarvin::simulated {

namespace {

constexpr double brightnessStep = 1.0 / 16.0;

} // namespace

SimulatedSystemKeys::SimulatedSystemKeys(EffectLog& log, const SimulatedPermission& permission,
    SimulatedScheduler& scheduler, SimulatedDisplayBrightness& brightness)
    : m_log(log)
    , m_permission(permission)
    , m_scheduler(scheduler)
    , m_brightness(brightness)
{ }

void SimulatedSystemKeys::post(SystemKey key, SystemKeyMotion motion)
{
    m_log.expectMainThread("SystemKeys::post");
    const bool isDropped = !m_permission.isProcessTrusted();
    m_log.record(SystemKeyPosted{key, motion, isDropped});
    if (isDropped || motion == SystemKeyMotion::up)
        return;
    if (key == SystemKey::brightnessUp)
        dim(brightnessStep);
    else if (key == SystemKey::brightnessDown)
        dim(-brightnessStep);
}

void SimulatedSystemKeys::dim(double difference)
{
    m_scheduler.post([this, difference] {
        if (const std::optional<double> current = m_brightness.current())
            m_brightness.setCurrent(std::clamp(*current + difference, 0.0, 1.0));
    });
}

} // namespace tarvin::simulated
