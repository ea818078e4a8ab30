#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace tarvin {

/// A short sound that is loaded and ready; 0 is none.
using SoundId = std::uint32_t;

/// Plays short sounds without audible delay. Main thread only; calls return before the sound has begun.
class Sounds
{
public:
    virtual ~Sounds() = default;
    /// Loads the file. @return nothing if there is none there or it can't be played
    [[nodiscard]] virtual std::optional<SoundId> create(const QString& path) = 0;
    /// Plays a loaded sound or one of the system's numbered sounds; where it can't, nothing is heard.
    virtual void play(SoundId sound) = 0;
};

/// The feedback motor of a touchpad.
class Haptics
{
public:
    virtual ~Haptics() = default;
    /// One short tap, at once. Nothing where there is no such motor.
    virtual void performAlignmentTap() = 0;
};

} // namespace tarvin
