#include "interception/support/InputEvents.h"
#include "interception/support/InterceptionDesktop.h"
#include "interception/support/Printers.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::test {

using namespace std::chrono_literals;

namespace {

constexpr EventFlags summon = EventFlags::option | EventFlags::command;

} // namespace

class TapRoutingTest : public testing::Test
{
protected:
    InterceptionDesktop desktop;
};

// ---- The tap was switched off ----

TEST_F(TapRoutingTest, aTapSwitchedOffByTimeoutIsSwitchedOnAgainAtOnce)
{
    desktop.manager();
    desktop.platform.inputTaps().disableBySystem(TapLocation::session, InputEventType::tapDisabledByTimeout);
    EXPECT_TRUE(desktop.platform.inputTaps().isTapEnabled(TapLocation::session));
}

TEST_F(TapRoutingTest, aTapSwitchedOffByUserInputIsSwitchedOnAgainAtOnce)
{
    desktop.manager();
    desktop.platform.inputTaps().disableBySystem(TapLocation::hid, InputEventType::tapDisabledByUserInput);
    EXPECT_TRUE(desktop.platform.inputTaps().isTapEnabled(TapLocation::hid));
}

TEST_F(TapRoutingTest, bothTapsAreSwitchedOnWhicheverWasSwitchedOff)
{
    desktop.manager();
    desktop.platform.inputTaps().disableSilently(TapLocation::hid);
    desktop.platform.inputTaps().disableBySystem(TapLocation::session);
    EXPECT_TRUE(desktop.platform.inputTaps().isTapEnabled(TapLocation::session));
    EXPECT_TRUE(desktop.platform.inputTaps().isTapEnabled(TapLocation::hid));
}

TEST_F(TapRoutingTest, theNewsOfASwitchedOffTapPassesAndLogsNothing)
{
    desktop.manager().setForceActiveForTesting(false);
    desktop.profile.setInterceptionEnabled(false);
    const QStringList before = desktop.logLines();
    EXPECT_EQ(desktop.manager().handleEvent({.type = InputEventType::tapDisabledByTimeout}), EventVerdict::pass);
    EXPECT_EQ(desktop.logLines(), before);
}

TEST_F(TapRoutingTest, theOnlyTapThereIsSwitchedOn)
{
    desktop.platform.inputTaps().setTapAvailable(TapLocation::session, false);
    desktop.manager();
    desktop.platform.inputTaps().disableBySystem(TapLocation::hid);
    EXPECT_TRUE(desktop.platform.inputTaps().isTapEnabled(TapLocation::hid));
}

// ---- Events of our own ----

TEST_F(TapRoutingTest, theKeysOfAShortcutActionPassBothTapsAndAreDroppedBeforeOurOwnWindow)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.showStudio();
    const InputEvent posted = selfPosted(keyDown(FKey::f5));
    EXPECT_EQ(desktop.tap(TapLocation::hid, posted), EventVerdict::pass);
    EXPECT_EQ(desktop.tap(TapLocation::session, posted), EventVerdict::pass);
    EXPECT_EQ(desktop.local(posted), EventVerdict::consume);
    desktop.global(posted);
    EXPECT_EQ(desktop.fired(), "");
    EXPECT_EQ(desktop.strokes(), "");
}

// ---- The summon shortcut ----

TEST_F(TapRoutingTest, optionCommandKOpensTheStudioOnALaterTurn)
{
    EXPECT_EQ(desktop.tap(keyDown(keyK, summon)), EventVerdict::consume);
    EXPECT_EQ(desktop.studio.opened, 0);
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.studio.opened, 1);
}

TEST_F(TapRoutingTest, aHeldSummonShortcutOpensTheStudioAgainAtEachRepeat)
{
    desktop.tap(keyDown(keyK, summon));
    EXPECT_EQ(desktop.tap(keyRepeat(keyK, summon)), EventVerdict::consume);
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.studio.opened, 2);
}

