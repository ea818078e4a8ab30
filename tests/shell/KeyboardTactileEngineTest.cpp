#include "shell/KeyboardTactileEngine.h"

#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace tarvin::test {

namespace {

using namespace std::chrono_literals;
using namespace simulated;
using testing::ElementsAre;
using testing::IsEmpty;
using Engine = KeyboardTactileEngine;

const QString mediaKeys =
    u"/System/Library/Components/CoreAudio.component/Contents/SharedSupport/SystemSounds/system/Media Keys.aif"_qs;
const QString tink = u"/System/Library/Sounds/Tink.aiff"_qs;
const QString pop = u"/System/Library/Sounds/Pop.aiff"_qs;

class KeyboardTactileEngineTest : public testing::Test
{
protected:
    /// Made at the first call, so that a test can prepare settings and files before.
    Engine& engine()
    {
        if (!m_engine) {
            m_engine = std::make_unique<Engine>(Engine::Collaborators{platform.sounds(), platform.haptics(),
                platform.appShell(), profile, platform.preferences(), platform.scheduler()});
        }
        return *m_engine;
    }
    void store(QStringView key, const QJsonValue& value) { platform.preferences().stage(key.toString(), value); }
    [[nodiscard]] QJsonValue stored(QStringView key) { return platform.preferences().value(key.toString()); }
    [[nodiscard]] std::size_t clicks() { return platform.effects().count<SoundPlayed>(); }
    [[nodiscard]] std::size_t taps() { return platform.effects().count<HapticTapped>(); }
    [[nodiscard]] QString pressed() { return engine().pressedKeyId().value_or(u"none"_qs); }
    /// The keys under the two settings that were stored since the last call, with their values.
    [[nodiscard]] QStringList newlyStored()
    {
        QStringList lines;
        for (const SettingStored& setting : platform.effects().all<SettingStored>())
            lines << setting.key + u' ' + setting.value.toVariant().toString();
        platform.effects().clear();
        return lines;
    }
    void becomeActive() { platform.appShell().becomeActive(); }

