#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using simulated::AccessibleWindow;
using simulated::WindowPart;

/// The screen shows windows from 0,25 to 1440,900.
constexpr Rect visibleFrame{{0, 25}, {1440, 875}};

class WindowSnappingTest : public testing::Test
{
protected:
    WindowSnappingTest() { show({safari(u"a"_qs)}); }

    static AccessibleWindow safari(const QString& title, const Rect& frame = {{100, 100}, {800, 600}})
    {
        return {.process = PerformingDesktop::safariProcess, .title = title, .frame = frame};
    }
    void show(std::vector<AccessibleWindow> windows)
    {
        desktop.platform.windowControl().setWindows(std::move(windows));
    }
    Rect frame(std::size_t index = 0) { return desktop.platform.windowControl().accessibleWindows()[index].frame; }
    QStringList snap(KeyAction action) { return desktop.run(action); }

    PerformingDesktop desktop;
};

TEST_F(WindowSnappingTest, theLeftHalfIsWrittenInThreeSteps)
{
    EXPECT_EQ(snap(KeyAction::snapWindowLeft),
        lines({"0 set AXPosition 0,25 of a", "0 set AXSize 720x875 of a", "0 set AXPosition 0,25 of a",
            "0 notice Window Snapped Left (50%)"}));
}

TEST_F(WindowSnappingTest, theRightHalfBeginsInTheMiddle)
{
    EXPECT_EQ(snap(KeyAction::snapWindowRight),
        lines({"0 set AXPosition 720,25 of a", "0 set AXSize 720x875 of a", "0 set AXPosition 720,25 of a",
            "0 notice Window Snapped Right (50%)"}));
}

TEST_F(WindowSnappingTest, maximiseRestoresTheFrameFromBefore)
{
    EXPECT_EQ(snap(KeyAction::snapWindowMaximize).last(), u"0 notice Window Maximized"_qs);
    EXPECT_EQ(frame(), visibleFrame);
    EXPECT_EQ(snap(KeyAction::snapWindowMaximize).last(), u"0 notice Window Restored"_qs);
    EXPECT_EQ(frame(), (Rect{{100, 100}, {800, 600}}));
    EXPECT_TRUE(desktop.actions.snapping.preSnapFrames().empty());
}

TEST_F(WindowSnappingTest, maximiseAfterSnapsRestoresTheSnappedFrame)
{
    snap(KeyAction::snapWindowLeft);
    snap(KeyAction::snapWindowRight);
    snap(KeyAction::snapWindowMaximize);
    EXPECT_EQ(snap(KeyAction::snapWindowMaximize).last(), u"0 notice Window Restored"_qs);
    EXPECT_EQ(frame(), (Rect{{720, 25}, {720, 875}}));
}

TEST_F(WindowSnappingTest, theFirstOfSeveralSnapsKeepsTheFrameFromBefore)
{
    snap(KeyAction::snapWindowLeft);
    snap(KeyAction::snapWindowRight);
    const auto& saved = desktop.actions.snapping.preSnapFrames();
    ASSERT_EQ(saved.size(), 1U);
    EXPECT_EQ(saved.at(PerformingDesktop::safariProcess), (Rect{{100, 100}, {800, 600}}));
}

TEST_F(WindowSnappingTest, aWindowNearlyAsLargeAsItsScreenCountsAsMaximised)
{
    snap(KeyAction::snapWindowLeft);
    show({safari(u"a"_qs, {{15.9, 40.9}, {1424.1, 859.1}})});
    EXPECT_EQ(snap(KeyAction::snapWindowMaximize).last(), u"0 notice Window Restored"_qs);
    EXPECT_EQ(frame(), (Rect{{100, 100}, {800, 600}}));
}

TEST_F(WindowSnappingTest, sixteenPointsAwayAWindowIsNotMaximised)
{
    snap(KeyAction::snapWindowLeft);
    show({safari(u"a"_qs, {{16, 25}, {1440, 875}})});
    EXPECT_EQ(snap(KeyAction::snapWindowMaximize).last(), u"0 notice Window Maximized"_qs);
    EXPECT_EQ(
        desktop.actions.snapping.preSnapFrames().at(PerformingDesktop::safariProcess), (Rect{{16, 25}, {1440, 875}}));
}

TEST_F(WindowSnappingTest, aMaximisedWindowWithoutASavedFrameIsMaximisedAgain)
{
    show({safari(u"a"_qs, {{10, 30}, {1430, 870}})});
    EXPECT_EQ(snap(KeyAction::snapWindowMaximize),
        lines({"0 set AXPosition 0,25 of a", "0 set AXSize 1440x875 of a", "0 set AXPosition 0,25 of a",
            "0 notice Window Maximized"}));
    EXPECT_TRUE(desktop.actions.snapping.preSnapFrames().empty());
}

