#pragma once

#include "platform/ports/Sounds.h"

#include <vector>

namespace tarvin::macos {

/// The system's short sounds. Main thread only.
class MacSounds final : public Sounds
{
public:
    MacSounds() = default;
    /// The sounds that were loaded go too.
    ~MacSounds() override;
    MacSounds(const MacSounds&) = delete;
    MacSounds& operator=(const MacSounds&) = delete;

    [[nodiscard]] std::optional<SoundId> create(const QString& path) override;
    void play(SoundId sound) override;

private:
    std::vector<SoundId> m_created;
};

/// The motor of the trackpad that is touched. Main thread only.
class MacHaptics final : public Haptics
{
public:
    void performAlignmentTap() override;
};

} // namespace tarvin::macos
