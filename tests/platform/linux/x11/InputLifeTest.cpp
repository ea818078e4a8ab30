#include "endtoend/support/WindowManager.h"
#include "platform/linux/x11/InputSession.h"

#include <gtest/gtest.h>

#include <xcb/xinput.h>

#include <unistd.h>

#include <array>
#include <csignal>

namespace tarvin::x11 {

namespace {

using endtoend::XServer;

/// A client of another program's that takes one key of one keyboard for itself, as we do.
class Rival
{
public:
    Rival(const std::string& display, const std::string& device)
        : m_client(display)
        , m_device(m_client.deviceNamed(device))
    { }

    /// @return whether the server gave the key
    bool grab(std::uint16_t key)
    {
        constexpr std::uint32_t events = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
        constexpr std::uint32_t any = XCB_INPUT_MODIFIER_MASK_ANY;
        const auto cookie = xcb_input_xi_passive_grab_device(m_client.get(), XCB_CURRENT_TIME, m_client.root(),
            XCB_CURSOR_NONE, key + keycodeOffset, m_device, 1, 1, XCB_INPUT_GRAB_TYPE_KEYCODE,
            XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER, &events, &any);
        const endtoend::XOwned<xcb_input_xi_passive_grab_device_reply_t> reply(
            xcb_input_xi_passive_grab_device_reply(m_client.get(), cookie, nullptr));
        return reply && reply->num_modifiers == 0;
    }

