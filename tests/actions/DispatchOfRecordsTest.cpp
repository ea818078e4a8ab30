#include "actions/support/ActionsDesktop.h"
#include "actions/support/ExpectedActions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tarvin::test {

namespace {

struct DispatchOfRecordsTest : testing::Test
{
    /// The transcript, without the line that counts the use and must come first.
    QStringList runCounted(const ConfiguredAction& config)
    {
        QStringList seen = desktop.run(config);
        EXPECT_EQ(seen.value(0), u"0 use "_qs + rawValue(config.action).toString());
        return seen.mid(1);
    }

    ActionsDesktop desktop;
};

/// The actions that look at the record. All others do the same with and without one.
constexpr KeyAction actionsWithParameters[] = {KeyAction::screenCapture, KeyAction::screenshotArea,
    KeyAction::screenshotFull, KeyAction::keyboardShortcut, KeyAction::openApplication, KeyAction::openWebURL,
    KeyAction::textSnippet, KeyAction::quickAppFlip, KeyAction::actionChain, KeyAction::forceQuit};

TEST_F(DispatchOfRecordsTest, everyOtherActionDoesTheSameAsByName)
{
    desktop.platform.pointer().setPosition({30, 40});
    for (const ExpectedAction& expected : expectedActions()) {
        if (std::ranges::find(actionsWithParameters, expected.action) != std::ranges::end(actionsWithParameters))
            continue;
        SCOPED_TRACE(rawValue(expected.action).toString().toStdString());
        EXPECT_EQ(runCounted(ConfiguredAction(expected.action)), expected.lines);
    }
}

TEST_F(DispatchOfRecordsTest, theUseIsCountedFirstWhateverTheActionThenDoes)
{
    for (const KeyAction action : allKeyActions) {
        SCOPED_TRACE(rawValue(action).toString().toStdString());
        EXPECT_THAT(desktop.run(ConfiguredAction(action)),
            testing::Contains(testing::Truly([](const QString& line) { return line.startsWith(u"0 use "); })).Times(1));
        EXPECT_EQ(desktop.run(ConfiguredAction(action)).first(), u"0 use "_qs + rawValue(action).toString());
    }
}

TEST_F(DispatchOfRecordsTest, theUseIsCountedInTestSafeModeToo)
{
    desktop.runInTestSafeMode();
    for (const KeyAction action : allKeyActions) {
        SCOPED_TRACE(rawValue(action).toString().toStdString());
        EXPECT_EQ(desktop.run(ConfiguredAction(action)).value(0), u"0 use "_qs + rawValue(action).toString());
    }
}

TEST_F(DispatchOfRecordsTest, theNativeActionsAndUnassignedDoNothingButCount)
{
    for (const KeyAction action : {KeyAction::nativeCapsLock, KeyAction::nativeRightOption,
             KeyAction::nativeRightCommand, KeyAction::nativeFnGlobe, KeyAction::nativeSection, KeyAction::unassigned})
        EXPECT_EQ(desktop.run(ConfiguredAction(action)), QStringList{u"0 use "_qs + rawValue(action).toString()});
}

TEST_F(DispatchOfRecordsTest, everyCaptureActionUsesTheModeOfItsRecord)
{
    for (const KeyAction action : {KeyAction::screenCapture, KeyAction::screenshotArea, KeyAction::screenshotFull}) {
        ConfiguredAction config(action);
        EXPECT_EQ(runCounted(config), lines({"0 executeScreenCapture(Region, Clipboard)"}));
        config.screenCaptureMode = ScreenCaptureMode::window;
        config.screenCaptureDestination = ScreenCaptureDestination::file;
        EXPECT_EQ(runCounted(config), lines({"0 executeScreenCapture(Window, File)"}));
    }
}

TEST_F(DispatchOfRecordsTest, anAreaCaptureOfAScreenRecordTakesTheScreenButByNameItTakesARegion)
{
    ConfiguredAction config(KeyAction::screenshotArea);
    config.screenCaptureMode = ScreenCaptureMode::screen;
    EXPECT_EQ(runCounted(config), lines({"0 executeScreenCapture(Screen, Clipboard)"}));
    EXPECT_EQ(desktop.run(config.action), lines({"0 executeScreenCapture(Region, Clipboard)"}));
}

TEST_F(DispatchOfRecordsTest, aShortcutWithoutKeyIsNoShortcut)
{
    ConfiguredAction config(KeyAction::keyboardShortcut);
    EXPECT_EQ(runCounted(config), lines({"0 notice No shortcut configured"}));
    config.customShortcut = shortcutOf(0, QString(), EventFlags::command);
    EXPECT_EQ(runCounted(config), lines({"0 notice No shortcut configured"}));
}

TEST_F(DispatchOfRecordsTest, keyCodeZeroWithANameIsTheAKey)
{
    ConfiguredAction config(KeyAction::keyboardShortcut);
    config.customShortcut = shortcutOf(0, u"A"_qs, EventFlags::none);
    EXPECT_EQ(runCounted(config), lines({"0 down 0 recorded", "15 up 0 recorded"}));
}

TEST_F(DispatchOfRecordsTest, aKeyCodeWithoutNameIsAKeyToo)
{
    ConfiguredAction config(KeyAction::keyboardShortcut);
    config.customShortcut = shortcutOf(8, QString(), EventFlags::command);
    EXPECT_EQ(runCounted(config), lines({"0 down 8 command recorded", "15 up 8 command recorded"}));
}

TEST_F(DispatchOfRecordsTest, shortcutsArePlayedInTheModeOfTheRecord)
{
    ConfiguredAction config(KeyAction::keyboardShortcut);
    config.customShortcuts = {shortcutOf(8, u"C"_qs, EventFlags::command), shortcutOf(9, u"V"_qs, EventFlags::command)};
    config.multiKeyMode = MultiKeyPlaybackMode::simultaneous;
    EXPECT_EQ(runCounted(config),
        lines({"0 down 8 command recorded", "0 down 9 command recorded", "25 up 9 command recorded",
            "25 up 8 command recorded"}));
    config.multiKeyMode = MultiKeyPlaybackMode::sequential;
    EXPECT_EQ(runCounted(config),
        lines({"0 down 8 command recorded", "15 up 8 command recorded", "45 down 9 command recorded",
            "60 up 9 command recorded"}));
}

TEST_F(DispatchOfRecordsTest, shortcutsWaitForTheApplicationBehindTheProgram)
{
    ConfiguredAction config(KeyAction::keyboardShortcut);
    config.customShortcuts = {shortcutOf(8, u"C"_qs, EventFlags::command)};
    desktop.bringSelfToFront();
    EXPECT_EQ(
        runCounted(config), lines({"0 activate Safari", "80 down 8 command recorded", "95 up 8 command recorded"}));
}

TEST_F(DispatchOfRecordsTest, anApplicationIsOpenedByItsIdentifierAlone)
{
    ConfiguredAction config(KeyAction::openApplication);
    config.customAppName = u"Some Editor"_qs;
    config.customAppPath = u"/Applications/Some Editor.app"_qs;
    EXPECT_EQ(runCounted(config), lines({"0 notice No application configured"}));
    config.customAppBundleId = QString();
    EXPECT_EQ(runCounted(config), lines({"0 notice No application configured"}));
    config.customAppBundleId = u"com.example.editor"_qs;
    EXPECT_EQ(runCounted(config), lines({"0 launchApp(\"com.example.editor\", \"\")"}));
}

TEST_F(DispatchOfRecordsTest, anApplicationThatIsNotInstalledIsAskedForWithAnEmptyPathAndWithoutNotice)
{
    ConfiguredAction config(KeyAction::openApplication);
    config.customAppBundleId = u"com.example.missing"_qs;
    EXPECT_EQ(runCounted(config), lines({"0 launchApp(\"com.example.missing\", \"\")"}));
}

TEST_F(DispatchOfRecordsTest, theAddressOfTheRecordIsOpened)
{
    ConfiguredAction config(KeyAction::openWebURL);
    EXPECT_EQ(runCounted(config), lines({"0 openURL(nothing)"}));
    config.customURL = u"example.org"_qs;
    EXPECT_EQ(runCounted(config), lines({"0 openURL(\"example.org\")"}));
}

TEST_F(DispatchOfRecordsTest, theSnippetOfTheRecordIsInserted)
{
    ConfiguredAction config(KeyAction::textSnippet);
    config.textSnippet = u"Kind regards"_qs;
    EXPECT_EQ(runCounted(config), lines({"0 pasteText(\"Kind regards\")"}));
    desktop.bringSelfToFront();
    EXPECT_EQ(runCounted(config), lines({"0 activate Safari", "80 pasteText(\"Kind regards\")"}));
}

TEST_F(DispatchOfRecordsTest, aSnippetWithoutTextIsTheStandardSignature)
{
    ConfiguredAction config(KeyAction::textSnippet);
    const QStringList signature = lines({"0 pasteText(\"Sent from my MacBook Air via Tarvin\")"});
    EXPECT_EQ(runCounted(config), signature);
    config.textSnippet = QString();
    EXPECT_EQ(runCounted(config), signature);
}

TEST_F(DispatchOfRecordsTest, theCompanionOfTheRecordIsFlippedTo)
{
    ConfiguredAction config(KeyAction::quickAppFlip);
    EXPECT_EQ(runCounted(config), lines({"0 quickFlip(nothing)"}));
    config.quickFlipCompanionBundleId = u"com.example.mail"_qs;
    EXPECT_EQ(runCounted(config), lines({"0 quickFlip(\"com.example.mail\")"}));
}

TEST_F(DispatchOfRecordsTest, theStepsOfTheRecordArePlayed)
{
    ConfiguredAction config(KeyAction::actionChain);
    EXPECT_EQ(runCounted(config), lines({"0 executeActionChain(0 steps)"}));
    config.chainSteps = {ActionChainStep{}, ActionChainStep{}};
    EXPECT_EQ(runCounted(config), lines({"0 executeActionChain(2 steps)"}));
}

TEST_F(DispatchOfRecordsTest, forceQuitFollowsTheModeOfTheRecord)
{
    ConfiguredAction config(KeyAction::forceQuit);
    config.forceQuitMode = ForceQuitMode::activeApp;
    EXPECT_EQ(runCounted(config), lines({"0 forceQuitFrontmostApplication"}));
    config.forceQuitMode = ForceQuitMode::systemDialog;
    EXPECT_EQ(runCounted(config), lines({"0 openSystemForceQuitDialog"}));
}

TEST_F(DispatchOfRecordsTest, aChainByNameSaysSoAndPlaysNothing)
{
    EXPECT_EQ(desktop.run(KeyAction::actionChain), lines({"0 notice Action Chain triggered"}));
}

TEST_F(DispatchOfRecordsTest, anApplicationByNameIsABlankRecord)
{
    EXPECT_EQ(desktop.run(KeyAction::openApplication), lines({"0 executeOpenApplication(blank record)"}));
}

TEST_F(DispatchOfRecordsTest, withNoOtherApplicationTheUseIsCountedAndNothingElseHappens)
{
    desktop.bringSelfToFront();
    desktop.workspace().removeApplication(ActionsDesktop::safariProcess);
    EXPECT_EQ(desktop.run(ConfiguredAction(KeyAction::copy)), lines({"0 use copy"}));
}

} // namespace

} // namespace tarvin::test
