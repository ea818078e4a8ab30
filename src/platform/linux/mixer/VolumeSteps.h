#pragma once

#include <cstdint>

namespace tarvin::mixer {

/// The sound server's unit of volume; `fullVolume` of them are 100 percent.
using VolumeUnits = std::uint32_t;

inline constexpr VolumeUnits fullVolume = 0x10000;

/// In percent, rounded.
[[nodiscard]] int percentOf(VolumeUnits volume);
[[nodiscard]] VolumeUnits unitsOf(int percent);

/// The volume in percent after a step. It ends at 0 and 100; what is louder already is not made quieter by a step up.
[[nodiscard]] int steppedPercent(int percent, int step);

/// What the microphone is set to when it is switched on.
inline constexpr int activeMicrophonePercent = 75;

} // namespace tarvin::mixer
