#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

class PowerCommandsTest : public testing::Test
{
protected:
    void runFinder() { desktop.runApplication(400, u"Finder"_qs, {u"com.apple.finder"_qs}); }

    PerformingDesktop desktop;
};

TEST_F(PowerCommandsTest, sleepIsAskedForByEveryRoad)
{
    runFinder();
    EXPECT_EQ(desktop.run(KeyAction::sleepDevice),
        lines({"0 notice Sleeping Mac...", "0 tool /usr/bin/pmset sleepnow",
            "0 script tell application \"Finder\" to sleep", "0 script tell application \"System Events\" to sleep",
            "0 menu Sleep"}));
}

TEST_F(PowerCommandsTest, theDisplaySleepsByOneRoad)
{
    EXPECT_EQ(desktop.run(KeyAction::sleepDisplay),
        lines({"0 notice Display Sleeping...", "0 tool /usr/bin/pmset displaysleepnow"}));
}

TEST_F(PowerCommandsTest, shuttingDownIsAskedForByEveryRoad)
{
    runFinder();
    EXPECT_EQ(desktop.run(KeyAction::shutDown),
        lines({"0 notice Shutting Down Mac...", "0 login window shut down",
            "0 tool /usr/bin/osascript -e tell application \"System Events\" to shut down",
            "0 script tell application \"System Events\" to shut down",
            "0 script tell application \"Finder\" to shut down", "0 menu Shut Down…"}));
}

TEST_F(PowerCommandsTest, restartingIsAskedForByEveryRoad)
{
    runFinder();
    EXPECT_EQ(desktop.run(KeyAction::restart),
        lines({"0 notice Restarting Mac...", "0 login window restart",
            "0 tool /usr/bin/osascript -e tell application \"System Events\" to restart",
            "0 script tell application \"System Events\" to restart", "0 script tell application \"Finder\" to restart",
            "0 menu Restart…"}));
}

TEST_F(PowerCommandsTest, withoutTheFileManagerTheMenuIsLeftOut)
{
    EXPECT_FALSE(desktop.run(KeyAction::restart).contains(u"0 menu Restart…"_qs));
}

TEST_F(PowerCommandsTest, inTestSafeModeOnlyTheNoticeIsGiven)
{
    runFinder();
    desktop.runInTestSafeMode();
    EXPECT_EQ(desktop.run(KeyAction::sleepDevice), lines({"0 notice Sleeping Mac..."}));
    EXPECT_EQ(desktop.run(KeyAction::sleepDisplay), lines({"0 notice Display Sleeping..."}));
    EXPECT_EQ(desktop.run(KeyAction::shutDown), lines({"0 notice Shutting Down Mac..."}));
    EXPECT_EQ(desktop.run(KeyAction::restart), lines({"0 notice Restarting Mac..."}));
}

} // namespace

} // namespace tarvin::test
