#include "platform/linux/x11/X11KeyRecording.h"

#include "endtoend/support/ChildProcess.h"
#include "endtoend/support/Patience.h"
#include "endtoend/support/XClient.h"
#include "platform/linux/x11/InputSession.h"
#include "support/QtPrinters.h"

#include <csignal>

namespace tarvin::x11 {

namespace {

using endtoend::down;
using endtoend::eventually;
using endtoend::up;

class KeyRecording : public InputSession
{
protected:
    void SetUp() override
    {
        InputSession::SetUp();
        if (IsSkipped())
            return;
        recording = std::make_unique<X11KeyRecording>(*thread, QByteArray::fromStdString(server->display()),
            [this](bool isRecording) { append(holds, isRecording ? "taken" : "free"); });
    }

    void TearDown() override
    {
        session.reset();
        recording.reset();
        InputSession::TearDown();
    }

    void startRecording()
    {
        session = recording->start(
            [this](const PressedKey& key) {
                append(recorded, textOf(key));
                if (endsAtFirstKey)
                    session.reset();
                return RecordingVerdict::swallow;
            },
            [this] {
                hasEnded = true;
                session.reset();
            });
        ASSERT_NE(session, nullptr);
        thread->settle();
    }

    /// "8/M:c": key code, modifiers, what the key is called.
    [[nodiscard]] static std::string textOf(const PressedKey& key)
    {
        std::string text = std::to_string(key.keyCode);
        if (key.flags != EventFlags::none)
            text += "/";
        if (containsAll(key.flags, EventFlags::shift))
            text += "S";
        if (containsAll(key.flags, EventFlags::control))
            text += "C";
        if (containsAll(key.flags, EventFlags::option))
            text += "O";
        if (containsAll(key.flags, EventFlags::command))
            text += "M";
        return text + ":" + key.characters.toStdString();
    }

    [[nodiscard]] bool records(const std::string& text)
    {
        return eventually([&] { return recorded == text; });
    }

