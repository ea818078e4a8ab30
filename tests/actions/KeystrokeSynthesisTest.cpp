#include "actions/support/ActionsDesktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

struct KeystrokeSynthesisTest : testing::Test
{
    QStringList multiKey(const QList<CustomShortcut>& shortcuts, MultiKeyPlaybackMode mode)
    {
        return desktop.transcriptOf([&] { desktop.synthesis.executeMultiKeyShortcuts(shortcuts, mode); });
    }
    QStringList chord(const QList<CustomShortcut>& shortcuts)
    {
        return desktop.transcriptOf([&] { desktop.synthesis.executeSimultaneousKeys(shortcuts); });
    }

    const CustomShortcut commandC = shortcutOf(8, u"C"_qs, EventFlags::command);
    const CustomShortcut shiftD = shortcutOf(2, u"D"_qs, EventFlags::shift);
    const CustomShortcut plainA = shortcutOf(0, u"A"_qs, EventFlags::none);
    const CustomShortcut blank = shortcutOf(0, QString(), EventFlags::command | EventFlags::option);

    ActionsDesktop desktop;
};

TEST_F(KeystrokeSynthesisTest, theFlagsOfAShortcutAreItsModifiers)
{
    EXPECT_EQ(static_cast<std::uint64_t>(eventFlags({.command = true})), 0x100000U);
    EXPECT_EQ(static_cast<std::uint64_t>(eventFlags({.option = true})), 0x80000U);
    EXPECT_EQ(static_cast<std::uint64_t>(eventFlags({.control = true})), 0x40000U);
    EXPECT_EQ(static_cast<std::uint64_t>(eventFlags({.shift = true})), 0x20000U);
    EXPECT_EQ(eventFlags({}), EventFlags::none);
    EXPECT_EQ(eventFlags({.command = true, .option = true, .control = true, .shift = true}),
        EventFlags::command | EventFlags::option | EventFlags::control | EventFlags::shift);
}

TEST_F(KeystrokeSynthesisTest, aKeystrokeIsReleasedAfterFifteenMillisecondsWithTheSameFlags)
{
    desktop.platform.effects().clear();
    desktop.synthesis.simulateKeyStroke(6, EventFlags::command | EventFlags::shift, KeystrokeOrigin::builtIn);
    const simulated::KeyPosted down{
        .keyCode = 6,
        .state = KeyState::down,
        .flags = EventFlags::command | EventFlags::shift,
        .userData = 0x5452564E,
        .location = TapLocation::session,
        .origin = KeystrokeOrigin::builtIn,
    };
    auto up = down;
    up.state = KeyState::up;
    desktop.platform.scheduler().advance(std::chrono::milliseconds(14));
    EXPECT_THAT(desktop.platform.effects().all<simulated::KeyPosted>(), testing::ElementsAre(down));
    desktop.platform.scheduler().advance(std::chrono::milliseconds(1));
    EXPECT_THAT(desktop.platform.effects().all<simulated::KeyPosted>(), testing::ElementsAre(down, up));
}

TEST_F(KeystrokeSynthesisTest, aKeyThatCannotBeMadeIsNotPosted)
{
    desktop.platform.poster().setCanMakeKey(6, false);
    EXPECT_EQ(desktop.transcriptOf(
                  [&] { desktop.synthesis.simulateKeyStroke(6, EventFlags::command, KeystrokeOrigin::builtIn); }),
        lines({}));
}

TEST_F(KeystrokeSynthesisTest, aRecordedShortcutGoesOutAsItWasRecorded)
{
    EXPECT_EQ(desktop.transcriptOf([&] { desktop.synthesis.executeCustomShortcut(commandC); }),
        lines({"0 down 8 command recorded", "15 up 8 command recorded"}));
}

TEST_F(KeystrokeSynthesisTest, aRecordedShortcutWaitsForTheApplicationBehindTheProgram)
{
    desktop.bringSelfToFront();
    EXPECT_EQ(desktop.transcriptOf([&] { desktop.synthesis.executeCustomShortcut(commandC); }),
        lines({"0 activate Safari", "80 down 8 command recorded", "95 up 8 command recorded"}));
}

TEST_F(KeystrokeSynthesisTest, aSequenceIsScheduledAtOnceInStepsOfFortyFiveMilliseconds)
{
    const QStringList seen = desktop.transcriptOf([&] {
        desktop.synthesis.executeSequentialKeys({commandC, shiftD, plainA});
        EXPECT_TRUE(desktop.platform.effects().effects().empty()) << "the first key comes on a later turn";
    });
    EXPECT_EQ(seen,
        lines({"0 down 8 command recorded", "15 up 8 command recorded", "45 down 2 shift recorded",
            "60 up 2 shift recorded", "90 down 0 recorded", "105 up 0 recorded"}));
}

TEST_F(KeystrokeSynthesisTest, theKeysOfASequenceDoNotOverlapWhereTheMainLoopWasHeldUp)
{
    const QStringList seen = desktop.transcriptOf([&] {
        desktop.synthesis.executeSequentialKeys({commandC, shiftD, plainA});
        desktop.platform.scheduler().advance(std::chrono::milliseconds(44));
        desktop.platform.scheduler().holdUp(std::chrono::milliseconds(100));
    });
    EXPECT_EQ(seen,
        lines({"0 down 8 command recorded", "15 up 8 command recorded", "144 down 2 shift recorded",
            "144 up 2 shift recorded", "144 down 0 recorded", "144 up 0 recorded"}));
}

