#include "platform/linux/feedback/ClickSound.h"

#include <cmath>
#include <numbers>

namespace tarvin::feedback {

namespace {

constexpr std::uint32_t clickRate = 44100;
constexpr double duration = 0.018; // seconds
constexpr double attack = 0.0004; // seconds until it is loudest
constexpr double loudness = 0.35; // of full scale

struct Tone
{
    double frequency; ///< Hz
    double decay; ///< in a second
    double share; ///< of the whole
};
constexpr Tone body{.frequency = 420.0, .decay = 260.0, .share = 0.45};
constexpr Tone edge{.frequency = 2350.0, .decay = 620.0, .share = 0.35};
constexpr double noiseDecay = 1400.0;
constexpr double noiseShare = 0.20;

double valueOf(const Tone& tone, double time)
{
    return tone.share * std::exp(-tone.decay * time) * std::sin(2.0 * std::numbers::pi * tone.frequency * time);
}

} // namespace

PcmSound clickSound()
{
    PcmSound sound{.samples = {}, .rate = clickRate, .channels = 1};
    const auto count = static_cast<std::size_t>(duration * clickRate);
    sound.samples.reserve(count);
    std::uint32_t random = 0x5452564E;
    for (std::size_t i = 0; i < count; ++i) {
        const double time = static_cast<double>(i) / clickRate;
        random = random * 1664525U + 1013904223U;
        const double noise = static_cast<double>(random) / 2147483648.0 - 1.0;
        const double rise = std::min(1.0, time / attack);
        const double fall = 1.0 - time / duration; // ends in silence, without a second click
        const double value =
            valueOf(body, time) + valueOf(edge, time) + noiseShare * std::exp(-noiseDecay * time) * noise;
        sound.samples.push_back(static_cast<std::int16_t>(std::lround(32767.0 * loudness * rise * fall * value)));
    }
    return sound;
}

} // namespace tarvin::feedback
