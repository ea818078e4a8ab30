#include "platform/simulated/SimulatedSounds.h"

namespace tarvin::simulated {

std::optional<SoundId> SimulatedSounds::create(const QString& path)
{
    m_log.expectMainThread("Sounds::create");
    m_attempts.append(path);
    if (!m_files.contains(path))
        return std::nullopt;
    m_loaded.append(path);
    return static_cast<SoundId>(m_loaded.size());
}

void SimulatedSounds::play(SoundId sound)
{
    m_log.expectMainThread("Sounds::play");
    const bool isLoaded = sound > 0 && sound <= static_cast<SoundId>(m_loaded.size());
    m_log.record(SoundPlayed{
        sound, isLoaded ? std::optional(m_loaded.at(static_cast<qsizetype>(sound) - 1)) : std::optional<QString>()});
}

void SimulatedHaptics::performAlignmentTap()
{
    m_log.expectMainThread("Haptics::performAlignmentTap");
    m_log.record(HapticTapped{});
}

} // namespace tarvin::simulated