TEST_F(KeystrokeSynthesisTest, everyKeyOfASequenceAsksForTestSafeModeItself)
{
    const QStringList seen = desktop.transcriptOf([&] {
        desktop.synthesis.executeSequentialKeys({commandC, shiftD});
        desktop.platform.scheduler().advance(std::chrono::milliseconds(44));
        desktop.runInTestSafeMode();
    });
    EXPECT_EQ(seen, lines({"0 down 8 command recorded", "15 up 8 command recorded"}));
}

TEST_F(KeystrokeSynthesisTest, everyKeyOfAChordCarriesTheModifiersOfAll)
{
    EXPECT_EQ(chord({commandC, shiftD}),
        lines({"0 down 8 shift+command recorded", "0 down 2 shift+command recorded", "25 up 2 shift+command recorded",
            "25 up 8 shift+command recorded"}));
}

TEST_F(KeystrokeSynthesisTest, aChordGoesDownInListOrderAndUpInReverse)
{
    const CustomShortcut plainB = shortcutOf(11, u"B"_qs, EventFlags::none);
    const CustomShortcut plainC = shortcutOf(8, u"C"_qs, EventFlags::none);
    EXPECT_EQ(chord({plainA, plainB, plainC}),
        lines({"0 down 0 recorded", "0 down 11 recorded", "0 down 8 recorded", "25 up 8 recorded", "25 up 11 recorded",
            "25 up 0 recorded"}));
}

TEST_F(KeystrokeSynthesisTest, aKeyNamedTwiceInAChordGoesDownTwiceAndUpTwice)
{
    EXPECT_EQ(chord({commandC, commandC}),
        lines({"0 down 8 command recorded", "0 down 8 command recorded", "25 up 8 command recorded",
            "25 up 8 command recorded"}));
}

TEST_F(KeystrokeSynthesisTest, aChordLeavesOutTheKeyThatCannotBeMade)
{
    desktop.platform.poster().setCanMakeKey(2, false);
    EXPECT_EQ(chord({commandC, shiftD}), lines({"0 down 8 shift+command recorded", "25 up 8 shift+command recorded"}));
}

TEST_F(KeystrokeSynthesisTest, theModeDecidesHowSeveralShortcutsArePlayed)
{
    EXPECT_EQ(multiKey({commandC, plainA}, MultiKeyPlaybackMode::simultaneous),
        lines({"0 down 8 command recorded", "0 down 0 command recorded", "25 up 0 command recorded",
            "25 up 8 command recorded"}));
    EXPECT_EQ(multiKey({commandC, plainA}, MultiKeyPlaybackMode::sequential),
        lines({"0 down 8 command recorded", "15 up 8 command recorded", "45 down 0 recorded", "60 up 0 recorded"}));
}

TEST_F(KeystrokeSynthesisTest, shortcutsThatNameNoKeyAreLeftOut)
{
    EXPECT_EQ(multiKey({}, MultiKeyPlaybackMode::simultaneous), lines({}));
    EXPECT_EQ(multiKey({blank, blank}, MultiKeyPlaybackMode::simultaneous), lines({}));
    EXPECT_EQ(multiKey({blank, commandC, blank, shiftD}, MultiKeyPlaybackMode::sequential),
        lines({"0 down 8 command recorded", "15 up 8 command recorded", "45 down 2 shift recorded",
            "60 up 2 shift recorded"}));
}

TEST_F(KeystrokeSynthesisTest, aSingleValidShortcutIsAPlainKeystrokeWhateverTheMode)
{
    const QStringList plain = lines({"0 down 8 command recorded", "15 up 8 command recorded"});
    EXPECT_EQ(multiKey({blank, commandC}, MultiKeyPlaybackMode::simultaneous), plain);
    EXPECT_EQ(multiKey({blank, commandC}, MultiKeyPlaybackMode::sequential), plain);
}

TEST_F(KeystrokeSynthesisTest, aSingleValidShortcutNeverGoesOutAsAChordSoTestSafeModeHoldsForIt)
{
    desktop.runInTestSafeMode();
    EXPECT_EQ(multiKey({commandC, blank}, MultiKeyPlaybackMode::simultaneous), lines({}));
}

TEST_F(KeystrokeSynthesisTest, aSequenceFromTheProgramsOwnForegroundStartsEightyMillisecondsAfterThePress)
{
    ConfiguredAction config(KeyAction::keyboardShortcut);
    config.customShortcuts = {commandC, shiftD};
    config.multiKeyMode = MultiKeyPlaybackMode::sequential;
    desktop.bringSelfToFront();
    EXPECT_EQ(desktop.run(config),
        lines({"0 use keyboard_shortcut", "0 activate Safari", "80 down 8 command recorded", "95 up 8 command recorded",
            "125 down 2 shift recorded", "140 up 2 shift recorded"}));
}

TEST_F(KeystrokeSynthesisTest, aClickIsReleasedAfterFortyMillisecondsWhereItWentDown)
{
    desktop.platform.pointer().setPosition({3, 4});
    const QStringList seen = desktop.transcriptOf([&] {
        desktop.synthesis.simulateSecondaryClick();
        desktop.platform.pointer().setPosition({500, 600});
    });
    EXPECT_EQ(seen, lines({"0 click down at 3,4", "40 click up at 3,4"}));
}

TEST_F(KeystrokeSynthesisTest, aClickThatCannotBeMadeIsNotPosted)
{
    desktop.platform.poster().setCanMakeClick(false);
    EXPECT_EQ(desktop.transcriptOf([&] { desktop.synthesis.simulateSecondaryClick(); }), lines({}));
}

} // namespace

} // namespace tarvin::test