    /// Takes the whole keyboard, as a menu or a virtual machine does.
    void grabKeyboard()
    {
        const endtoend::XOwned<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(m_client.get(),
            xcb_grab_keyboard(
                m_client.get(), 0, m_client.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
            nullptr));
        EXPECT_TRUE(reply && reply->status == XCB_GRAB_STATUS_SUCCESS);
    }

private:
    endtoend::XClient m_client;
    std::uint16_t m_device;
};

class InputLife : public InputSession
{
protected:
    [[nodiscard]] QString firstLogLine()
    {
        static_cast<void>(queue.runUntil([this] { return !logLines.isEmpty(); }));
        return logLines.isEmpty() ? QString() : logLines.takeFirst();
    }
};

TEST_P(InputLife, aKeyThatAnotherProgramHasIsReportedAndTakenWhenItIsFree)
{
    auto rival = std::make_unique<Rival>(server->display(), server->keyboardName());
    ASSERT_TRUE(rival->grab(KEY_F5));
    startTap();
    customise({FKey::f5, FKey::f6});
    EXPECT_EQ(firstLogLine(),
        QStringLiteral("[Tarvin] Key f5 of \"%1\" is taken by another program.")
            .arg(QString::fromUtf8(server->keyboardName())));
    keyboard->tap(KEY_F5);
    keyboard->tap(KEY_F6);
    EXPECT_EQ(takeSeen(), "+f6 -f6");
    rival.reset();
    EXPECT_EQ(firstLogLine(),
        QStringLiteral("[Tarvin] Key f5 of \"%1\" is free again and intercepted.")
            .arg(QString::fromUtf8(server->keyboardName())));
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
    EXPECT_TRUE(logLines.isEmpty()) << logLines.join(QLatin1Char('\n')).toStdString();
}

TEST_P(InputLife, nobodyElseCanHaveWhatWeHave)
{
    startTap();
    customise({FKey::f5});
    Rival rival(server->display(), server->keyboardName());
    EXPECT_FALSE(rival.grab(KEY_F5));
    customise({});
    EXPECT_TRUE(rival.grab(KEY_F5));
}

TEST_P(InputLife, aProgramThatHoldsTheKeyboardDoesNotHideOurKeys)
{
    startTap();
    customise({FKey::f5});
    Rival rival(server->display(), server->keyboardName());
    rival.grabKeyboard();
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
}

TEST_P(InputLife, aWindowManagersOwnKeysAreNotDisturbed)
{
    if (const auto lack = endtoend::WindowManager::lack())
        GTEST_SKIP() << *lack;
    const endtoend::WindowManager manager(server->display());
    client->takeFocus();
    startTap();
    customise({FKey::f5});
    client->forget();
    keyboard->tap(KEY_F5);
    keyboard->tap(KEY_A);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
    EXPECT_EQ(takeClientKeys(), "+a -a");
    EXPECT_EQ(client->focusChanges(), 0);
}

TEST_P(InputLife, aKeyboardThatIsPluggedInIsInterceptedAtOnce)
{
    keyboard->setEnabled(false);
    startTap();
    customise({FKey::f5});
    keyboard->setEnabled(true);
    settle();
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
    EXPECT_EQ(takeClientKeys(), "");
}

TEST_P(InputLife, aKeyboardThatIsPulledOutLetsGoOfItsKeys)
{
    startTap();
    customise({FKey::f5});
    keyboard->press(KEY_A);
    keyboard->press(KEY_F5);
    settle();
    keyboard->setEnabled(false);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
    keyboard->setEnabled(true);
    settle();
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
    EXPECT_EQ(takeClientKeys(), "+a -a");
}

TEST_P(InputLife, everyKeyboardIsInterceptedForItself)
{
    if (GetParam() == XServer::Kind::virtualFramebuffer)
        GTEST_SKIP() << "Xvfb has one keyboard only";
    endtoend::PhysicalKeyboard second(server->display(), XServer::secondKeyboardName);
    startTap();
    customise({FKey::f5});
    second.tap(KEY_F5);
    keyboard->press(KEY_F5);
    second.press(KEY_F5);
    keyboard->release(KEY_F5);
    second.release(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5 +f5 +f5 -f5 -f5");
    EXPECT_EQ(takeClientKeys(), "");
    // A modifier of one keyboard counts for the keys of all.
    second.press(KEY_LEFTSHIFT);
    keyboard->tap(KEY_F5);
    second.release(KEY_LEFTSHIFT);
    EXPECT_EQ(takeSeen(), "+f5/S -f5/S");
    second.press(KEY_F5);
    settle();
    second.setEnabled(false);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
}

TEST_P(InputLife, theEndOfTheServerEndsTheTapAndNotTheProgram)
{
    stopInput();
    keyboard.reset();
    client.reset();
    // A display that no test beside this one gets in the meantime: we would take its server for ours come back.
    constexpr int firstDisplay = 10000;
    const int displayNumber = firstDisplay + static_cast<int>(getpid() % firstDisplay);
    server = std::make_unique<XServer>(GetParam(), displayNumber);
    keyboard = std::make_unique<endtoend::PhysicalKeyboard>(server->display(), server->keyboardName());
    startInput();
    startTap();
    customise({FKey::f5});
    keyboard->press(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5");
    keyboard.reset();
    server.reset();
    EXPECT_EQ(firstLogLine(), QStringLiteral("[Tarvin] No input path through X: the X server has gone."));
    EXPECT_EQ(takeSeen(), "-f5");
    EXPECT_FALSE(tap->isEnabled());
    EXPECT_FALSE(taps->isAvailable());
    EXPECT_EQ(thread->pointerPosition(), std::nullopt);

    server = std::make_unique<XServer>(GetParam(), displayNumber);
    ASSERT_EQ(server->displayNumber(), displayNumber);
    EXPECT_TRUE(queue.runUntil([&] { return tap->isEnabled(); }));
    EXPECT_EQ(firstLogLine(), QStringLiteral("[Tarvin] The input path through X is back."));
    keyboard = std::make_unique<endtoend::PhysicalKeyboard>(server->display(), server->keyboardName());
    client = std::make_unique<endtoend::RecordingClient>(server->display());
    settle();
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
    EXPECT_EQ(takeClientKeys(), "");
}

TEST_P(InputLife, withoutAServerThereIsNoTap)
{
    stopInput();
    logLines.clear();
    thread = std::make_unique<InputThread>(
        queue, QByteArrayLiteral(":7777"), [this](const QString& line) { logLines.append(line); });
    taps = std::make_unique<X11InputTaps>(*thread);
    EXPECT_FALSE(taps->isAvailable());
    EXPECT_EQ(taps->createTap(TapLocation::session, [](const InputEvent&) { return EventVerdict::pass; }), nullptr);
    EXPECT_EQ(firstLogLine(), QStringLiteral("[Tarvin] No input path through X: the X server can't be reached."));
}

TEST_P(InputLife, aKilledProgramFreesTheKeyboard)
{
    stopInput();
    endtoend::ChildProcess holder({TAP_HOLDER, server->display(), "F5"});
    ASSERT_EQ(holder.readLine(), "ready");
    keyboard->press(KEY_F5);
    ASSERT_EQ(holder.readLine(), "+f5");
    holder.sendSignal(SIGKILL);
    ASSERT_TRUE(holder.waitForEnd());
    keyboard->tap(KEY_A);
    keyboard->release(KEY_F5);
    keyboard->tap(KEY_F5);
    client->takeFocus();
    EXPECT_TRUE(endtoend::eventually([&] { return client->keys() == "+a -a +f5 -f5"; })) << client->keys();
}

TEST_P(InputLife, aStoppedProgramStopsNoOtherKey)
{
    stopInput();
    endtoend::ChildProcess holder({TAP_HOLDER, server->display(), "F5"});
    ASSERT_EQ(holder.readLine(), "ready");
    holder.sendSignal(SIGSTOP);
    keyboard->tap(KEY_F5);
    keyboard->tap(KEY_A);
    // Its own key is taken and waits; the keyboard is free again as soon as that key is up.
    EXPECT_TRUE(endtoend::eventually([&] { return client->keys() == "+a -a"; })) << client->keys();
    holder.sendSignal(SIGCONT);
    EXPECT_EQ(holder.readLine(), "+f5");
    EXPECT_EQ(holder.readLine(), "-f5");
}

TEST_P(InputLife, aTapMayComeAndGoWhileKeysArePressed)
{
    customise({FKey::f5});
    for (int round = 0; round < 50; ++round) {
        if (tap)
            tap.reset();
        else
            startTap();
        keyboard->press(round % 2 == 0 ? KEY_F5 : KEY_A);
        taps->publishConsumedKeys(round % 3 == 0 ? FKeySet{} : FKeySet{FKey::f5}, SummonShortcut::released);
        queue.runPosted();
        keyboard->release(round % 2 == 0 ? KEY_F5 : KEY_A);
    }
    tap.reset();
    static_cast<void>(takeClientKeys());
    // Nothing is left behind: no grab, no key that is down.
    keyboard->tap(KEY_F5);
    keyboard->tap(KEY_A);
    EXPECT_EQ(takeClientKeysWithModifiers(), "+f5 -f5 +a -a");
    EXPECT_THAT(endtoend::XClient(server->display()).downKeys(), ::testing::IsEmpty());
}

} // namespace

INSTANTIATE_TEST_SUITE_P(OnServer, InputLife, allServers, serverName);

} // namespace tarvin::x11
