#include "endtoend/support/MainQueue.h"
#include "endtoend/support/Patience.h"
#include "endtoend/support/PhysicalKeyboard.h"
#include "endtoend/support/XServer.h"
#include "model/FKey.h"
#include "platform/linux/x11/EventText.h"
#include "platform/linux/x11/InputThread.h"
#include "platform/linux/x11/X11EventPoster.h"
#include "platform/linux/x11/X11InputTaps.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QWindow>

#include <linux/input-event-codes.h>

#include <memory>
#include <string>
#include <vector>

namespace tarvin::x11 {

namespace {

using endtoend::eventually;
using endtoend::XServer;

/// A window of the program's own, which writes down what gets through to it.
class OwnWindow final : public QWindow
{
public:
    OwnWindow()
    {
        resize(300, 200);
        show();
        requestActivate();
    }

    std::string keys;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ShortcutOverride)
            append(keys, "?" + nameOf(static_cast<QKeyEvent&>(*event)));
        return QWindow::event(event);
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        append(keys, (event->isAutoRepeat() ? "*" : "+") + nameOf(*event));
    }
    void keyReleaseEvent(QKeyEvent* event) override
    {
        append(keys, (event->isAutoRepeat() ? "~" : "-") + nameOf(*event));
    }

private:
    static std::string nameOf(const QKeyEvent& event)
    {
        const KeyCodeRow* const row = keyRowOfXKeycode(static_cast<Keycode>(event.nativeScanCode()));
        return row == nullptr ? "#" : std::string(row->name);
    }
};

class LocalMonitor : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (const auto lack = XServer::lack(XServer::Kind::virtualFramebuffer))
            GTEST_SKIP() << *lack;
        // An application object of Qt's lives as long as the process, and so does its server.
        static const XServer server;
        qputenv("DISPLAY", QByteArray::fromStdString(server.display()));
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
        static int argumentCount = 1;
        static std::string name = "local-monitor";
        static std::vector<char*> arguments{name.data(), nullptr};
        static const QGuiApplication application(argumentCount, arguments.data());

        keyboard = std::make_unique<endtoend::PhysicalKeyboard>(server.display(), server.keyboardName());
        thread =
            std::make_unique<InputThread>(queue, QByteArray::fromStdString(server.display()), [](const QString&) {});
        taps = std::make_unique<X11InputTaps>(*thread);
        poster = std::make_unique<X11EventPoster>(*thread, X11EventPoster::Desktop{});
        window = std::make_unique<OwnWindow>();
        ASSERT_TRUE(eventually([this] { return QGuiApplication::focusWindow() == window.get(); }));
        monitor = taps->addLocalMonitor([this](const InputEvent& event) {
            append(seen, textOf(event));
            return verdict(event);
        });
        ASSERT_NE(monitor, nullptr);
    }

    /// What the handler was asked about, once the window has had the last key of the test.
    [[nodiscard]] std::string takeSeen()
    {
        waitForWindow();
        return std::exchange(seen, {});
    }

    [[nodiscard]] std::string takeWindowKeys()
    {
        waitForWindow();
        return std::exchange(window->keys, {});
    }

    void waitForWindow()
    {
        thread->settle();
        // A key without a name of ours is asked about by nobody, and comes last.
        const std::string before = window->keys;
        keyboard->tap(KEY_SCROLLLOCK);
        EXPECT_TRUE(eventually([&] { return window->keys.size() > before.size() && window->keys.ends_with("-#"); }));
        window->keys = window->keys.substr(0, window->keys.find("?#"));
        if (window->keys.ends_with(' '))
            window->keys.pop_back();
    }

    endtoend::MainQueue queue;
    std::unique_ptr<endtoend::PhysicalKeyboard> keyboard;
    std::unique_ptr<InputThread> thread;
    std::unique_ptr<X11InputTaps> taps;
    std::unique_ptr<X11EventPoster> poster;
    std::unique_ptr<OwnWindow> window;
    std::unique_ptr<EventMonitor> monitor;
    std::string seen;
    std::function<EventVerdict(const InputEvent&)> verdict = [](const InputEvent&) { return EventVerdict::pass; };
};

TEST_F(LocalMonitor, eachStrokeIsAskedAboutOnceAndGoesOnIfItMay)
{
    keyboard->tap(KEY_F5);
    keyboard->tap(KEY_A);
    EXPECT_EQ(takeWindowKeys(), "?f5 +f5 -f5 ?a +a -a");
    EXPECT_EQ(takeSeen(), "+f5 -f5 +a -a");
}

