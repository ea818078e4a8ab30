#include "platform/linux/windows/RandrScreens.h"

#include "platform/linux/windows/WindowsOnX.h"

namespace tarvin::windows {

namespace {

class ScreensOnX : public WindowsOnX
{
protected:
    struct Monitor
    {
        const char* name;
        PixelRect frame;
        bool isPrimary = false;
    };

    /// Divides the one screen of the server into monitors.
    void setMonitors(std::initializer_list<Monitor> monitors) const
    {
        for (const Monitor& monitor : monitors) {
            const PixelRect& frame = monitor.frame;
            const std::string place = std::to_string(frame.width) + "/100x" + std::to_string(frame.height) + "/100+"
                + std::to_string(frame.x) + "+" + std::to_string(frame.y);
            // The monitor that stands for the server's one output goes when another takes that output.
            (void)desktop->ask({"xrandr", "--setmonitor", std::string(monitor.isPrimary ? "*" : "") + monitor.name,
                place, monitor.isPrimary ? "screen" : "none"});
        }
    }

    [[nodiscard]] bool firstIsFree(const Rect& expected) const
    {
        const RandrScreens screens(*connection);
        const bool became = eventually([&] { return screens.screens().front().visibleFrame == expected; });
        EXPECT_EQ(screens.screens().front().visibleFrame, expected);
        return became;
    }
};

} // namespace

TEST_F(ScreensOnX, aScreenWithoutPanelsIsFreeAltogether)
{
    const RandrScreens screens(*connection);
    const std::vector<Screen> all = screens.screens();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_GT(all.front().frame.size.width, 600);
    EXPECT_EQ(all.front().frame.origin, (Point{0, 0}));
    EXPECT_EQ(all.front().visibleFrame, all.front().frame);
    EXPECT_EQ(screens.mainScreen(), all.front());
}

TEST_F(ScreensOnX, aPanelIsLeftFreeWhileItIsThere)
{
    const Rect frame = RandrScreens(*connection).screens().front().frame;
    auto panel = show("panel", "DOCK");
    tell(*panel,
        "numbers _NET_WM_STRUT_PARTIAL 0 0 28 0 0 0 0 0 0 " + std::to_string(int(frame.size.width) - 1) + " 0 0");
    ASSERT_TRUE(firstIsFree({.origin = {0, 28}, .size = {frame.size.width, frame.size.height - 28}}));
    panel.reset();
    EXPECT_TRUE(firstIsFree(frame));
}

TEST_F(ScreensOnX, ofTwoMonitorsThePanelTakesFromItsOwn)
{
    const Size whole = RandrScreens(*connection).screens().front().frame.size;
    const int width = static_cast<int>(whole.width);
    const int height = static_cast<int>(whole.height);
    setMonitors(
        {{"right", {width / 2, 0, width - width / 2, height}, true}, {"left", {0, 0, width / 2, height}, false}});
    const auto panel = show("panel", "DOCK");
    tell(*panel, "numbers _NET_WM_STRUT_PARTIAL 0 0 0 36 0 0 0 0 0 0 0 " + std::to_string(width / 2 - 1));
    const RandrScreens screens(*connection);
    ASSERT_EQ(screens.screens().size(), 2U);
    EXPECT_EQ(screens.screens()[0].frame.origin.x, width / 2) << "the primary one comes first";
    EXPECT_EQ(screens.screens()[0].visibleFrame, screens.screens()[0].frame);
    EXPECT_EQ(screens.screens()[1].visibleFrame,
        (Rect{.origin = {0, 0}, .size = {static_cast<double>(width / 2), static_cast<double>(height - 36)}}));
}

TEST_F(ScreensOnX, theAreasThatAManagerTellsForEachMonitorCount)
{
    // GNOME's top bar is no window and has no strut.
    const auto whole = RandrScreens(*connection).screens().front().frame.size;
    const int width = static_cast<int>(whole.width);
    const int height = static_cast<int>(whole.height);
    setMonitors(
        {{"right", {width / 2, 0, width - width / 2, height}, true}, {"left", {0, 0, width / 2, height}, false}});
    (void)desktop->ask({"xprop", "-root", "-f", "_GTK_WORKAREAS_D0", "32c", "-set", "_GTK_WORKAREAS_D0",
        "0, 0, " + std::to_string(width / 2) + ", " + std::to_string(height) + ", " + std::to_string(width / 2)
            + ", 27, " + std::to_string(width - width / 2) + ", " + std::to_string(height - 27)});
    const RandrScreens screens(*connection);
    ASSERT_EQ(screens.screens().size(), 2U);
    EXPECT_EQ(screens.screens()[0].visibleFrame.origin, (Point{static_cast<double>(width / 2), 27}));
    EXPECT_EQ(screens.screens()[1].visibleFrame, screens.screens()[1].frame);
}

TEST_F(ScreensOnX, theMainScreenIsThatOfTheActiveWindow)
{
    const auto whole = RandrScreens(*connection).screens().front().frame.size;
    const int width = static_cast<int>(whole.width);
    const int height = static_cast<int>(whole.height);
    setMonitors({{"right", {width - 150, 0, 150, height}, true}, {"left", {0, 0, width - 150, height}, false}});
    const RandrScreens screens(*connection);
    EXPECT_EQ(screens.mainScreen(), screens.screens()[0]) << "no window is active";
    const auto client = show("window");
    const std::string window = std::to_string(desktop->windowTitled("window"));
    (void)desktop->ask({"xdotool", "windowmove", window, "0", "0"});
    EXPECT_TRUE(eventually([&] { return screens.mainScreen() == screens.screens()[1]; }));
    (void)desktop->ask({"xdotool", "windowmove", window, std::to_string(width - 200), "0"});
    EXPECT_TRUE(eventually([&] { return screens.mainScreen() == screens.screens()[0]; }));
}

TEST_F(ScreensOnX, aLogicalPointMayHaveSeveralPixels)
{
    const Size pixels = RandrScreens(*connection).screens().front().frame.size;
    const Size points = RandrScreens(*connection, 2).screens().front().frame.size;
    EXPECT_EQ(points, (Size{pixels.width / 2, pixels.height / 2}));
}

} // namespace tarvin::windows
