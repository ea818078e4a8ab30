#pragma once

#include "interception/KeyFeedback.h"
#include "platform/ports/Sounds.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

namespace tarvin {

class AppShell;
class KeyProfile;
class Preferences;
class Scheduler;
class Timer;

/// Makes a key press felt: a click, a tap of the touchpad and a short pressed state that the drawn keyboard shows; and
/// the light of the drawn keyboard, which is no hardware's. Main thread only.
class KeyboardTactileEngine : public QObject, public KeyFeedback
{
    Q_OBJECT
    Q_PROPERTY(bool isSoundEnabled READ isSoundEnabled WRITE setSoundEnabled NOTIFY soundEnabledChanged)
    Q_PROPERTY(double backlightLevel READ backlightLevel WRITE setBacklightLevel NOTIFY backlightLevelChanged)
    Q_PROPERTY(QString backlightPercentText READ backlightPercentText NOTIFY backlightLevelChanged)
    Q_PROPERTY(std::optional<QString> pressedKeyId READ pressedKeyId NOTIFY pressedKeyIdChanged)

public:
    static constexpr QStringView soundEnabledKey = u"Tarvin_SoundEnabled";
    static constexpr QStringView backlightLevelKey = u"Tarvin_BacklightLevel";

    /// How long a keycap stays pressed when no release is heard of.
    static constexpr std::chrono::milliseconds pressedDuration{120};
    /// The system's own sound that stands in when none of the files can be loaded.
    static constexpr SoundId builtInClick = 1104;

    struct Collaborators
    {
        Sounds& sounds;
        Haptics& haptics;
        const AppShell& appShell;
        const KeyProfile& keyProfile;
        Preferences& preferences;
        Scheduler& scheduler;
    };

    /// Takes the settings, writing back those that are stored, and loads the click.
    explicit KeyboardTactileEngine(const Collaborators& collaborators);
    ~KeyboardTactileEngine() override;
    Q_DISABLE_COPY_MOVE(KeyboardTactileEngine)

    [[nodiscard]] bool isSoundEnabled() const { return m_isSoundEnabled; }
    /// Stored at each call.
    void setSoundEnabled(bool enabled);
    /// From 0.0 to 1.0.
    [[nodiscard]] double backlightLevel() const { return m_backlightLevel; }
    /// Stored at each call.
    void setBacklightLevel(double level);
    /// The level as "85%".
    [[nodiscard]] QString backlightPercentText() const;
    /// The keycap that shows as pressed.
    [[nodiscard]] const std::optional<QString>& pressedKeyId() const { return m_pressedKeyId; }
    /// The sound of the click, 0 where the built-in one plays.
    [[nodiscard]] SoundId clickSoundId() const { return m_clickSoundId; }

    /// Shows the keycap as pressed for a short while, clicks if sounds and the master switch are on, and taps while the
    /// program is the active one. A key whose identifier begins with "key_" gets no pressed state.
    void triggerKeyPress(const QString& keyId, PressSound sound) override;
    /// Shows the keycap as released, if it is the pressed one.
    void releaseKey(const QString& keyId) override;
    /// Clicks if sounds are on, whatever the master switch says.
    void playTactileClick();
    void performHapticTap();
    /// Lets the user hear at once that sounds are on.
    void toggleSound();
    /// The next of the four levels 0, 35, 70 and 100 percent.
    void cycleBacklight();

Q_SIGNALS:
    void soundEnabledChanged();
    void backlightLevelChanged();
    void pressedKeyIdChanged();

private:
    void setupSound();
    void playClick();
    void setPressedKeyId(const std::optional<QString>& keyId);

    Collaborators m_with;
    bool m_isSoundEnabled = true;
    double m_backlightLevel = 0.85;
    std::optional<QString> m_pressedKeyId;
    std::unique_ptr<Timer> m_releaseTimer;
    SoundId m_clickSoundId = 0;
};

} // namespace tarvin
