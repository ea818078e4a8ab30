#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

TEST(SmartActionsTest, workFocusTogglesMuteAndOpensTheNotes)
{
    PerformingDesktop desktop;
    EXPECT_EQ(desktop.run(KeyAction::smartWorkFocus),
        lines({"0 system mute down", "0 open /System/Applications/Notes.app", "30 system mute up"}));
}

TEST(SmartActionsTest, meetingMuteTogglesMuteAndHidesTheOthers)
{
    PerformingDesktop desktop;
    EXPECT_EQ(desktop.run(KeyAction::smartMeetingMute),
        lines({"0 system mute down", "0 down 4 option+command", "15 up 4 option+command", "30 system mute up"}));
}

TEST(SmartActionsTest, cleanDeskShowsTheDesktop)
{
    PerformingDesktop desktop;
    EXPECT_EQ(desktop.run(KeyAction::smartCleanDesk), lines({"0 down 103", "15 up 103"}));
}

TEST(SmartActionsTest, inTestSafeModeOnlyTheSystemKeyIsLeft)
{
    PerformingDesktop desktop;
    desktop.runInTestSafeMode();
    EXPECT_EQ(desktop.run(KeyAction::smartWorkFocus), lines({"0 system mute down", "30 system mute up"}));
    EXPECT_EQ(desktop.run(KeyAction::smartMeetingMute), lines({"0 system mute down", "30 system mute up"}));
    EXPECT_EQ(desktop.run(KeyAction::smartCleanDesk), lines({}));
}

} // namespace

} // namespace tarvin::test
