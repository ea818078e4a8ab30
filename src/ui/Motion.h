#pragma once

#include <chrono>

namespace tarvin {

/// How a value goes from 0 to 1: by a spring, or along an S-curve of a fixed duration.
class Motion
{
public:
    /// @param response the period of the undamped spring, in seconds
    /// @param damping the fraction of critical damping; below 1 the value overshoots
    [[nodiscard]] static constexpr Motion spring(double response, double damping) { return {response, damping}; }
    [[nodiscard]] static constexpr Motion easeInOut(std::chrono::milliseconds duration)
    {
        return {static_cast<double>(duration.count()) / 1000, 0};
    }

    /// The value after this many seconds.
    /// @param velocity at the start, in distances per second; only springs keep it
    [[nodiscard]] double valueAt(double seconds, double velocity = 0) const;
    [[nodiscard]] double velocityAt(double seconds, double velocity = 0) const;
    /// After this time the value stays within a thousandth of 1.
    [[nodiscard]] double settlingSeconds() const;

private:
    constexpr Motion(double period, double damping)
        : m_period(period)
        , m_damping(damping)
    { }

    double m_period;
    double m_damping; ///< 0 for an ease
};

} // namespace tarvin
