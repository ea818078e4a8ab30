#include "shell/KeyboardTactileEngine.h"

#include "platform/ports/AppShell.h"
#include "platform/ports/Scheduler.h"
#include "profiles/KeyProfile.h"
#include "profiles/StoredBoolean.h"

#include <array>
#include <cmath>

namespace tarvin {

namespace {

/// Best first.
constexpr std::array<QStringView, 3> clickSoundFiles = {
    u"/System/Library/Components/CoreAudio.component/Contents/SharedSupport/SystemSounds/system/Media Keys.aif",
    u"/System/Library/Sounds/Tink.aiff",
    u"/System/Library/Sounds/Pop.aiff",
};

/// Keys that have no keycap of their own to move.
constexpr QStringView keycaplessPrefix = u"key_";

/// As the settings are read everywhere: a Boolean counts as 1 or 0, and what is no number as 0.
double storedNumber(const QJsonValue& value)
{
    return value.isBool() ? static_cast<double>(value.toBool()) : value.toDouble();
}

constexpr double levelAfter(double level)
{
    if (level < 0.1)
        return 0.35;
    if (level < 0.5)
        return 0.7;
    if (level < 0.9)
        return 1.0;
    return 0.0;
}

} // namespace

KeyboardTactileEngine::KeyboardTactileEngine(const Collaborators& collaborators)
    : m_with(collaborators)
{
    const QString soundKey = soundEnabledKey.toString();
    if (!m_with.preferences.value(soundKey).isUndefined())
        setSoundEnabled(storedBoolean(m_with.preferences, soundKey, m_isSoundEnabled));
    const QJsonValue level = m_with.preferences.value(backlightLevelKey.toString());
    if (!level.isUndefined())
        setBacklightLevel(storedNumber(level));
    setupSound();
}

KeyboardTactileEngine::~KeyboardTactileEngine() = default;

void KeyboardTactileEngine::setSoundEnabled(bool enabled)
{
    const bool changed = m_isSoundEnabled != enabled;
    m_isSoundEnabled = enabled;
    m_with.preferences.setValue(soundEnabledKey.toString(), enabled);
    if (changed)
        Q_EMIT soundEnabledChanged();
}

void KeyboardTactileEngine::setBacklightLevel(double level)
{
    const bool changed = m_backlightLevel != level;
    m_backlightLevel = level;
    m_with.preferences.setValue(backlightLevelKey.toString(), level);
    if (changed)
        Q_EMIT backlightLevelChanged();
}

QString KeyboardTactileEngine::backlightPercentText() const
{
    return QString::number(std::lround(m_backlightLevel * 100.0)) + u'%';
}

void KeyboardTactileEngine::triggerKeyPress(const QString& keyId, PressSound sound)
{
    if (!keyId.startsWith(keycaplessPrefix))
        setPressedKeyId(keyId);
    if (sound == PressSound::audible && m_isSoundEnabled && m_with.keyProfile.isInterceptionEnabled())
        playClick();
    if (m_with.appShell.isActive())
        performHapticTap();
    m_releaseTimer = m_with.scheduler.startOneShot(pressedDuration, [this, keyId] { releaseKey(keyId); });
}

void KeyboardTactileEngine::releaseKey(const QString& keyId)
{
    if (m_pressedKeyId == keyId)
        setPressedKeyId(std::nullopt);
}

void KeyboardTactileEngine::playTactileClick()
{
    if (m_isSoundEnabled)
        playClick();
}

void KeyboardTactileEngine::performHapticTap()
{
    m_with.haptics.performAlignmentTap();
}

void KeyboardTactileEngine::toggleSound()
{
    setSoundEnabled(!m_isSoundEnabled);
    playTactileClick();
}

void KeyboardTactileEngine::cycleBacklight()
{
    setBacklightLevel(levelAfter(m_backlightLevel));
}

void KeyboardTactileEngine::setupSound()
{
    for (const QStringView file : clickSoundFiles) {
        if (const std::optional<SoundId> sound = m_with.sounds.create(file.toString())) {
            m_clickSoundId = *sound;
            return;
        }
    }
}

void KeyboardTactileEngine::playClick()
{
    m_with.sounds.play(m_clickSoundId == 0 ? builtInClick : m_clickSoundId);
}

void KeyboardTactileEngine::setPressedKeyId(const std::optional<QString>& keyId)
{
    if (m_pressedKeyId == keyId)
        return;
    m_pressedKeyId = keyId;
    Q_EMIT pressedKeyIdChanged();
}

} // namespace tarvin