TEST_F(TapRoutingTest, withTheMasterSwitchOffTheSummonShortcutWorksAndEveryOtherKeyPasses)
{
    for (const FKey key : allFKeys)
        desktop.map(key, KeyAction::mute);
    desktop.profile.setInterceptionEnabled(false);
    EXPECT_EQ(desktop.tap(keyDown(keyK, summon)), EventVerdict::consume);
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.studio.opened, 1);
    for (int code = 0; code < 256; ++code)
        EXPECT_EQ(desktop.tap(keyDown(static_cast<KeyCode>(code))), EventVerdict::pass) << code;
    EXPECT_EQ(desktop.fired(), "");
}

TEST_F(TapRoutingTest, otherModifiersHeldAtTheSameTimeDoNotMatterToTheSummonShortcut)
{
    EXPECT_EQ(desktop.tap(keyDown(keyK, summon | EventFlags::shift)), EventVerdict::consume);
    EXPECT_EQ(desktop.tap(keyDown(keyK, summon | EventFlags::control | EventFlags::function)), EventVerdict::consume);
}

TEST_F(TapRoutingTest, oneModifierIsNotEnoughToSummon)
{
    EXPECT_EQ(desktop.tap(keyDown(keyK, EventFlags::option)), EventVerdict::pass);
    EXPECT_EQ(desktop.tap(keyDown(keyK, EventFlags::command | EventFlags::shift)), EventVerdict::pass);
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.studio.opened, 0);
}

TEST_F(TapRoutingTest, anotherKeyWithTheModifiersDoesNotSummon)
{
    EXPECT_EQ(desktop.tap(keyDown(KeyCode(37), summon)), EventVerdict::pass);
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.studio.opened, 0);
}

TEST_F(TapRoutingTest, aDisabledSummonShortcutPasses)
{
    desktop.studio.summonEnabled = false;
    EXPECT_EQ(desktop.tap(keyDown(keyK, summon)), EventVerdict::pass);
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.studio.opened, 0);
}

// ---- Media keys ----

