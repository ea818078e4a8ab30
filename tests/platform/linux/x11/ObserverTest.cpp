#include "model/FKey.h"
#include "platform/linux/x11/InputSession.h"

#include <gtest/gtest.h>

namespace tarvin::x11 {

namespace {

class Observers : public InputSession
{
protected:
    [[nodiscard]] std::string takeSeenGlobally()
    {
        settle();
        return std::exchange(seenGlobally, {});
    }
};

TEST_P(Observers, theGlobalMonitorSeesTheCustomisableKeysAndNothingElse)
{
    watchGlobally();
    keyboard->tap(KEY_A);
    keyboard->chord({KEY_LEFTSHIFT, KEY_F5});
    keyboard->tap(KEY_RIGHTALT);
    keyboard->tap(KEY_MUTE);
    keyboard->tap(KEY_102ND);
    EXPECT_EQ(takeSeenGlobally(), "+f5/S -f5/S ~rightOption/O ~rightOption +media7 -media7 +section -section");
}

TEST_P(Observers, theGlobalMonitorDoesNotSeeWhatTheTapConsumed)
{
    watchGlobally();
    startTap();
    customise({FKey::f5});
    keyboard->tap(KEY_F5);
    keyboard->tap(KEY_F6);
    EXPECT_EQ(takeSeenGlobally(), "+f6 -f6");
}

TEST_P(Observers, theGlobalMonitorDoesNotSeeWhatWePost)
{
    watchGlobally();
    postStroke(virtualKeyCode(FKey::f5));
    EXPECT_EQ(takeClientKeys(), "+f5 -f5");
    EXPECT_EQ(takeSeenGlobally(), "");
}

TEST_P(Observers, theGlobalMonitorSeesTheSummonShortcutWhereNoTapTakesIt)
{
    watchGlobally();
    customise({}, SummonShortcut::taken);
    keyboard->chord({KEY_LEFTALT, KEY_LEFTMETA, KEY_K});
    keyboard->tap(KEY_K);
    EXPECT_EQ(takeSeenGlobally(), "+k/OM");
    customise({}, SummonShortcut::released);
    keyboard->chord({KEY_LEFTALT, KEY_LEFTMETA, KEY_K});
    EXPECT_EQ(takeSeenGlobally(), "");
}

TEST_P(Observers, aMonitorThatWentSeesNothing)
{
    watchGlobally();
    globalMonitor.reset();
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeenGlobally(), "");
}

TEST_P(Observers, theTapSeesTheOtherKeysOnlyWhileTheStudioIsActive)
{
    startTap();
    customise({FKey::f5});
    keyboard->tap(KEY_A);
    EXPECT_EQ(takeSeen(), "");
    EXPECT_EQ(takeClientKeys(), "+a -a");
    taps->setStudioActive(true);
    keyboard->tap(KEY_A);
    keyboard->tap(KEY_F5);
    keyboard->tap(KEY_F6);
    keyboard->tap(KEY_LEFTSHIFT);
    EXPECT_EQ(takeSeen(), "+a -a +f5 -f5 +f6 -f6 ~leftShift/S ~leftShift");
    EXPECT_EQ(takeClientKeys(), "+a -a +f6 -f6 +leftShift -leftShift");
    taps->setStudioActive(false);
    settle();
    seen.clear();
    keyboard->tap(KEY_A);
    EXPECT_EQ(takeSeen(), "");
}

TEST_P(Observers, theTapSeesWhatWePostedWithItsMark)
{
    startTap();
    settle();
    taps->setStudioActive(true);
    postStroke(8);
    EXPECT_EQ(takeSeen(), "!+c !-c");
    EXPECT_EQ(takeClientKeys(), "+c -c");
}

TEST_P(Observers, anotherProgramsPostedKeyIsNotOurs)
{
    watchGlobally();
    endtoend::XClient other(server->display());
    xcb_test_fake_input(
        other.get(), XCB_KEY_PRESS, KEY_F5 + endtoend::keycodeOffset, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    xcb_test_fake_input(
        other.get(), XCB_KEY_RELEASE, KEY_F5 + endtoend::keycodeOffset, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    other.sync();
    EXPECT_EQ(takeSeenGlobally(), "+f5 -f5");
}

} // namespace

INSTANTIATE_TEST_SUITE_P(OnServer, Observers, allServers, serverName);

} // namespace tarvin::x11
