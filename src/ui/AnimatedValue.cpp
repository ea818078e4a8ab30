#include "ui/AnimatedValue.h"

namespace tarvin {

AnimatedValue::AnimatedValue(double value, std::function<void()> changed)
    : m_value(value)
    , m_start(value)
    , m_target(value)
    , m_changed(std::move(changed))
{ }

void AnimatedValue::animateTo(double target, const Motion& motion)
{
    if (target == m_target)
        return;
    double speed = 0; // in units of the value
    if (state() == Running)
        speed = m_motion.velocityAt(currentTime() / 1000.0, m_velocity) * (m_target - m_start);
    stop();
    m_start = m_value;
    m_target = target;
    m_motion = motion;
    m_velocity = m_target == m_start ? 0 : speed / (m_target - m_start);
    start();
}

void AnimatedValue::jumpTo(double value)
{
    stop();
    const bool differs = m_value != value;
    m_value = m_start = m_target = value;
    if (differs)
        m_changed();
}

void AnimatedValue::updateCurrentTime(int milliseconds)
{
    const double seconds = milliseconds / 1000.0;
    const bool isThere = seconds >= m_motion.settlingSeconds();
    const double before = m_value;
    m_value = isThere ? m_target : m_start + (m_target - m_start) * m_motion.valueAt(seconds, m_velocity);
    if (isThere)
        stop();
    // The end is told in any case: what waits for it must not wait for ever.
    if (isThere || m_value != before)
        m_changed();
}

} // namespace tarvin
