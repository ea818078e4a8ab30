#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using simulated::AccessibleWindow;
using simulated::WindowKind;
using simulated::WindowPart;

class WindowMinimizingTest : public testing::Test
{
protected:
    QStringList minimizeWith(std::vector<AccessibleWindow> windows)
    {
        desktop.platform.windowControl().setWindows(std::move(windows));
        return desktop.run(KeyAction::minimizeWindow);
    }
    QStringList byScript()
    {
        return lines({"0 notice Window Minimized"}) + QStringList(scriptLine(0, MinimizeWindowByScript{}));
    }

    PerformingDesktop desktop;
    AccessibleWindow window{.process = PerformingDesktop::safariProcess, .title = u"a"_qs};
};

TEST_F(WindowMinimizingTest, theAttributeIsSet)
{
    EXPECT_EQ(minimizeWith({window}), lines({"0 set AXMinimized true of a", "0 notice Window Minimized"}));
}

TEST_F(WindowMinimizingTest, aRefusedAttributeLeadsToTheButton)
{
    window.unwritable = {WindowPart::minimized};
    EXPECT_EQ(minimizeWith({window}),
        lines({"0 set AXMinimized true of a refused", "0 press AXMinimizeButton of a", "0 notice Window Minimized"}));
}

TEST_F(WindowMinimizingTest, failingBothTheScriptRuns)
{
    window.unwritable = {WindowPart::minimized, WindowPart::minimizeButton};
    EXPECT_EQ(minimizeWith({window}),
        lines({"0 set AXMinimized true of a refused", "0 press AXMinimizeButton of a refused"}) + byScript());
    EXPECT_EQ(minimizeWith({}), byScript());
}

TEST_F(WindowMinimizingTest, theProgramInFrontMinimisesItsOwnWindow)
{
    simulated::SimulatedWindow& studio = desktop.platform.appShell().addWindow(u"Studio"_qs);
    simulated::SimulatedWindow& other = desktop.platform.appShell().addWindow(u"Other"_qs);
    desktop.mainWindow = &other;
    desktop.bringSelfToFront();
    EXPECT_EQ(minimizeWith({window}), lines({"0 window Other miniaturized", "0 notice Window Minimized"}));
    EXPECT_TRUE(other.isMiniaturized());
    EXPECT_FALSE(studio.isMiniaturized());
}

TEST_F(WindowMinimizingTest, withoutAStudioTheWindowWithTheKeyboardIsTaken)
{
    desktop.platform.appShell().addWindow(u"First"_qs);
    simulated::SimulatedWindow& key = desktop.platform.appShell().addWindow(u"Key"_qs);
    desktop.bringSelfToFront();
    key.makeKeyAndOrderFront();
    EXPECT_EQ(minimizeWith({window}), lines({"0 window Key miniaturized", "0 notice Window Minimized"}));
}

TEST_F(WindowMinimizingTest, withoutAKeyWindowTheFirstThatIsNoPanelIsTaken)
{
    desktop.platform.appShell().addWindow(u"Panel"_qs, WindowKind::panel);
    desktop.platform.appShell().addWindow(u"Sheet"_qs);
    desktop.bringSelfToFront();
    EXPECT_EQ(minimizeWith({window}), lines({"0 window Sheet miniaturized", "0 notice Window Minimized"}));
}

TEST_F(WindowMinimizingTest, aProgramInFrontWithoutWindowsMinimisesItsTargets)
{
    desktop.platform.appShell().addWindow(u"Panel"_qs, WindowKind::panel);
    desktop.bringSelfToFront();
    EXPECT_EQ(minimizeWith({window}), lines({"0 set AXMinimized true of a", "0 notice Window Minimized"}));
}

TEST_F(WindowMinimizingTest, withNothingInFrontNothingHappens)
{
    desktop.workspace().setFrontmostProcess(std::nullopt);
    EXPECT_EQ(minimizeWith({window}), lines({}));
}

} // namespace

} // namespace tarvin::test
