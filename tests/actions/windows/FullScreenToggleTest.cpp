#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using simulated::AccessibleWindow;
using simulated::WindowPart;

class FullScreenToggleTest : public testing::Test
{
protected:
    QStringList toggleWith(std::vector<AccessibleWindow> windows)
    {
        desktop.platform.windowControl().setWindows(std::move(windows));
        return desktop.run(KeyAction::toggleFullscreen);
    }
    QStringList byScript()
    {
        return lines({"0 notice Full-Screen Mode Toggled"}) + QStringList(scriptLine(0, ToggleFullScreenByScript{}));
    }

    PerformingDesktop desktop;
    AccessibleWindow window{.process = PerformingDesktop::safariProcess, .title = u"a"_qs};
};

TEST_F(FullScreenToggleTest, theButtonIsPressedFirst)
{
    EXPECT_EQ(toggleWith({window}), lines({"0 press AXFullScreenButton of a", "0 notice Full-Screen Mode Toggled"}));
}

TEST_F(FullScreenToggleTest, withoutAButtonTheAttributeIsTurned)
{
    window.unreadable = {WindowPart::fullScreenButton};
    EXPECT_EQ(toggleWith({window}), lines({"0 set AXFullScreen true of a", "0 notice Entered Full-Screen Mode"}));
    window.isFullScreen = true;
    EXPECT_EQ(toggleWith({window}), lines({"0 set AXFullScreen false of a", "0 notice Exited Full-Screen Mode"}));
}

TEST_F(FullScreenToggleTest, aButtonThatDoesNotWorkLeadsToTheAttribute)
{
    window.unwritable = {WindowPart::fullScreenButton};
    EXPECT_EQ(toggleWith({window}),
        lines({"0 press AXFullScreenButton of a refused", "0 set AXFullScreen true of a",
            "0 notice Entered Full-Screen Mode"}));
}

TEST_F(FullScreenToggleTest, anAttributeThatCannotBeReadOrWrittenLeadsToTheScript)
{
    window.unreadable = {WindowPart::fullScreenButton, WindowPart::fullScreen};
    EXPECT_EQ(toggleWith({window}), byScript());
    window.unreadable = {WindowPart::fullScreenButton};
    window.unwritable = {WindowPart::fullScreen};
    EXPECT_EQ(toggleWith({window}), lines({"0 set AXFullScreen true of a refused"}) + byScript());
}

TEST_F(FullScreenToggleTest, withoutWindowOrTargetTheScriptRuns)
{
    EXPECT_EQ(toggleWith({}), byScript());
    desktop.workspace().setFrontmostProcess(std::nullopt);
    EXPECT_EQ(toggleWith({window}), byScript());
}

TEST_F(FullScreenToggleTest, theTargetIsNotBroughtForward)
{
    desktop.bringSelfToFront();
    EXPECT_EQ(toggleWith({window}), lines({"0 press AXFullScreenButton of a", "0 notice Full-Screen Mode Toggled"}));
}

} // namespace

} // namespace tarvin::test