TEST_F(TapRoutingTest, onlyTheMediaKeyOfTheCustomisedKeyIsConsumedWithItsRelease)
{
    desktop.map(FKey::f1, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +media3 | 30ms | tap -media3 | tap +media2 | tap -media2"), "mute");
    EXPECT_EQ(desktop.verdicts(), "consume consume pass pass");
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(TapRoutingTest, aHeldMediaKeyFiresOnce)
{
    desktop.map(FKey::f12, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +media0 | 500ms | tap ~media0 | 80ms | tap ~media0 | tap -media0"), "mute");
    EXPECT_EQ(desktop.verdicts(), "consume consume consume consume");
}

TEST_F(TapRoutingTest, aSystemEventThatIsNoMediaKeyPasses)
{
    desktop.map(FKey::f12, KeyAction::mute);
    InputEvent opaque = mediaDown(mediaSoundUp);
    opaque.systemDefined.reset();
    EXPECT_EQ(desktop.tap(opaque), EventVerdict::pass);
    EXPECT_EQ(desktop.tap(systemDefined(1, mediaSoundUp << 16 | 0x0A00)), EventVerdict::pass);
    EXPECT_EQ(desktop.fired(), "");
}

TEST_F(TapRoutingTest, aMediaKeyThatIsNotCustomisedIsNotAnimated)
{
    desktop.showStudio();
    desktop.play("tap +media3 | tap -media3");
    EXPECT_EQ(desktop.strokes(), "");
}

// ---- Customised keys ----

TEST_F(TapRoutingTest, aKeyHeldDownFiresOnceAndItsRepeatsAndReleaseAreConsumed)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +F5 | 400ms | tap ~F5 | 30ms | tap ~F5 | 30ms | tap ~F5 | tap -F5"), "mute");
    EXPECT_EQ(desktop.verdicts(), "consume consume consume consume consume");
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(TapRoutingTest, theGlobeKeyFiresWithItsFlagSetAndIsReleasedWithItClear)
{
    desktop.map(FKey::fnGlobe, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +FnGlobe"), "mute");
    EXPECT_EQ(desktop.verdicts(), "consume");
    EXPECT_EQ(desktop.held(), "FnGlobe");
    EXPECT_EQ(desktop.play("tap -FnGlobe"), "");
    EXPECT_EQ(desktop.verdicts(), "consume");
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(TapRoutingTest, aCustomisedCapsLockFiresAndIsReleasedByTurns)
{
    desktop.map(FKey::capsLock, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +CapsLock"), "mute");
    EXPECT_EQ(desktop.held(), "CapsLock");
    EXPECT_EQ(desktop.play("400ms | tap +CapsLock"), "");
    EXPECT_EQ(desktop.held(), "");
    EXPECT_EQ(desktop.play("400ms | tap +CapsLock"), "mute");
    EXPECT_EQ(desktop.verdicts(), "consume");
}

TEST_F(TapRoutingTest, whileTheLeftTwinIsHeldTheReleaseOfARightModifierIsADuplicate)
{
    desktop.map(FKey::rightOption, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +RightOption | 100ms | tap +RightOption"), "mute");
    EXPECT_EQ(desktop.verdicts(), "consume consume");
    EXPECT_EQ(desktop.held(), "RightOption");
    EXPECT_EQ(desktop.play("200ms | tap -RightOption"), "");
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(TapRoutingTest, aLeftHandModifierIsNoCustomisableKey)
{
    desktop.map(FKey::rightOption, KeyAction::mute);
    EXPECT_EQ(desktop.tap(flagsChanged(KeyCode(58), EventFlags::option)), EventVerdict::pass);
    EXPECT_EQ(desktop.fired(), "");
}

TEST_F(TapRoutingTest, modifiersHeldWithACustomisedKeyDoNotMatter)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.tap(keyDown(FKey::f5, EventFlags::command | EventFlags::shift)), EventVerdict::consume);
    EXPECT_EQ(desktop.fired(), "mute");
}

TEST_F(TapRoutingTest, theVerdictFollowsTheFrontApplication)
{
    desktop.manager();
    desktop.profile.setCurrentProfile(AppProfile::safari());
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.profile.setCurrentProfile(AppProfile::global());
    EXPECT_EQ(desktop.play("tap +F5 | tap -F5"), "");
    EXPECT_EQ(desktop.verdicts(), "pass pass");
    desktop.platform.workspace().setFrontmost({.processIdentifier = 7,
        .bundleIdentifiers = {QStringLiteral("com.apple.Safari")},
        .localizedName = QStringLiteral("Safari")});
    EXPECT_EQ(desktop.play("500ms | tap +F5 | tap -F5"), "mute");
    EXPECT_EQ(desktop.verdicts(), "consume consume");
}

TEST_F(TapRoutingTest, theHidTapConsumesAPressThatTheSessionTapWouldHaveFired)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("hidtap +F5 | tap +F5 | hidtap -F5 | tap -F5"), "mute");
    EXPECT_EQ(desktop.verdicts(), "consume consume consume consume");
}

// ---- Off the main thread ----

TEST_F(TapRoutingTest, offTheMainThreadTheVerdictDoesNotWaitForTheAction)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.manager();
    desktop.platform.scheduler().callOffMain(
        [this] { EXPECT_EQ(desktop.manager().handleEvent(keyDown(FKey::f5)), EventVerdict::consume); });
    EXPECT_EQ(desktop.fired(), "");
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.fired(), "mute");
    EXPECT_EQ(desktop.held(), "F5");

    desktop.platform.scheduler().callOffMain(
        [this] { EXPECT_EQ(desktop.manager().handleEvent(keyUp(FKey::f5)), EventVerdict::consume); });
    EXPECT_EQ(desktop.held(), "F5");
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(TapRoutingTest, aReportThatArrivesAfterTheEndIsDropped)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.manager();
    desktop.platform.scheduler().callOffMain(
        [this] { EXPECT_EQ(desktop.manager().handleEvent(keyDown(FKey::f5)), EventVerdict::consume); });
    desktop.destroyManager();
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.fired(), "");
}

} // namespace tarvin::test