    std::unique_ptr<X11KeyRecording> recording;
    std::unique_ptr<KeyRecordingSession> session;
    std::string recorded;
    std::string holds; ///< what is told to those who take keys in front of the session
    bool endsAtFirstKey = false;
    bool hasEnded = false;
};

TEST_P(KeyRecording, aKeyIsToldToTheRecorderAndToNobodyElse)
{
    startRecording();
    keyboard->tap(KEY_C);
    EXPECT_TRUE(records("8:c")) << recorded;
    session.reset();
    EXPECT_EQ(takeClientKeys(), "");
}

TEST_P(KeyRecording, modifiersAreToldAsTheyArePressed)
{
    startRecording();
    keyboard->chord({KEY_LEFTMETA, KEY_LEFTSHIFT, KEY_4});
    keyboard->chord({KEY_RIGHTCTRL, KEY_LEFTALT, KEY_SPACE});
    EXPECT_TRUE(records("21/SM:$ 49/CO:space")) << recorded;
}

TEST_P(KeyRecording, capsLockPlaysNoPart)
{
    keyboard->tap(KEY_CAPSLOCK);
    startRecording();
    keyboard->tap(KEY_C);
    EXPECT_TRUE(records("8:c")) << recorded;
    session.reset();
    keyboard->tap(KEY_CAPSLOCK);
}

TEST_P(KeyRecording, aLoneModifierIsNoKey)
{
    startRecording();
    keyboard->tap(KEY_LEFTSHIFT);
    keyboard->tap(KEY_RIGHTMETA);
    keyboard->tap(KEY_C);
    EXPECT_TRUE(records("8:c")) << recorded;
}

TEST_P(KeyRecording, aHeldKeyIsToldOnce)
{
    startTap();
    customise({FKey::f5});
    startRecording();
    keyboard->press(KEY_C);
    queue.runFor(std::chrono::milliseconds(900));
    keyboard->release(KEY_C);
    keyboard->tap(KEY_D);
    EXPECT_TRUE(records("8:c 2:d")) << recorded;
}

TEST_P(KeyRecording, aCustomisedKeyIsRecordedAndThenConsumedAgain)
{
    startTap();
    customise({FKey::f5});
    startRecording();
    keyboard->tap(KEY_F5);
    EXPECT_TRUE(records("96:F5")) << recorded;
    EXPECT_EQ(takeSeen(), "");
    session.reset();
    thread->settle();
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
    EXPECT_EQ(takeClientKeys(), "");
    EXPECT_EQ(recorded, "96:F5");
}

TEST_P(KeyRecording, whatADesktopKeepsForItselfIsRecorded)
{
    const endtoend::XClient desktop(server->display());
    xcb_grab_key(desktop.get(), 1, desktop.root(), XCB_MOD_MASK_4, KEY_SPACE + keycodeOffset, XCB_GRAB_MODE_ASYNC,
        XCB_GRAB_MODE_ASYNC);
    desktop.sync();
    startRecording();
    keyboard->chord({KEY_LEFTMETA, KEY_SPACE});
    EXPECT_TRUE(records("49/M:space")) << recorded;
}

TEST_P(KeyRecording, theWindowBelievesToHaveTheFocusAllTheTime)
{
    startRecording();
    keyboard->tap(KEY_C);
    EXPECT_TRUE(records("8:c")) << recorded;
    client->read();
    EXPECT_TRUE(client->hasFocus());
    session.reset();
    keyboard->tap(KEY_A);
    EXPECT_TRUE(eventually([&] { return client->keys() == "+a -a"; })) << client->keys();
    EXPECT_TRUE(client->hasFocus());
}

TEST_P(KeyRecording, theKeyboardIsFreeAgainAfterwards)
{
    startRecording();
    session.reset();
    EXPECT_TRUE(eventually([&] {
        keyboard->tap(KEY_A);
        return client->keys().find("+a -a") != std::string::npos;
    })) << client->keys();
    EXPECT_EQ(recorded, "");
}

TEST_P(KeyRecording, aRecordingMayEndWithinItsOwnCall)
{
    endsAtFirstKey = true;
    startRecording();
    keyboard->play({down(KEY_C), up(KEY_C), down(KEY_D), up(KEY_D)});
    EXPECT_TRUE(records("8:c")) << recorded;
    EXPECT_EQ(session, nullptr);
    EXPECT_EQ(holds, "taken free");
    keyboard->tap(KEY_A);
    EXPECT_TRUE(eventually([&] { return client->keys() == "+a -a"; })) << client->keys();
}

TEST_P(KeyRecording, itEndsWhenAnotherWindowGetsTheKeyboard)
{
    startRecording();
    endtoend::RecordingClient other(server->display(), "Other");
    EXPECT_TRUE(eventually([&] { return hasEnded; }));
    keyboard->tap(KEY_A);
    EXPECT_TRUE(eventually([&] { return other.keys() == "+a -a"; })) << other.keys();
    EXPECT_EQ(recorded, "");
}

TEST_P(KeyRecording, itEndsWithItsWindow)
{
    startRecording();
    client.reset();
    EXPECT_TRUE(eventually([&] { return hasEnded; }));
}

TEST_P(KeyRecording, itEndsWithTheServer)
{
    startRecording();
    keyboard.reset();
    client.reset();
    server.reset();
    EXPECT_TRUE(eventually([&] { return hasEnded; }));
}

TEST_P(KeyRecording, onlyOneRunsAtATime)
{
    startRecording();
    EXPECT_EQ(recording->start([](const PressedKey&) { return RecordingVerdict::swallow; }, [] {}), nullptr);
    session.reset();
    startRecording();
    EXPECT_NE(session, nullptr);
}

TEST_P(KeyRecording, aKeyboardThatAnotherProgramHoldsCanNotBeHad)
{
    const endtoend::XClient holder(server->display());
    const endtoend::XOwned<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(holder.get(),
        xcb_grab_keyboard(holder.get(), 1, holder.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
        nullptr));
    ASSERT_TRUE(reply && reply->status == XCB_GRAB_STATUS_SUCCESS);
    EXPECT_EQ(recording->start([](const PressedKey&) { return RecordingVerdict::swallow; }, [] {}), nullptr);
    EXPECT_FALSE(thread->shared().isRecording);
    EXPECT_EQ(holds, "");
}

TEST_P(KeyRecording, aNewLayoutNamesTheKeysAtOnce)
{
    startRecording();
    keyboard->tap(KEY_A);
    EXPECT_TRUE(records("0:a")) << recorded;
    server->setLayout("ru");
    EXPECT_TRUE(eventually([&] {
        recorded.clear();
        keyboard->tap(KEY_A);
        return eventually([&] { return !recorded.empty(); }) && recorded == "0:ф";
    })) << recorded;
}

TEST_P(KeyRecording, aCrashGivesTheKeyboardBack)
{
    stopInput();
    endtoend::ChildProcess holder({RECORDING_HOLDER, server->display()});
    ASSERT_EQ(holder.readLine(), "ready");
    keyboard->tap(KEY_A);
    ASSERT_EQ(holder.readLine(), "0:a");
    EXPECT_EQ(client->keys(), "");
    holder.sendSignal(SIGKILL);
    ASSERT_TRUE(holder.waitForEnd());
    EXPECT_TRUE(eventually([&] {
        keyboard->tap(KEY_A);
        return client->keys().find("+a -a") != std::string::npos;
    })) << client->keys();
}

INSTANTIATE_TEST_SUITE_P(Servers, KeyRecording, allServers, serverName);

} // namespace

} // namespace tarvin::x11
