#include "actions/support/ActionsDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

/// One deed and what is left of it in test-safe mode.
struct Guard
{
    const char* name;
    std::function<void(ActionsDesktop&)> deed;
    QStringList otherwise;
    QStringList inTestSafeMode;
};

std::function<void(ActionsDesktop&)> byName(KeyAction action)
{
    return [action](ActionsDesktop& desktop) { desktop.executor.execute(action); };
}

std::function<void(ActionsDesktop&)> guarded(const std::function<void(GuardedActions&)>& deed)
{
    return [deed](ActionsDesktop& desktop) { deed(desktop.guarded); };
}

QList<CustomShortcut> twoShortcuts()
{
    return {shortcutOf(8, u"C"_qs, EventFlags::command), shortcutOf(9, u"V"_qs, EventFlags::command)};
}

ConfiguredAction systemDialog()
{
    ConfiguredAction config(KeyAction::forceQuit);
    config.forceQuitMode = ForceQuitMode::systemDialog;
    return config;
}

void expectGuards(const std::vector<Guard>& guards)
{
    for (const Guard& guard : guards) {
        SCOPED_TRACE(guard.name);
        ActionsDesktop desktop;
        EXPECT_EQ(desktop.transcriptOf([&] { guard.deed(desktop); }), guard.otherwise);
        ActionsDesktop safe;
        safe.runInTestSafeMode();
        EXPECT_EQ(safe.transcriptOf([&] { guard.deed(safe); }), guard.inTestSafeMode);
    }
}

TEST(TestSafeModeTest, keystrokesAndScriptsAreNotSent)
{
    expectGuards({
        {"simulateKeyStroke",
            [](ActionsDesktop& desktop) {
                desktop.synthesis.simulateKeyStroke(8, EventFlags::command, KeystrokeOrigin::builtIn);
            },
            lines({"0 down 8 command", "15 up 8 command"}), {}},
        {"executeCustomShortcut",
            [](ActionsDesktop& desktop) { desktop.synthesis.executeCustomShortcut(twoShortcuts().first()); },
            lines({"0 down 8 command recorded", "15 up 8 command recorded"}), {}},
        {"executeSequentialKeys",
            [](ActionsDesktop& desktop) { desktop.synthesis.executeSequentialKeys(twoShortcuts()); },
            lines({"0 down 8 command recorded", "15 up 8 command recorded", "45 down 9 command recorded",
                "60 up 9 command recorded"}),
            {}},
        {"runAsyncAppleScript",
            [](ActionsDesktop& desktop) { desktop.scripts.runAsyncAppleScript(PressKeyByScript{.keyCode = 96}); },
            lines({"0 script tell application \"System Events\" to key code 96"}), {}},
        {"dictation", byName(KeyAction::dictation),
            lines({"0 down 96", "0 script tell application \"System Events\" to key code 96", "15 up 96"}), {}},
        {"copy", byName(KeyAction::copy), lines({"0 down 8 command", "0 notice Copied (⌘C)", "15 up 8 command"}),
            lines({"0 notice Copied (⌘C)"})},
    });
}

TEST(TestSafeModeTest, nothingIsOpenedCapturedPlayedOrBroughtForward)
{
    expectGuards({
        {"openURL", guarded([](GuardedActions& actions) { actions.openURL(u"example.org"_qs); }),
            lines({"0 openURL(\"example.org\")"}), {}},
        {"launchApp", guarded([](GuardedActions& actions) { actions.launchApp(u"a"_qs, u"/b"_qs); }),
            lines({"0 launchApp(\"a\", \"/b\")"}), {}},
        {"executeOpenApplication", byName(KeyAction::openApplication),
            lines({"0 executeOpenApplication(blank record)"}), {}},
        {"executeScreenCapture", byName(KeyAction::screenCapture), lines({"0 executeScreenCapture(Region, Clipboard)"}),
            {}},
        {"executeActionChain", guarded([](GuardedActions& actions) { actions.executeActionChain({}); }),
            lines({"0 executeActionChain(0 steps)"}), {}},
        {"quickFlip", byName(KeyAction::quickAppFlip), lines({"0 quickFlip(nothing)"}), {}},
        {"notes", byName(KeyAction::notes),
            lines({"0 launchApp(\"com.apple.Notes\", \"/System/Applications/Notes.app\")"}), {}},
    });
}

TEST(TestSafeModeTest, aSnippetIsNotEvenPrepared)
{
    ActionsDesktop desktop;
    desktop.runInTestSafeMode();
    desktop.bringSelfToFront();
    EXPECT_EQ(desktop.run(KeyAction::textSnippet), lines({}));
    EXPECT_EQ(desktop.run(ConfiguredAction(KeyAction::textSnippet)), lines({"0 use text_snippet"}));
}

TEST(TestSafeModeTest, aPreparationStillBringsTheTargetForward)
{
    ActionsDesktop desktop;
    desktop.runInTestSafeMode();
    desktop.bringSelfToFront();
    EXPECT_EQ(desktop.run(KeyAction::copy), lines({"0 activate Safari", "80 notice Copied (⌘C)"}));
}

