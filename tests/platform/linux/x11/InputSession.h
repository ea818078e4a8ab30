#pragma once

#include "endtoend/support/MainQueue.h"
#include "endtoend/support/PhysicalKeyboard.h"
#include "endtoend/support/RecordingClient.h"
#include "endtoend/support/XServer.h"
#include "platform/linux/x11/EventText.h"
#include "platform/linux/x11/InputThread.h"
#include "platform/linux/x11/X11EventPoster.h"
#include "platform/linux/x11/X11InputTaps.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <linux/input-event-codes.h>
#include <xcb/xtest.h>

#include <functional>
#include <memory>
#include <string>

namespace tarvin::x11 {

using endtoend::keycodeOffset;

/// A server with a keyboard, an application that has the focus, and our taps on it, for tests of the real thing.
class InputSession : public ::testing::TestWithParam<endtoend::XServer::Kind>
{
protected:
    void SetUp() override
    {
        if (const auto lack = endtoend::XServer::lack(GetParam()))
            GTEST_SKIP() << *lack;
        server = std::make_unique<endtoend::XServer>(GetParam());
        keyboard = std::make_unique<endtoend::PhysicalKeyboard>(server->display(), server->keyboardName());
        client = std::make_unique<endtoend::RecordingClient>(server->display());
        startInput();
    }

    void TearDown() override { stopInput(); }

    void startInput()
    {
        thread = std::make_unique<InputThread>(queue, QByteArray::fromStdString(server->display()),
            [this](const QString& line) { logLines.append(line); });
        taps = std::make_unique<X11InputTaps>(*thread);
        poster = std::make_unique<X11EventPoster>(*thread,
            X11EventPoster::Desktop{.isTerminalInFront = [this] { return isTerminalInFront; },
                .perform = {},
                .log = [this](const QString& line) { logLines.append(line); }});
        thread->settle();
    }

    void stopInput()
    {
        tap.reset();
        globalMonitor.reset();
        taps.reset();
        poster.reset();
        thread.reset();
    }

    /// Starts a tap that consumes what is customised, as the core does, and writes down what it sees.
    void startTap()
    {
        tap = taps->createTap(TapLocation::session, [this](const InputEvent& event) {
            append(seen, textOf(event));
            if (onEvent)
                onEvent(event);
            return verdictOn(event);
        });
        ASSERT_NE(tap, nullptr);
        tap->attachToMainLoop();
        tap->enable();
    }

    void watchGlobally()
    {
        globalMonitor =
            taps->addGlobalMonitor([this](const InputEvent& event) { append(seenGlobally, textOf(event)); });
    }

    /// Publishes the keys and returns when the server knows.
    void customise(FKeySet keys, SummonShortcut summon = SummonShortcut::released)
    {
        custom = keys;
        summonIsTaken = summon;
        taps->publishConsumedKeys(keys, summon);
        thread->settle();
    }

    /// Returns when everything that has happened at the server has reached the main thread.
    void settle()
    {
        thread->settle();
        queue.runPosted();
    }

    /// What the tap has seen since the last time.
    [[nodiscard]] std::string takeSeen()
    {
        settle();
        return std::exchange(seen, {});
    }

    /// What the application got since the last time. A tap of Scroll Lock goes last and is left out, so that everything
    /// before it has certainly come.
    [[nodiscard]] std::string takeClientKeys() { return takeClientText(&endtoend::RecordingClient::keys); }
    [[nodiscard]] std::string takeClientKeysWithModifiers()
    {
        return takeClientText(&endtoend::RecordingClient::keysWithModifiers);
    }

    void post(KeyCode keyCode, KeyState state, EventFlags flags = EventFlags::none,
        KeystrokeOrigin origin = KeystrokeOrigin::recorded)
    {
        poster->postKey(
            {.keyCode = keyCode, .state = state, .flags = flags, .userData = selfPostedMarker, .origin = origin},
            TapLocation::session);
    }

    void postStroke(
        KeyCode keyCode, EventFlags flags = EventFlags::none, KeystrokeOrigin origin = KeystrokeOrigin::recorded)
    {
        post(keyCode, KeyState::down, flags, origin);
        post(keyCode, KeyState::up, flags, origin);
        thread->settle();
    }

    std::unique_ptr<endtoend::XServer> server;
    std::unique_ptr<endtoend::PhysicalKeyboard> keyboard;
    std::unique_ptr<endtoend::RecordingClient> client;
    endtoend::MainQueue queue;
    QStringList logLines;
    std::unique_ptr<InputThread> thread;
    std::unique_ptr<X11InputTaps> taps;
    std::unique_ptr<X11EventPoster> poster;
    std::unique_ptr<EventTap> tap;
    std::unique_ptr<EventMonitor> globalMonitor;

    FKeySet custom;
    SummonShortcut summonIsTaken = SummonShortcut::released;
    bool isTerminalInFront = false;
    std::string seen;
    std::string seenGlobally;
    std::function<void(const InputEvent&)> onEvent; ///< called before the verdict

private:
    [[nodiscard]] EventVerdict verdictOn(const InputEvent& event) const
    {
        if (event.isSelfPosted())
            return EventVerdict::pass;
        if (event.type == InputEventType::keyDown && event.keyCode == summonKeyCode
            && summonIsTaken == SummonShortcut::taken && containsAll(event.flags, summonFlags))
            return EventVerdict::consume;
        const auto key = event.type == InputEventType::systemDefined ? fromSystemKeyType(event.systemDefined->keyType())
                                                                     : fromKeyCode(event.keyCode);
        return key && custom.contains(*key) ? EventVerdict::consume : EventVerdict::pass;
    }

    [[nodiscard]] std::string takeClientText(std::string (endtoend::RecordingClient::*textOfClient)())
    {
        settle();
        // What the tap let pass is posted again after the main thread has had it.
        settle();
        keyboard->tap(KEY_SCROLLLOCK);
        const bool isComplete = endtoend::eventually([&] {
            client->read();
            return !client->events().empty() && !client->events().back().isPress
                && client->events().back().keycode == KEY_SCROLLLOCK + keycodeOffset;
        });
        EXPECT_TRUE(isComplete) << client->keys();
        client->dropLast(2);
        std::string text = (*client.*textOfClient)();
        client->forget();
        return text;
    }
};

/// Every test runs on each of them.
inline const auto allServers =
    ::testing::Values(endtoend::XServer::Kind::virtualFramebuffer, endtoend::XServer::Kind::dummyXorg);

[[nodiscard]] inline std::string serverName(const ::testing::TestParamInfo<endtoend::XServer::Kind>& server)
{
    return server.param == endtoend::XServer::Kind::virtualFramebuffer ? "Xvfb" : "Xorg";
}

} // namespace tarvin::x11