TEST_F(LocalMonitor, whatIsSwallowedReachesNeitherTheWindowNorItsShortcuts)
{
    int activations = 0;
    const QShortcut first(Qt::Key_F5, window.get(), [&] { activations += 1; });
    const QShortcut second(Qt::Key_F6, window.get(), [&] { activations += 10; });
    verdict = [](const InputEvent& event) {
        return event.keyCode == virtualKeyCode(FKey::f5) ? EventVerdict::consume : EventVerdict::pass;
    };
    keyboard->tap(KEY_F5);
    keyboard->tap(KEY_F6);
    keyboard->tap(KEY_A);
    EXPECT_EQ(takeWindowKeys(), "?f6 -f6 ?a +a -a");
    EXPECT_EQ(activations, 10);
    EXPECT_EQ(takeSeen(), "+f5 -f5 +f6 -f6 +a -a");
}

TEST_F(LocalMonitor, modifiersAndMediaKeysComeInTheirOwnForms)
{
    keyboard->tap(KEY_RIGHTALT);
    keyboard->tap(KEY_MUTE);
    keyboard->chord({KEY_LEFTSHIFT, KEY_LEFTMETA, KEY_F5});
    EXPECT_EQ(takeSeen(),
        "~rightOption/O ~rightOption +media7 -media7 ~leftShift/S ~leftCommand/SM +f5/SM -f5/SM ~leftCommand/S "
        "~leftShift");
    keyboard->press(KEY_LEFTALT);
    keyboard->tap(KEY_RIGHTALT);
    EXPECT_EQ(takeSeen(), "~leftOption/O ~rightOption/O ~rightOption/O");
    keyboard->release(KEY_LEFTALT);
    EXPECT_EQ(takeSeen(), "~leftOption");
}

TEST_F(LocalMonitor, aHeldKeyIsToldAsRepeatsWithoutReleasesInBetween)
{
    verdict = [](const InputEvent&) { return EventVerdict::consume; };
    keyboard->press(KEY_F5);
    EXPECT_TRUE(eventually([&] { return seen.find("*f5 *f5") != std::string::npos; })) << seen;
    keyboard->release(KEY_F5);
    EXPECT_TRUE(eventually([&] { return seen.ends_with("-f5"); })) << seen;
    EXPECT_EQ(seen.substr(0, 7), "+f5 *f5");
    EXPECT_EQ(seen.find("-f5"), seen.size() - 3);
    EXPECT_EQ(window->keys, "");
}

TEST_F(LocalMonitor, aHeldKeyIsNotReleasedBetweenItsRepeatsEither)
{
    keyboard->press(KEY_A);
    EXPECT_TRUE(eventually([&] { return seen.find("*a *a") != std::string::npos; })) << seen;
    keyboard->release(KEY_A);
    const std::string keys = takeWindowKeys();
    EXPECT_EQ(keys.find("-a"), keys.size() - 2) << keys;
    EXPECT_EQ(keys.find('~'), std::string::npos) << keys;
}

TEST_F(LocalMonitor, aKeyThatWasReleasedElsewhereBeginsAnewHere)
{
    keyboard->press(KEY_F5);
    EXPECT_TRUE(eventually([&] { return seen == "+f5"; })) << seen;
    window->hide();
    ASSERT_TRUE(eventually([] { return QGuiApplication::applicationState() != Qt::ApplicationActive; }));
    keyboard->release(KEY_F5);
    seen.clear();
    window->show();
    window->requestActivate();
    ASSERT_TRUE(eventually([this] { return QGuiApplication::focusWindow() == window.get(); }));
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
}

TEST_F(LocalMonitor, whatWePostIsKnownAgain)
{
    verdict = [](const InputEvent& event) { return event.isSelfPosted() ? EventVerdict::consume : EventVerdict::pass; };
    for (const KeyState state : {KeyState::down, KeyState::up}) {
        poster->postKey({.keyCode = 8, .state = state, .flags = EventFlags::control, .userData = selfPostedMarker},
            TapLocation::session);
    }
    thread->settle();
    keyboard->tap(KEY_C);
    EXPECT_EQ(takeWindowKeys(), "?c +c -c");
    EXPECT_EQ(takeSeen(), "!~leftControl/C !+c/C !-c/C !~leftControl +c -c");
}

TEST_F(LocalMonitor, theGlobalMonitorDoesNotSeeWhatGoesToOurOwnWindows)
{
    std::string seenGlobally;
    const auto global = taps->addGlobalMonitor([&](const InputEvent& event) { append(seenGlobally, textOf(event)); });
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
    queue.runPosted();
    EXPECT_EQ(seenGlobally, "");
    window->hide();
    ASSERT_TRUE(eventually([] { return QGuiApplication::focusWindow() == nullptr; }));
    keyboard->tap(KEY_F6);
    thread->settle();
    queue.runPosted();
    EXPECT_EQ(seenGlobally, "+f6 -f6");
}

TEST_F(LocalMonitor, aMonitorThatWentIsNotAsked)
{
    monitor.reset();
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeWindowKeys(), "?f5 +f5 -f5");
    EXPECT_EQ(seen, "");
}

} // namespace

} // namespace tarvin::x11
