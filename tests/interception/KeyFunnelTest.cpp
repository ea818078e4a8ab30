#include "interception/support/InputEvents.h"
#include "interception/support/InterceptionDesktop.h"
#include "interception/support/Printers.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::test {

using namespace std::chrono_literals;

class KeyFunnelTest : public testing::Test
{
protected:
    InterceptionDesktop desktop;
};

// ---- One press fires once ----

TEST_F(KeyFunnelTest, aShortPressSeenByTwoPathsFiresOnce)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +F5 | 2ms | hid +F5 | 46ms | tap -F5 | 2ms | hid -F5"), "mute");
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(KeyFunnelTest, thePathThatIsFirstFires)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("hid +F5 | 1ms | hidtap +F5 | 1ms | tap +F5 | 1ms | global +F5 | 1ms | local +F5"), "mute");
    EXPECT_EQ(desktop.verdicts(), "consume consume consume");
    EXPECT_TRUE(desktop.logLines().contains(u"[IOHID] Intercepted Physical F5 -> Executing: Mute audio"_qs));
}

TEST_F(KeyFunnelTest, aLateReportOfTheSamePressDoesNotFireAgain)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +F5 | 50ms | tap -F5 | 60ms | hid +F5"), "mute");
}

TEST_F(KeyFunnelTest, oneTopRowKeyIsOneKeyUnderAllItsNumbers)
{
    desktop.map(FKey::f1, KeyAction::mute);
    desktop.tap(keyDown(KeyCode(145)));
    desktop.advance(5ms);
    desktop.tap(mediaDown(mediaBrightnessDown));
    desktop.advance(5ms);
    desktop.hid(12, 111, 1);
    EXPECT_EQ(desktop.fired(), "mute");
    EXPECT_EQ(desktop.held(), "F1");
}

TEST_F(KeyFunnelTest, twoPressesAFifthOfASecondApartFireTwice)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +F5 | 60ms | tap -F5 | 140ms | tap +F5"), "mute mute");
}

TEST_F(KeyFunnelTest, twoPressesATenthOfASecondApartFireOnce)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +F5 | 60ms | tap -F5 | 40ms | tap +F5"), "mute");
}

TEST_F(KeyFunnelTest, aPressSwallowedAsABounceIsNotHeld)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.play("tap +F5 | 60ms | tap -F5 | 40ms | tap +F5");
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(KeyFunnelTest, afterALostReleaseAPressWithinTheWindowDoesNothing)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +F5 | 300ms | tap +F5"), "mute");
    EXPECT_EQ(desktop.held(), "F5");
}

TEST_F(KeyFunnelTest, afterALostReleaseALaterPressFiresAndLogs)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("tap +F5 | 400ms | tap +F5"), "mute mute");
    EXPECT_EQ(desktop.logLines().count(u"[EventTap] Intercepted Physical F5 -> Executing: Mute audio"_qs), 2);
}

TEST_F(KeyFunnelTest, fastTappingFiresAboutFiveAndAHalfTimesASecond)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.manager();
    for (int tap = 0; tap < 100; ++tap)
        desktop.play("tap +F5 | 5ms | tap -F5 | 5ms");
    EXPECT_EQ(desktop.actions.fired.size(), 6U);
}

TEST_F(KeyFunnelTest, twoKeysHeldAtOnceBothFire)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.map(FKey::f6, KeyAction::copy);
    EXPECT_EQ(desktop.play("tap +F5 | 5ms | tap +F6"), "mute copy");
    EXPECT_EQ(desktop.held(), "F5 F6");
}

// ---- What the funnel answers ----

TEST_F(KeyFunnelTest, theResultSaysWhetherTheKeyIsCustomisedNotWhetherItFired)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_TRUE(desktop.manager().triggerPhysicalKey(FKey::f5, TriggerSource::eventTap));
    EXPECT_TRUE(desktop.manager().triggerPhysicalKey(FKey::f5, TriggerSource::eventTap));
    desktop.manager().releasePhysicalKey(FKey::f5);
    EXPECT_TRUE(desktop.manager().triggerPhysicalKey(FKey::f5, TriggerSource::eventTap));
    EXPECT_EQ(desktop.fired(), "mute");
    EXPECT_FALSE(desktop.manager().triggerPhysicalKey(FKey::f6, TriggerSource::eventTap));
}

TEST_F(KeyFunnelTest, withTheMasterSwitchOffNothingFires)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.profile.setInterceptionEnabled(false);
    EXPECT_FALSE(desktop.manager().triggerPhysicalKey(FKey::f5, TriggerSource::eventTap));
    EXPECT_EQ(desktop.held(), "");
    EXPECT_EQ(desktop.fired(), "");
}

TEST_F(KeyFunnelTest, aKeyThatIsNotCustomisedIsNotHeld)
{
    EXPECT_FALSE(desktop.manager().triggerPhysicalKey(FKey::f5, TriggerSource::eventTap));
    EXPECT_EQ(desktop.held(), "");
    EXPECT_EQ(desktop.manager().pressLedger().lastHandledKeyTime(FKey::f5), 0);
}

TEST_F(KeyFunnelTest, theTimeOfAFiringIsTheUptime)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.platform.scheduler().setUptime(4711.5);
    desktop.play("tap +F5 | 300ms | tap -F5");
    EXPECT_EQ(desktop.manager().pressLedger().lastHandledKeyTime(FKey::f5), 4711.5);
}

// ---- What a firing does ----

