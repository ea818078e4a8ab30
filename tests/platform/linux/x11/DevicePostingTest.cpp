#include "model/FKey.h"
#include "platform/linux/x11/InputSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>

namespace tarvin::x11 {

namespace {

constexpr auto shift = EventFlags::shift;
constexpr auto control = EventFlags::control;
constexpr KeyCode keyA = 0;
constexpr KeyCode keyC = 8;
constexpr KeyCode keyD = 2;

/// Stands for the tap daemon: presses the keys of its device.
class PostingKeyboard final : public KeyPosting
{
public:
    explicit PostingKeyboard(const std::string& display)
        : m_keyboard(display, endtoend::XServer::postingKeyboardName)
    { }

    [[nodiscard]] bool isOpen() const override { return isThere; }
    [[nodiscard]] bool post(FakeKey key) override
    {
        if (!isThere)
            return false;
        if (losesNext.exchange(false))
            return true;
        const auto code = static_cast<std::uint16_t>(key.keycode - keycodeOffset);
        m_keyboard.play({key.motion == FakeMotion::press ? endtoend::down(code) : endtoend::up(code)});
        ++count;
        return true;
    }

    std::atomic<bool> isThere = true;
    std::atomic<bool> losesNext = false;
    std::atomic<int> count = 0; ///< of the events that were posted

private:
    endtoend::PhysicalKeyboard m_keyboard;
};

/// A session in which the tap daemon serves us.
class DevicePosting : public InputSession
{
protected:
    void SetUp() override
    {
        InputSession::SetUp();
        if (IsSkipped())
            return;
        posting = std::make_shared<PostingKeyboard>(server->display());
        thread->setKeyPosting(posting);
    }

