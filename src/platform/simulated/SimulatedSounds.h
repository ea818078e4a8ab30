#pragma once

#include "platform/ports/Sounds.h"
#include "platform/simulated/EffectLog.h"

#include <QStringList>

namespace tarvin::simulated {

/// A loudspeaker. No sound file is there at first.
class SimulatedSounds final : public Sounds
{
public:
    explicit SimulatedSounds(EffectLog& log)
        : m_log(log)
    { }

    [[nodiscard]] std::optional<SoundId> create(const QString& path) override;
    void play(SoundId sound) override;

    /// From now on the file can be loaded.
    void addFile(const QString& path) { m_files.append(path); }
    /// Every path that was asked for, in order.
    [[nodiscard]] const QStringList& attempts() const { return m_attempts; }

private:
    EffectLog& m_log;
    QStringList m_files;
    QStringList m_attempts;
    QStringList m_loaded; ///< the first has the identifier 1
};

/// A touchpad with a motor.
class SimulatedHaptics final : public Haptics
{
public:
    explicit SimulatedHaptics(EffectLog& log)
        : m_log(log)
    { }

    void performAlignmentTap() override;

private:
    EffectLog& m_log;
};

} // namespace tarvin::simulated