TEST_F(KeyFunnelTest, aFiringLogsItsSourceItsKeyAndItsAction)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.map(FKey::fnGlobe, KeyAction::copy);
    desktop.map(FKey::f12, KeyAction::paste);
    desktop.play("tap +F5 | tap +FnGlobe | tap +media0");
    const QStringList lines = desktop.logLines().filter(u"Intercepted"_qs);
    EXPECT_EQ(lines,
        (QStringList{u"[EventTap] Intercepted Physical F5 -> Executing: Mute audio"_qs,
            u"[EventTap-Flags] Intercepted Physical FnGlobe -> Executing: Copy"_qs,
            u"[EventTap-Media] Intercepted Physical F12 -> Executing: Paste"_qs}));
}

TEST_F(KeyFunnelTest, aTitleWithPlaceholdersIsLoggedAsItIs)
{
    ConfiguredAction snippet(KeyAction::textSnippet);
    snippet.textSnippet = u"%1 %2 %3"_qs;
    desktop.profile.setConfig(snippet, FKey::f5);
    desktop.play("tap +F5");
    EXPECT_TRUE(
        desktop.logLines().contains(u"[EventTap] Intercepted Physical F5 -> Executing: "_qs + snippet.displayTitle()));
    EXPECT_EQ(desktop.notice.lastTriggeredInfo(), u"Pressed physical F5 → Executing "_qs + snippet.displayTitle());
}

TEST_F(KeyFunnelTest, aFiringIsAnnouncedBeforeItsActionRuns)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.actions.onExecute = [this](const ConfiguredAction&) {
        EXPECT_EQ(desktop.notice.lastTriggeredInfo(), u"Pressed physical F5 → Executing Mute audio"_qs);
        EXPECT_EQ(desktop.held(), "F5");
        EXPECT_EQ(desktop.strokes(), "+F5");
    };
    desktop.showStudio();
    EXPECT_EQ(desktop.play("tap +F5"), "mute");
}

TEST_F(KeyFunnelTest, theActionGetsTheWholeRecord)
{
    ConfiguredAction snippet(KeyAction::textSnippet);
    snippet.textSnippet = u"Kind regards"_qs;
    desktop.profile.setConfig(snippet, FKey::f5);
    desktop.play("tap +F5");
    ASSERT_EQ(desktop.actions.fired.size(), 1U);
    EXPECT_TRUE(desktop.actions.fired.front() == snippet);
}

TEST_F(KeyFunnelTest, anActionMayRemoveTheMappingThatItCameFrom)
{
    ConfiguredAction snippet(KeyAction::textSnippet);
    snippet.textSnippet = QString(100, u'x');
    desktop.profile.setConfig(snippet, FKey::f5);
    desktop.actions.onExecute = [this](const ConfiguredAction& config) {
        desktop.profile.resetAllProfilesToDefaults();
        EXPECT_EQ(config.textSnippet, QString(100, u'x'));
    };
    EXPECT_EQ(desktop.play("tap +F5 | tap -F5"), "text_snippet");
    EXPECT_EQ(desktop.verdicts(), "consume pass");
}

TEST_F(KeyFunnelTest, aFiringAnimatesTheKeyWithASound)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.showStudio();
    desktop.play("tap +F5 | 30ms | tap -F5");
    EXPECT_EQ(desktop.strokes(), "+F5 -F5");
}

TEST_F(KeyFunnelTest, aKeyThatMinimisesTheWindowIsAnimatedWithoutASound)
{
    desktop.map(FKey::f5, KeyAction::minimizeWindow);
    desktop.showStudio();
    desktop.play("tap +F5");
    EXPECT_EQ(desktop.strokes(), "(+F5)");
}

TEST_F(KeyFunnelTest, aDuplicateIsNotAnimatedAndNotLogged)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.showStudio();
    desktop.play("tap +F5 | 10ms | hid +F5");
    EXPECT_EQ(desktop.strokes(), "+F5");
    EXPECT_EQ(desktop.logLines().filter(u"Intercepted"_qs).size(), 1);
}

TEST_F(KeyFunnelTest, nothingIsAnimatedUnlessTheStudioIsWatched)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.play("tap +F5 | tap -F5");
    desktop.studio.visible = true;
    desktop.play("500ms | tap +F5 | tap -F5");
    EXPECT_EQ(desktop.strokes(), "");
}

// ---- Releases ----

TEST_F(KeyFunnelTest, aReleaseHasNoCondition)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.showStudio();
    desktop.play("tap +F5");
    desktop.profile.setInterceptionEnabled(false);
    desktop.manager().releasePhysicalKey(FKey::f5);
    desktop.manager().releasePhysicalKey(FKey::f13);
    EXPECT_EQ(desktop.held(), "");
    EXPECT_EQ(desktop.strokes(), "+F5 -F5 -F13");
}

TEST_F(KeyFunnelTest, aReleaseKeepsTheTimeOfTheFiring)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.play("tap +F5 | 50ms");
    const double fired = desktop.manager().pressLedger().lastHandledKeyTime(FKey::f5);
    desktop.manager().releasePhysicalKey(FKey::f5);
    EXPECT_EQ(desktop.manager().pressLedger().lastHandledKeyTime(FKey::f5), fired);
}

TEST_F(KeyFunnelTest, aKeyThatLosesItsMappingWhileHeldIsRepairedByItsNextPress)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.play("tap +F5 | 100ms");
    desktop.profile.resetToDefault(FKey::f5);
    desktop.play("tap -F5");
    EXPECT_EQ(desktop.verdicts(), "pass");
    EXPECT_EQ(desktop.held(), "F5");
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("1000ms | tap +F5 | 50ms | tap -F5"), "mute");
    EXPECT_EQ(desktop.held(), "");
}

} // namespace tarvin::test
