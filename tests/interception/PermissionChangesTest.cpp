#include "interception/support/InterceptionDesktop.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// How the taps follow the permission while the program runs.

namespace tarvin::test {

using namespace simulated;
using namespace std::chrono_literals;
using testing::ElementsAre;

class PermissionChangesTest : public testing::Test
{
protected:
    SimulatedInputTaps& taps() { return desktop.platform.inputTaps(); }
    bool hasTap(TapLocation location) { return taps().hasTap(location); }

    InterceptionDesktop desktop;
};

TEST_F(PermissionChangesTest, permissionGivenLaterIsNoticedWithinTwoSeconds)
{
    desktop.platform.permission().setTrusted(false);
    desktop.manager();
    desktop.platform.permission().setTrusted(true);
    desktop.advance(1999ms);
    EXPECT_FALSE(desktop.manager().isRunning());
    desktop.advance(1ms);
    EXPECT_TRUE(desktop.manager().isRunning());
    EXPECT_TRUE(desktop.manager().hasAccessibilityPermission());
    EXPECT_EQ(desktop.platform.scheduler().runningTimers(), 0U);
    EXPECT_TRUE(taps().hasGlobalMonitor());
}

TEST_F(PermissionChangesTest, thePermissionIsLookedAtAgainAndAgain)
{
    desktop.platform.permission().setTrusted(false);
    desktop.manager();
    desktop.advance(61s);
    EXPECT_EQ(desktop.platform.scheduler().runningTimers(), 1U);
    desktop.platform.permission().setTrusted(true);
    desktop.advance(1s);
    EXPECT_TRUE(desktop.manager().isRunning());
}

TEST_F(PermissionChangesTest, permissionWithdrawnIsNoticedAtTheNextActivation)
{
    desktop.manager();
    desktop.platform.permission().setTrusted(false);
    desktop.advance(10s);
    EXPECT_TRUE(desktop.manager().isRunning());
    desktop.platform.appShell().becomeActive();
    EXPECT_FALSE(desktop.manager().isRunning());
    EXPECT_FALSE(desktop.manager().hasAccessibilityPermission());
    EXPECT_FALSE(hasTap(TapLocation::session));
    EXPECT_FALSE(hasTap(TapLocation::hid));
    EXPECT_EQ(desktop.platform.scheduler().runningTimers(), 1U);
    EXPECT_EQ(desktop.logLines().last(), u"[Tarvin] Event tap stopped.");
}

TEST_F(PermissionChangesTest, permissionGivenBackBringsBackTheTapsButNotTheMonitors)
{
    desktop.manager();
    desktop.platform.permission().setTrusted(false);
    desktop.manager().checkPermissionAndStart();
    desktop.platform.permission().setTrusted(true);
    desktop.advance(2s);
    EXPECT_TRUE(desktop.manager().isRunning());
    EXPECT_TRUE(hasTap(TapLocation::session));
    EXPECT_TRUE(hasTap(TapLocation::hid));
    EXPECT_EQ(desktop.platform.scheduler().runningTimers(), 0U);
    EXPECT_FALSE(taps().hasGlobalMonitor());
    EXPECT_FALSE(taps().hasLocalMonitor());
}

TEST_F(PermissionChangesTest, aFurtherCheckWithoutPermissionKeepsTheMonitorsRhythm)
{
    desktop.platform.permission().setTrusted(false);
    desktop.manager();
    desktop.advance(1500ms);
    desktop.manager().checkPermissionAndStart();
    desktop.platform.permission().setTrusted(true);
    desktop.advance(500ms);
    EXPECT_TRUE(desktop.manager().isRunning());
}

TEST_F(PermissionChangesTest, aTapThatTheSystemSwitchedOffSilentlyIsSwitchedOnAtTheNextActivation)
{
    desktop.manager();
    taps().disableSilently(TapLocation::session);
    desktop.platform.effects().clear();
    desktop.platform.appShell().becomeActive();
    EXPECT_THAT(
        desktop.platform.effects().all<TapChanged>(), ElementsAre(TapChanged{TapLocation::session, TapStep::enabled}));
}

TEST_F(PermissionChangesTest, withTheMasterSwitchOffTheTapsStayAndPassEverything)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.profile.setInterceptionEnabled(false);
    desktop.platform.appShell().becomeActive();
    EXPECT_TRUE(desktop.manager().isRunning());
    EXPECT_EQ(desktop.play("tap +F5 | tap -F5"), "");
    EXPECT_EQ(desktop.verdicts(), "pass pass");
}

} // namespace tarvin::test