TEST(TestSafeModeTest, powerActionsGiveTheirNoticeAndNoCommand)
{
    expectGuards({
        {"executeSystemSleep", byName(KeyAction::sleepDevice), lines({"0 notice Sleeping Mac...", "0 sleepSystem"}),
            lines({"0 notice Sleeping Mac..."})},
        {"executeDisplaySleep", byName(KeyAction::sleepDisplay),
            lines({"0 notice Display Sleeping...", "0 sleepDisplay"}), lines({"0 notice Display Sleeping..."})},
        {"executeSystemShutDown", byName(KeyAction::shutDown),
            lines({"0 notice Shutting Down Mac...", "0 shutDownSystem"}), lines({"0 notice Shutting Down Mac..."})},
        {"executeSystemRestart", byName(KeyAction::restart), lines({"0 notice Restarting Mac...", "0 restartSystem"}),
            lines({"0 notice Restarting Mac..."})},
    });
}

TEST(TestSafeModeTest, theForcedModeMakesSleepANoticeAndNothingElse)
{
    ActionsDesktop desktop;
    desktop.testEnvironment.setSuppressSystemPowerCommandsForTesting(true);
    EXPECT_EQ(desktop.run(KeyAction::sleepDevice), lines({"0 notice Sleeping Mac..."}));
}

TEST(TestSafeModeTest, forceQuitSaysThatItOnlyPretends)
{
    expectGuards({
        {"forceQuitFrontmostApplication", byName(KeyAction::forceQuit), lines({"0 forceQuitFrontmostApplication"}),
            lines({"0 notice Force Quit (Test Mode Simulated)"})},
        {"the system's dialog", [](ActionsDesktop& desktop) { desktop.executor.execute(systemDialog()); },
            lines({"0 use force_quit", "0 openSystemForceQuitDialog"}),
            lines({"0 use force_quit", "0 notice [Test Safe] Open Force Quit dialog simulated"})},
    });
}

/// These act on the machine all the same.
TEST(TestSafeModeTest, whatHasNoGuardActs)
{
    const std::vector<std::pair<KeyAction, QStringList>> unguarded = {
        {KeyAction::mute, lines({"0 toggleMute"})},
        {KeyAction::volumeUp, lines({"0 adjustVolume(6)"})},
        {KeyAction::volumeDown, lines({"0 adjustVolume(-6)"})},
        {KeyAction::brightnessUp, lines({"0 adjustBrightness(0.0625)"})},
        {KeyAction::brightnessDown, lines({"0 adjustBrightness(-0.0625)"})},
        {KeyAction::playPause, lines({"0 executeMediaPlayPause"})},
        {KeyAction::nextTrack, lines({"0 executeMediaNext"})},
        {KeyAction::previousTrack, lines({"0 executeMediaPrevious"})},
        {KeyAction::toggleMicMute, lines({"0 toggleMicrophoneMute"})},
        {KeyAction::advancedClick, lines({"0 click down at 0,0", "40 click up at 0,0"})},
        {KeyAction::snapWindowLeft, lines({"0 snapFrontWindow(left)"})},
        {KeyAction::snapWindowRight, lines({"0 snapFrontWindow(right)"})},
        {KeyAction::snapWindowMaximize, lines({"0 snapFrontWindow(maximize)"})},
        {KeyAction::minimizeWindow, lines({"0 minimizeFrontWindow"})},
        {KeyAction::toggleFullscreen, lines({"0 toggleFrontWindowFullscreen"})},
        {KeyAction::missionControl,
            lines({"0 openApplicationAt(\"/System/Applications/Mission Control.app\")", "0 notice Mission Control"})},
        {KeyAction::aiAssistant, lines({"0 triggerAIAssistant"})},
        {KeyAction::smartWorkFocus, lines({"0 smartWorkFocus"})},
        {KeyAction::smartMeetingMute, lines({"0 smartMeetingMute"})},
        {KeyAction::smartCleanDesk, lines({"0 smartCleanDesk"})},
        {KeyAction::showActionsRing, lines({"0 show ring"})},
        {KeyAction::clipboardHistory, lines({"0 show clipboard"})},
        {KeyAction::floatingScratchpad, lines({"0 show scratchpad"})},
    };
    ActionsDesktop desktop;
    desktop.runInTestSafeMode();
    for (const auto& [action, expected] : unguarded) {
        SCOPED_TRACE(rawValue(action).toString().toStdString());
        EXPECT_EQ(desktop.run(action), expected);
    }
}

TEST(TestSafeModeTest, aChordIsPlayedAllTheSame)
{
    ActionsDesktop desktop;
    desktop.runInTestSafeMode();
    EXPECT_EQ(desktop.transcriptOf([&] { desktop.synthesis.executeSimultaneousKeys(twoShortcuts()); }),
        lines({"0 down 8 command recorded", "0 down 9 command recorded", "25 up 9 command recorded",
            "25 up 8 command recorded"}));
}

TEST(TestSafeModeTest, theExecutorSaysWhetherTheModeHolds)
{
    ActionsDesktop desktop;
    EXPECT_FALSE(desktop.executor.isRunningInTestEnvironment());
    desktop.runInTestSafeMode();
    EXPECT_TRUE(desktop.executor.isRunningInTestEnvironment());
}

} // namespace

} // namespace tarvin::test