    SimulatedPlatform platform;
    Platform ports = platform.ports();
    KeyProfile profile{ports.files, ports.preferences, ports.workspace, ports.console, ports.uuids, [](KeyAction) {}};

private:
    std::unique_ptr<Engine> m_engine;
};

// ---- Creation ----

TEST_F(KeyboardTactileEngineTest, withoutSettingsSoundsAreOnAndTheLightIsAtEightyFivePercent)
{
    EXPECT_TRUE(engine().isSoundEnabled());
    EXPECT_EQ(engine().backlightLevel(), 0.85);
    EXPECT_EQ(engine().backlightPercentText(), u"85%"_qs);
    EXPECT_EQ(engine().pressedKeyId(), std::nullopt);
    EXPECT_THAT(newlyStored(), IsEmpty());
}

TEST_F(KeyboardTactileEngineTest, whatIsStoredIsTakenAndWrittenBack)
{
    store(Engine::soundEnabledKey, false);
    store(Engine::backlightLevelKey, 0.35);
    EXPECT_FALSE(engine().isSoundEnabled());
    EXPECT_EQ(engine().backlightLevel(), 0.35);
    EXPECT_THAT(newlyStored(), ElementsAre(u"Tarvin_SoundEnabled false"_qs, u"Tarvin_BacklightLevel 0.35"_qs));
}

TEST_F(KeyboardTactileEngineTest, aStoredLightOfZeroIsRespected)
{
    store(Engine::backlightLevelKey, 0.0);
    EXPECT_EQ(engine().backlightLevel(), 0.0);
    EXPECT_EQ(engine().backlightPercentText(), u"0%"_qs);
}

TEST_F(KeyboardTactileEngineTest, settingsOfOtherTypesReadAsFalseAndZero)
{
    store(Engine::soundEnabledKey, u"loud"_qs);
    store(Engine::backlightLevelKey, u"bright"_qs);
    EXPECT_FALSE(engine().isSoundEnabled());
    EXPECT_EQ(engine().backlightLevel(), 0.0);
}

TEST_F(KeyboardTactileEngineTest, numbersAndBooleansStandForEachOther)
{
    store(Engine::soundEnabledKey, 1);
    store(Engine::backlightLevelKey, true);
    EXPECT_TRUE(engine().isSoundEnabled());
    EXPECT_EQ(engine().backlightLevel(), 1.0);
}

// ---- The sound ----

TEST_F(KeyboardTactileEngineTest, theFirstSoundFileThatLoadsIsTheClick)
{
    platform.sounds().addFile(tink);
    platform.sounds().addFile(pop);
    engine().playTactileClick();
    EXPECT_THAT(platform.sounds().attempts(), ElementsAre(mediaKeys, tink));
    EXPECT_THAT(platform.effects().all<SoundPlayed>(), ElementsAre(SoundPlayed{1, tink}));
}

TEST_F(KeyboardTactileEngineTest, theBestSoundFileIsTriedFirstAndTheLastOneLast)
{
    platform.sounds().addFile(mediaKeys);
    EXPECT_EQ(engine().clickSoundId(), 1U);
    EXPECT_THAT(platform.sounds().attempts(), ElementsAre(mediaKeys));
}

TEST_F(KeyboardTactileEngineTest, withoutAnySoundFileTheBuiltInSoundPlays)
{
    engine().playTactileClick();
    EXPECT_THAT(platform.sounds().attempts(), ElementsAre(mediaKeys, tink, pop));
    EXPECT_EQ(engine().clickSoundId(), 0U);
    EXPECT_THAT(platform.effects().all<SoundPlayed>(), ElementsAre(SoundPlayed{1104, std::nullopt}));
}

TEST_F(KeyboardTactileEngineTest, anAudiblePressClicksOnce)
{
    engine().triggerKeyPress(u"F5"_qs, PressSound::audible);
    EXPECT_EQ(clicks(), 1U);
}

TEST_F(KeyboardTactileEngineTest, aSilentPressDoesNotClick)
{
    engine().triggerKeyPress(u"F5"_qs, PressSound::silent);
    EXPECT_EQ(clicks(), 0U);
    EXPECT_EQ(pressed(), u"F5"_qs);
}

TEST_F(KeyboardTactileEngineTest, withSoundsOffAPressDoesNotClick)
{
    engine().setSoundEnabled(false);
    engine().triggerKeyPress(u"F5"_qs, PressSound::audible);
    engine().playTactileClick();
    EXPECT_EQ(clicks(), 0U);
}

TEST_F(KeyboardTactileEngineTest, withTheMasterSwitchOffAPressDoesNotClick)
{
    profile.setInterceptionEnabled(false);
    engine().triggerKeyPress(u"F5"_qs, PressSound::audible);
    EXPECT_EQ(clicks(), 0U);
    EXPECT_EQ(pressed(), u"F5"_qs);
}

TEST_F(KeyboardTactileEngineTest, turningSoundsOnClicksEvenWithTheMasterSwitchOff)
{
    profile.setInterceptionEnabled(false);
    engine().toggleSound();
    EXPECT_FALSE(engine().isSoundEnabled());
    EXPECT_EQ(clicks(), 0U);
    engine().toggleSound();
    EXPECT_TRUE(engine().isSoundEnabled());
    EXPECT_EQ(clicks(), 1U);
}

TEST_F(KeyboardTactileEngineTest, theSoundSwitchIsStoredAtEveryAssignment)
{
    engine();
    const SignalCount changes(engine(), &Engine::soundEnabledChanged);
    engine().setSoundEnabled(true);
    engine().setSoundEnabled(false);
    EXPECT_THAT(newlyStored(), ElementsAre(u"Tarvin_SoundEnabled true"_qs, u"Tarvin_SoundEnabled false"_qs));
    EXPECT_EQ(changes.count(), 1);
}

// ---- The tap ----

TEST_F(KeyboardTactileEngineTest, theTouchpadTapsOnlyWhileTheProgramIsActive)
{
    engine().triggerKeyPress(u"F5"_qs, PressSound::silent);
    EXPECT_EQ(taps(), 0U);
    becomeActive();
    engine().triggerKeyPress(u"F5"_qs, PressSound::silent);
    EXPECT_EQ(taps(), 1U);
}

TEST_F(KeyboardTactileEngineTest, aTapAskedForIsMadeWhateverIsInFront)
{
    engine().performHapticTap();
    EXPECT_EQ(taps(), 1U);
}

TEST_F(KeyboardTactileEngineTest, clickComesBeforeTap)
{
    becomeActive();
    platform.effects().clear();
    engine().triggerKeyPress(u"F5"_qs, PressSound::audible);
    ASSERT_EQ(platform.effects().effects().size(), 2U);
    EXPECT_TRUE(std::holds_alternative<SoundPlayed>(platform.effects().effects().at(0).what));
    EXPECT_TRUE(std::holds_alternative<HapticTapped>(platform.effects().effects().at(1).what));
}

// ---- The pressed state ----

TEST_F(KeyboardTactileEngineTest, aPressedKeycapComesUpByItselfAfter120Milliseconds)
{
    engine().triggerKeyPress(u"F5"_qs, PressSound::silent);
    platform.scheduler().advance(119ms);
    EXPECT_EQ(pressed(), u"F5"_qs);
    platform.scheduler().advance(1ms);
    EXPECT_EQ(pressed(), u"none"_qs);
}

TEST_F(KeyboardTactileEngineTest, aSecondKeyWithinTheTimeTakesThePressedStateAndTheOnlyTimer)
{
    engine().triggerKeyPress(u"F5"_qs, PressSound::silent);
    platform.scheduler().advance(50ms);
    engine().triggerKeyPress(u"F6"_qs, PressSound::silent);
    EXPECT_EQ(pressed(), u"F6"_qs);
    EXPECT_EQ(platform.scheduler().runningTimers(), 1U);
    platform.scheduler().advance(119ms);
    EXPECT_EQ(pressed(), u"F6"_qs);
    platform.scheduler().advance(1ms);
    EXPECT_EQ(pressed(), u"none"_qs);
}

TEST_F(KeyboardTactileEngineTest, pressingTheSameKeyAgainStartsItsTimeAnew)
{
    engine().triggerKeyPress(u"F5"_qs, PressSound::silent);
    platform.scheduler().advance(100ms);
    engine().triggerKeyPress(u"F5"_qs, PressSound::silent);
    platform.scheduler().advance(100ms);
    EXPECT_EQ(pressed(), u"F5"_qs);
    platform.scheduler().advance(20ms);
    EXPECT_EQ(pressed(), u"none"_qs);
}

TEST_F(KeyboardTactileEngineTest, releasingThePressedKeyEndsItsState)
{
    engine().triggerKeyPress(u"F5"_qs, PressSound::silent);
    const SignalCount changes(engine(), &Engine::pressedKeyIdChanged);
    engine().releaseKey(u"F5"_qs);
    EXPECT_EQ(pressed(), u"none"_qs);
    platform.scheduler().advance(200ms);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(KeyboardTactileEngineTest, releasingAnotherKeyLeavesThePressedOneAlone)
{
    engine().triggerKeyPress(u"F5"_qs, PressSound::silent);
    engine().releaseKey(u"F6"_qs);
    EXPECT_EQ(pressed(), u"F5"_qs);
}

TEST_F(KeyboardTactileEngineTest, keysWithoutAKeycapClickAndTapButShowNothing)
{
    becomeActive();
    engine().triggerKeyPress(u"key_200"_qs, PressSound::audible);
    EXPECT_EQ(pressed(), u"none"_qs);
    EXPECT_EQ(clicks(), 1U);
    EXPECT_EQ(taps(), 1U);
}

TEST_F(KeyboardTactileEngineTest, keysWithoutAKeycapTakeTheTimerFromThePressedOne)
{
    engine().triggerKeyPress(u"F5"_qs, PressSound::silent);
    engine().triggerKeyPress(u"key_200"_qs, PressSound::silent);
    platform.scheduler().advance(1s);
    EXPECT_EQ(pressed(), u"F5"_qs);
    engine().releaseKey(u"F5"_qs);
    EXPECT_EQ(pressed(), u"none"_qs);
}

// ---- The light ----

TEST_F(KeyboardTactileEngineTest, theLightCyclesFromTheDefaultToFullAndThenThroughFourLevels)
{
    QStringList levels;
    for (int i = 0; i < 6; ++i) {
        engine().cycleBacklight();
        levels << engine().backlightPercentText();
    }
    EXPECT_THAT(levels, ElementsAre(u"100%"_qs, u"0%"_qs, u"35%"_qs, u"70%"_qs, u"100%"_qs, u"0%"_qs));
    EXPECT_EQ(stored(Engine::backlightLevelKey), QJsonValue(0.0));
}

TEST_F(KeyboardTactileEngineTest, theNextLightIsFoundAtEveryBound)
{
    struct Case
    {
        double level;
        double next;
    };
    for (const Case& one : {Case{0.0, 0.35}, {0.0999, 0.35}, {0.1, 0.7}, {0.4999, 0.7}, {0.5, 1.0}, {0.8999, 1.0},
             {0.9, 0.0}, {1.0, 0.0}}) {
        engine().setBacklightLevel(one.level);
        engine().cycleBacklight();
        EXPECT_EQ(engine().backlightLevel(), one.next) << one.level;
    }
}

TEST_F(KeyboardTactileEngineTest, theLightReadsInWholePercent)
{
    for (const auto& [level, text] :
        {std::pair(0.35, u"35%"), {0.7, u"70%"}, {0.004, u"0%"}, {0.005, u"1%"}, {0.994, u"99%"}, {1.0, u"100%"}}) {
        engine().setBacklightLevel(level);
        EXPECT_EQ(engine().backlightPercentText(), text);
    }
}

TEST_F(KeyboardTactileEngineTest, theLightIsStoredAtEveryAssignment)
{
    engine();
    const SignalCount changes(engine(), &Engine::backlightLevelChanged);
    engine().setBacklightLevel(0.85);
    engine().setBacklightLevel(0.5);
    EXPECT_THAT(newlyStored(), ElementsAre(u"Tarvin_BacklightLevel 0.85"_qs, u"Tarvin_BacklightLevel 0.5"_qs));
    EXPECT_EQ(changes.count(), 1);
}

} // namespace

} // namespace tarvin::test
