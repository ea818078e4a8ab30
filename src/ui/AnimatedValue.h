#pragma once

#include "ui/Motion.h"

#include <QAbstractAnimation>

#include <functional>

namespace tarvin {

/// A number that moves to each new target instead of jumping. Ticks only while it moves. Main thread only.
class AnimatedValue : public QAbstractAnimation
{
    Q_OBJECT

public:
    /// @param changed called at each step while the value moves, and when it jumps
    AnimatedValue(double value, std::function<void()> changed);

    [[nodiscard]] double value() const { return m_value; }
    /// Where it is or will come to rest.
    [[nodiscard]] double target() const { return m_target; }
    /// Goes there from where it is now; a spring keeps the speed that the value has.
    void animateTo(double target, const Motion& motion);
    void jumpTo(double value);

    [[nodiscard]] int duration() const override { return -1; }

protected:
    void updateCurrentTime(int milliseconds) override;

private:
    double m_value;
    double m_start;
    double m_target;
    double m_velocity = 0; ///< at the start of the movement, in parts of the way per second
    Motion m_motion = Motion::spring(0.3, 0.75);
    std::function<void()> m_changed;
};

} // namespace tarvin
