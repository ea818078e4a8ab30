#include "interception/support/InputEvents.h"
#include "interception/support/InterceptionDesktop.h"
#include "interception/support/Printers.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::test {

class HidRoutingTest : public testing::Test
{
protected:
    InterceptionDesktop desktop;
};

TEST_F(HidRoutingTest, oneIsAPressAndZeroIsARelease)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.hid(7, 62, 1);
    EXPECT_EQ(desktop.fired(), "mute");
    EXPECT_EQ(desktop.held(), "F5");
    desktop.hid(7, 62, 0);
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(HidRoutingTest, otherValuesMeanNothing)
{
    desktop.map(FKey::f5, KeyAction::mute);
    for (const std::int64_t value : {-1LL, 2LL, 127LL, 1LL << 32})
        desktop.hid(7, 62, value);
    EXPECT_EQ(desktop.fired(), "");
    desktop.hid(7, 62, 1);
    desktop.hid(7, 62, 1LL << 32);
    EXPECT_EQ(desktop.held(), "F5");
}

TEST_F(HidRoutingTest, theUsagesOfAllPagesLeadToTheirKeys)
{
    desktop.map(FKey::f1, KeyAction::mute);
    desktop.map(FKey::f3, KeyAction::copy);
    desktop.hid(12, 111, 1);
    desktop.hid(0xFF01, 16, 1);
    EXPECT_EQ(desktop.fired(), "mute copy");
}

TEST_F(HidRoutingTest, aUsageThatItsPageDoesNotNameIsDecidedByItsNumber)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.hid(12, 62, 1);
    EXPECT_EQ(desktop.fired(), "mute");
}

TEST_F(HidRoutingTest, anUnknownUsageMeansNothing)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.hid(7, 4, 1);
    EXPECT_EQ(desktop.fired(), "");
}

TEST_F(HidRoutingTest, aFiringIsLoggedAsItsOwn)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.play("hid +F5");
    EXPECT_TRUE(desktop.logLines().contains(u"[IOHID] Intercepted Physical F5 -> Executing: Mute audio"_qs));
}

TEST_F(HidRoutingTest, theMasterSwitchStopsPressesAndReleases)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.play("hid +F5");
    desktop.profile.setInterceptionEnabled(false);
    EXPECT_EQ(desktop.play("500ms | hid -F5 | hid +F5"), "");
    EXPECT_EQ(desktop.held(), "F5");
}

TEST_F(HidRoutingTest, withoutPermissionAKeyFiresAndReachesTheApplicationAsWell)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.platform.permission().setTrusted(false);
    EXPECT_EQ(desktop.play("hid +F5 | tap +F5 | hid -F5 | tap -F5"), "mute");
    EXPECT_EQ(desktop.verdicts(), "pass pass");
    EXPECT_FALSE(desktop.manager().isRunning());
}

TEST_F(HidRoutingTest, aReportFromAnotherThreadIsTakenToTheMainThread)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.manager();
    desktop.platform.scheduler().callOffMain([this] { desktop.hid(7, 62, 1); });
    EXPECT_EQ(desktop.fired(), "");
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.fired(), "mute");
}

TEST_F(HidRoutingTest, handleHIDKeyTakesWhatTheCallbackFound)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.manager().handleHIDKey(7, 62, true);
    EXPECT_EQ(desktop.fired(), "mute");
    desktop.manager().handleHIDKey(7, 62, false);
    EXPECT_EQ(desktop.held(), "");
}

} // namespace tarvin::test
