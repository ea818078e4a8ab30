#include "platform/linux/mixer/VolumeSteps.h"

#include <algorithm>

namespace tarvin::mixer {

namespace {

constexpr std::uint64_t wholePercent = 100;

} // namespace

int percentOf(VolumeUnits volume)
{
    return static_cast<int>((volume * wholePercent + fullVolume / 2) / fullVolume);
}

VolumeUnits unitsOf(int percent)
{
    return static_cast<VolumeUnits>(
        (static_cast<std::uint64_t>(percent) * fullVolume + wholePercent / 2) / wholePercent);
}

int steppedPercent(int percent, int step)
{
    return std::clamp(percent + step, 0, std::max(percent, static_cast<int>(wholePercent)));
}

} // namespace tarvin::mixer