    std::shared_ptr<PostingKeyboard> posting;
};

TEST_P(DevicePosting, aStrokeGoesThroughTheDeviceWithItsModifiersAroundIt)
{
    postStroke(keyC, shift | control);
    EXPECT_EQ(takeClientKeysWithModifiers(),
        "+leftShift +Shift.leftControl +Shift.Control.c -Shift.Control.c -Shift.Control.leftControl "
        "-Shift.leftShift");
    EXPECT_EQ(posting->count, 6);
}

TEST_P(DevicePosting, everyKeyOfTheTableArrivesAsThatKey)
{
    int posted = 0;
    for (const KeyCodeRow& row : keyCodeTable) {
        if (row.form != KeyForm::key || !xKeycodeOf(row))
            continue;
        postStroke(row.code);
        const std::string name(row.name);
        EXPECT_EQ(takeClientKeys(), "+" + name + " -" + name);
        posted += 2;
    }
    EXPECT_EQ(posting->count, posted);
}

TEST_P(DevicePosting, lettersAreFoundWhereTheLayoutHasThem)
{
    server->setLayout("de");
    settle();
    constexpr KeyCode keyY = 16;
    postStroke(keyY, EventFlags::none, KeystrokeOrigin::recorded);
    EXPECT_EQ(takeClientKeys(), "+y -y") << "a recorded key is a place";
    server->setLayout("fr");
    settle();
    postStroke(keyA, EventFlags::command, KeystrokeOrigin::builtIn);
    EXPECT_EQ(takeClientKeys(), "+leftControl +q -q -leftControl") << "select all is a letter";
    EXPECT_EQ(posting->count, 6);
}

TEST_P(DevicePosting, aDeviceThatComesLaterGetsTheLayoutOfTheKeyboards)
{
    server->setLayout("fr");
    endtoend::PhysicalKeyboard device(server->display(), endtoend::XServer::postingKeyboardName);
    device.setEnabled(false);
    settle();
    const auto id =
        std::to_string(endtoend::XClient(server->display()).deviceNamed(endtoend::XServer::postingKeyboardName));
    endtoend::ChildProcess tool({"setxkbmap", "-display", server->display(), "-device", id, "-layout", "us"});
    ASSERT_EQ(tool.waitForEnd(), 0);
    device.setEnabled(true);
    settle();
    postStroke(keyA, EventFlags::command, KeystrokeOrigin::builtIn);
    EXPECT_EQ(takeClientKeys(), "+leftControl +q -q -leftControl") << "select all is a letter";
    EXPECT_EQ(posting->count, 4);
}

TEST_P(DevicePosting, aChordHoldsItsModifiersFromTheFirstKeyToTheLast)
{
    post(keyC, KeyState::down, shift);
    post(keyD, KeyState::down, shift);
    post(keyD, KeyState::up, shift);
    post(keyC, KeyState::up, shift);
    EXPECT_EQ(takeClientKeys(), "+leftShift +c +d -d -c -leftShift");
    EXPECT_EQ(posting->count, 6);
}

TEST_P(DevicePosting, whatMustBeLiftedIsLiftedAtTheServer)
{
    keyboard->press(KEY_LEFTSHIFT);
    postStroke(keyC, control);
    keyboard->release(KEY_LEFTSHIFT);
    EXPECT_EQ(takeClientKeys(), "+leftShift -leftShift +leftControl +c -c -leftControl +leftShift -leftShift");
    EXPECT_EQ(posting->count, 0);
    postStroke(keyC, control);
    EXPECT_EQ(takeClientKeys(), "+leftControl +c -c -leftControl");
    EXPECT_EQ(posting->count, 4);
}

TEST_P(DevicePosting, aModifierPressedDuringTheStrokeIsKept)
{
    post(keyC, KeyState::down, control);
    thread->settle();
    keyboard->press(KEY_LEFTSHIFT);
    post(keyC, KeyState::up, control);
    thread->settle();
    EXPECT_EQ(takeClientKeys(), "+leftControl +c +leftShift -leftShift -c -leftControl +leftShift");
    keyboard->release(KEY_LEFTSHIFT);
    EXPECT_EQ(takeClientKeys(), "-leftShift");
}

TEST_P(DevicePosting, aModifierPressedAtTheVeryMomentOfAStrokeIsKept)
{
    const endtoend::XClient observer(server->display());
    constexpr int turns = 200;
    for (int turn = 0; turn < turns; ++turn) {
        post(keyC, KeyState::down, control);
        thread->settle();
        // Waits for nobody: the server and the input thread come to know of both as it happens.
        std::thread user([this] { keyboard->press(KEY_LEFTSHIFT); });
        post(keyC, KeyState::up, control);
        user.join();
        settle();
        ASSERT_THAT(observer.downKeys(), ::testing::ElementsAre(KEY_LEFTSHIFT + keycodeOffset)) << turn;
        keyboard->release(KEY_LEFTSHIFT);
    }
}

TEST_P(DevicePosting, strokesOfBothRoadsStayInOrder)
{
    for (int turn = 0; turn < 10; ++turn) {
        post(keyA, KeyState::down);
        post(keyA, KeyState::up);
        posting->isThere = false;
        post(keyC, KeyState::down);
        post(keyC, KeyState::up);
        thread->settle();
        posting->isThere = true;
        EXPECT_EQ(takeClientKeys(), "+a -a +c -c");
    }
}

TEST_P(DevicePosting, aLostEventIsNotWaitedForLong)
{
    posting->losesNext = true;
    post(keyA, KeyState::down);
    thread->settle();
    posting->isThere = false;
    postStroke(keyC);
    EXPECT_EQ(takeClientKeys(), "+c -c");
    posting->isThere = true;
    post(keyA, KeyState::up);
    postStroke(keyD);
    EXPECT_EQ(takeClientKeys(), "+d -d");
}

TEST_P(DevicePosting, aStrokeThatLosesItsDeviceEndsAllTheSame)
{
    post(keyC, KeyState::down, control);
    EXPECT_EQ(takeClientKeys(), "+leftControl +c");
    posting->isThere = false;
    endtoend::PhysicalKeyboard device(server->display(), endtoend::XServer::postingKeyboardName);
    device.setEnabled(false); // the server lets go of what is held on it
    settle();
    post(keyC, KeyState::up, control);
    EXPECT_EQ(takeClientKeys(), "-leftControl -c");
    postStroke(keyA);
    EXPECT_EQ(takeClientKeys(), "+a -a");
}

TEST_P(DevicePosting, aCustomisedKeyMayPostItselfAndIsOurs)
{
    startTap();
    customise({FKey::f5});
    taps->setStudioActive(true);
    constexpr KeyCode f5 = 96;
    postStroke(f5);
    EXPECT_EQ(takeClientKeys(), "+f5 -f5");
    EXPECT_EQ(takeSeen().find("+f5"), 1U) << "watched, and marked as our own";
    EXPECT_EQ(posting->count, 2);
}

TEST_P(DevicePosting, nothingStaysDownWhenTheInputEnds)
{
    post(keyC, KeyState::down, shift);
    thread->settle();
    stopInput();
    startInput();
    EXPECT_EQ(takeClientKeys(), "+leftShift +c -c -leftShift");
}

INSTANTIATE_TEST_SUITE_P(OnServer, DevicePosting, ::testing::Values(endtoend::XServer::Kind::dummyXorg), serverName);

} // namespace

} // namespace tarvin::x11
