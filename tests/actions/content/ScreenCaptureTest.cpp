#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

class ScreenCaptureTest : public testing::Test
{
protected:
    QStringList capture(ScreenCaptureMode mode, ScreenCaptureDestination destination)
    {
        ConfiguredAction config(KeyAction::screenCapture);
        config.screenCaptureMode = mode;
        config.screenCaptureDestination = destination;
        return desktop.run(config).mid(1);
    }

    PerformingDesktop desktop;
};

TEST_F(ScreenCaptureTest, aCaptureToTheClipboardNamesNoFile)
{
    EXPECT_EQ(capture(ScreenCaptureMode::region, ScreenCaptureDestination::clipboard),
        lines({"0 tool /usr/sbin/screencapture -c -i"}));
    EXPECT_EQ(capture(ScreenCaptureMode::screen, ScreenCaptureDestination::clipboard),
        lines({"0 tool /usr/sbin/screencapture -c"}));
    EXPECT_EQ(capture(ScreenCaptureMode::window, ScreenCaptureDestination::clipboard),
        lines({"0 tool /usr/sbin/screencapture -c -w"}));
}

TEST_F(ScreenCaptureTest, aFileIsNamedByTheLocalDateOnTheDesktop)
{
    desktop.platform.scheduler().setNow(Scheduler::WallClock(std::chrono::milliseconds(1767225600999))); // 2026-01-01
    EXPECT_EQ(capture(ScreenCaptureMode::region, ScreenCaptureDestination::file),
        lines({"0 tool /usr/sbin/screencapture -i /Users/somebody/Desktop/Screen Shot 2026-01-01 at 00.00.00.png"}));
    desktop.platform.scheduler().setNow(Scheduler::WallClock(std::chrono::seconds(1767225600)));
    desktop.platform.userEnvironment().setUtcOffset(-std::chrono::minutes(90));
    EXPECT_EQ(capture(ScreenCaptureMode::screen, ScreenCaptureDestination::file),
        lines({"0 tool /usr/sbin/screencapture /Users/somebody/Desktop/Screen Shot 2025-12-31 at 22.30.00.png"}));
}

TEST_F(ScreenCaptureTest, theRetiredActionTakesItsModeFromTheRecordButNotByName)
{
    ConfiguredAction config(KeyAction::screenshotArea);
    config.screenCaptureMode = ScreenCaptureMode::screen;
    config.screenCaptureDestination = ScreenCaptureDestination::clipboard;
    EXPECT_EQ(desktop.run(config), lines({"0 use screenshot_area", "0 tool /usr/sbin/screencapture -c"}));
    EXPECT_EQ(desktop.run(KeyAction::screenshotArea), lines({"0 tool /usr/sbin/screencapture -c -i"}));
}

TEST_F(ScreenCaptureTest, inTestSafeModeNoPictureIsTaken)
{
    desktop.runInTestSafeMode();
    EXPECT_EQ(capture(ScreenCaptureMode::screen, ScreenCaptureDestination::file), lines({}));
}

} // namespace

} // namespace tarvin::test