TEST_F(WindowSnappingTest, twoWindowsOfOneApplicationShareOneSavedFrame)
{
    show({safari(u"a"_qs), safari(u"b"_qs, {{5, 50}, {300, 300}})});
    snap(KeyAction::snapWindowMaximize);
    show({safari(u"b"_qs, visibleFrame), safari(u"a"_qs, visibleFrame)});
    snap(KeyAction::snapWindowMaximize);
    EXPECT_EQ(frame(), (Rect{{100, 100}, {800, 600}}));
}

TEST_F(WindowSnappingTest, maximiseTakesAWindowOutOfFullScreen)
{
    AccessibleWindow window = safari(u"a"_qs);
    window.isFullScreen = true;
    show({window});
    EXPECT_EQ(
        snap(KeyAction::snapWindowMaximize), lines({"0 set AXFullScreen false of a", "0 notice Window Restored"}));
}

TEST_F(WindowSnappingTest, aWindowOffEveryScreenLandsOnTheMainOne)
{
    const Screen first{.frame = {{0, 0}, {1000, 800}}, .visibleFrame = {{0, 0}, {1000, 800}}};
    const Screen second{.frame = {{1000, 0}, {2000, 1000}}, .visibleFrame = {{1000, 30}, {2000, 970}}};
    desktop.platform.screens().setScreens({first, second});
    desktop.platform.screens().setMainScreen(1);
    show({safari(u"a"_qs, {{-5000, -5000}, {10, 10}})});
    snap(KeyAction::snapWindowLeft);
    EXPECT_EQ(frame(), (Rect{{1000, 30}, {1000, 970}}));
}

TEST_F(WindowSnappingTest, whatCannotBeReadIsZero)
{
    AccessibleWindow window = safari(u"a"_qs);
    window.unreadable = {WindowPart::position, WindowPart::size};
    show({window});
    snap(KeyAction::snapWindowLeft);
    EXPECT_EQ(desktop.actions.snapping.preSnapFrames().at(PerformingDesktop::safariProcess), Rect{});
}

TEST_F(WindowSnappingTest, aRefusedWriteDoesNotStopTheOthers)
{
    AccessibleWindow window = safari(u"a"_qs);
    window.unwritable = {WindowPart::position};
    show({window});
    EXPECT_EQ(snap(KeyAction::snapWindowLeft),
        lines({"0 set AXPosition 0,25 of a refused", "0 set AXSize 720x875 of a", "0 set AXPosition 0,25 of a refused",
            "0 notice Window Snapped Left (50%)"}));
}

TEST_F(WindowSnappingTest, withoutFocusTheFirstWindowIsTaken)
{
    AccessibleWindow window = safari(u"b"_qs);
    window.hasFocus = false;
    show({window});
    EXPECT_EQ(snap(KeyAction::snapWindowLeft).first(), u"0 set AXPosition 0,25 of b"_qs);
}

TEST_F(WindowSnappingTest, withoutAnyWindowTheScriptRunsAndNothingIsSaid)
{
    show({});
    EXPECT_EQ(
        snap(KeyAction::snapWindowRight), QStringList(scriptLine(0, SnapWindowByScript{WindowSnapPosition::right})));
}

TEST_F(WindowSnappingTest, behindTheProgramItselfTheTargetComesForwardFirst)
{
    desktop.bringSelfToFront();
    EXPECT_EQ(snap(KeyAction::snapWindowLeft),
        lines({"0 activate Safari", "60 set AXPosition 0,25 of a", "60 set AXSize 720x875 of a",
            "60 set AXPosition 0,25 of a", "60 notice Window Snapped Left (50%)"}));
}

TEST_F(WindowSnappingTest, withNoOtherApplicationTheProgramSnapsItsOwnWindow)
{
    desktop.workspace().removeApplication(PerformingDesktop::safariProcess);
    desktop.workspace().removeApplication(PerformingDesktop::mailProcess);
    desktop.bringSelfToFront();
    show({{.process = PerformingDesktop::ownProcess, .title = u"Studio"_qs, .frame = {{100, 100}, {800, 600}}}});
    EXPECT_EQ(snap(KeyAction::snapWindowLeft).first(), u"0 set AXPosition 0,25 of Studio"_qs);
}

TEST_F(WindowSnappingTest, withNothingInFrontNothingHappens)
{
    desktop.workspace().setFrontmostProcess(std::nullopt);
    EXPECT_EQ(snap(KeyAction::snapWindowLeft), lines({}));
}

TEST_F(WindowSnappingTest, theSnapWaitsForTheEndOfTheTurn)
{
    desktop.platform.effects().clear();
    desktop.actions.executor.execute(KeyAction::snapWindowLeft);
    EXPECT_EQ(desktop.platform.effects().count<simulated::WindowAttributeSet>(), 0U);
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.platform.effects().count<simulated::WindowAttributeSet>(), 3U);
}

TEST_F(WindowSnappingTest, inTestSafeModeTheWindowMovesAndTheScriptDoesNotRun)
{
    desktop.runInTestSafeMode();
    EXPECT_EQ(snap(KeyAction::snapWindowLeft).size(), 4);
    show({});
    EXPECT_EQ(snap(KeyAction::snapWindowLeft), lines({}));
}

} // namespace

} // namespace tarvin::test
