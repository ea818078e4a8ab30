#include "ui/Motion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarvin {

namespace {

/// The part of the way that counts as there.
constexpr double settled = 0.001;
/// A spring with critical damping or more is treated as one just below it; the eye can't tell.
constexpr double highestDamping = 0.999;

/// The cubic Bézier curve with the handles (0.42, 0) and (0.58, 1): slow, fast, slow.
double easedProgress(double time)
{
    const auto along = [](double t, double first, double second) {
        return 3 * (1 - t) * (1 - t) * t * first + 3 * (1 - t) * t * t * second + t * t * t;
    };
    double low = 0;
    double high = 1;
    for (int step = 0; step < 24; ++step) {
        const double middle = (low + high) / 2;
        (along(middle, 0.42, 0.58) < time ? low : high) = middle;
    }
    return along((low + high) / 2, 0, 1);
}

struct Oscillation
{
    double decay; ///< per second
    double frequency; ///< radians per second, damped
};

Oscillation oscillation(double response, double damping)
{
    const double natural = 2 * std::numbers::pi / response;
    const double fraction = std::min(damping, highestDamping);
    return {.decay = fraction * natural, .frequency = natural * std::sqrt(1 - fraction * fraction)};
}

} // namespace

double Motion::valueAt(double seconds, double velocity) const
{
    if (seconds <= 0)
        return 0;
    if (m_damping == 0)
        return seconds >= m_period ? 1 : easedProgress(seconds / m_period);
    const auto [decay, frequency] = oscillation(m_period, m_damping);
    const double phase = frequency * seconds;
    return 1 - std::exp(-decay * seconds) * (std::cos(phase) + (decay - velocity) / frequency * std::sin(phase));
}

double Motion::velocityAt(double seconds, double velocity) const
{
    constexpr double step = 1e-4;
    return (valueAt(seconds + step, velocity) - valueAt(std::max(0.0, seconds - step), velocity))
        / (seconds + step - std::max(0.0, seconds - step));
}

double Motion::settlingSeconds() const
{
    if (m_damping == 0)
        return m_period;
    const auto [decay, frequency] = oscillation(m_period, m_damping);
    // The envelope of the oscillation, which starts a little above 1.
    return std::log(std::hypot(1, decay / frequency) / settled) / decay;
}

} // namespace tarvin
