#include "model/FKey.h"
#include "platform/linux/x11/InputSession.h"
#include "platform/linux/x11/X11Pointer.h"

#include <gtest/gtest.h>

namespace tarvin::x11 {

namespace {

constexpr auto none = EventFlags::none;
constexpr auto shift = EventFlags::shift;
constexpr auto control = EventFlags::control;
constexpr auto option = EventFlags::option;
constexpr auto command = EventFlags::command;

constexpr KeyCode keyA = 0;
constexpr KeyCode keyC = 8;
constexpr KeyCode keyD = 2;

class EventPoster : public InputSession
{
protected:
    /// The keys without those that cover a modifier.
    [[nodiscard]] std::string takeMeaningfulKeys()
    {
        std::string keys = takeClientKeysWithModifiers();
        for (auto at = keys.find("#"); at != std::string::npos; at = keys.find("#")) {
            const auto begin = keys.rfind(' ', at);
            keys.erase(begin == std::string::npos ? 0 : begin, keys.find(' ', at) - begin);
        }
        return keys;
    }
};

TEST_P(EventPoster, aStrokeReachesTheApplicationInTwoHalves)
{
    post(keyA, KeyState::down);
    EXPECT_EQ(takeClientKeys(), "+a");
    post(keyA, KeyState::up);
    EXPECT_EQ(takeClientKeys(), "-a");
}

TEST_P(EventPoster, everyKeyOfTheTableArrivesAsThatKey)
{
    for (const KeyCodeRow& row : keyCodeTable) {
        if (row.form != KeyForm::key || !xKeycodeOf(row))
            continue;
        ASSERT_TRUE(poster->canMakeKey(row.code)) << row.name;
        postStroke(row.code);
        const std::string name(row.name);
        EXPECT_EQ(takeClientKeys(), "+" + name + " -" + name);
    }
    for (const char* unseen : {"function", "globe"})
        EXPECT_FALSE(poster->canMakeKey(std::ranges::find(keyCodeTable, unseen, &KeyCodeRow::name)->code)) << unseen;
    EXPECT_FALSE(poster->canMakeKey(0xFFFF));
}

TEST_P(EventPoster, flagsArePressedBeforeTheKeyAndReleasedAfterIt)
{
    postStroke(keyC, shift | control);
    EXPECT_EQ(takeClientKeysWithModifiers(),
        "+leftShift +Shift.leftControl +Shift.Control.c -Shift.Control.c -Shift.Control.leftControl "
        "-Shift.leftShift");
    postStroke(keyC, option | command);
    EXPECT_EQ(takeMeaningfulKeys(),
        "+leftOption +Alt.leftCommand +Alt.Super.c -Alt.Super.c -Alt.Super.leftOption -Super.leftCommand");
}

TEST_P(EventPoster, aChordHoldsItsModifiersFromTheFirstKeyToTheLast)
{
    post(keyC, KeyState::down, shift | control);
    post(keyD, KeyState::down, shift | control);
    post(keyD, KeyState::up, shift | control);
    post(keyC, KeyState::up, shift | control);
    EXPECT_EQ(takeClientKeys(), "+leftShift +leftControl +c +d -d -c -leftControl -leftShift");
}

TEST_P(EventPoster, aKeyThatAChordNamesTwiceIsSeenTwice)
{
    post(keyC, KeyState::down);
    post(keyC, KeyState::down);
    post(keyC, KeyState::up);
    post(keyC, KeyState::up);
    EXPECT_EQ(takeClientKeys(), "+c -c +c -c");
}

TEST_P(EventPoster, overlappingStrokesHaveEachItsOwnFlags)
{
    post(keyC, KeyState::down, control);
    post(keyD, KeyState::down, shift);
    post(keyC, KeyState::up, control);
    post(keyD, KeyState::up, shift);
    EXPECT_EQ(takeClientKeysWithModifiers(),
        "+leftControl +Control.c -Control.leftControl +leftShift +Shift.d -Shift.leftShift +leftControl -Control.c "
        "-Control.leftControl +leftShift -Shift.d -Shift.leftShift");
}

TEST_P(EventPoster, aReleaseWithoutAPressIsDropped)
{
    keyboard->press(KEY_C);
    post(keyC, KeyState::up, shift);
    EXPECT_EQ(takeClientKeys(), "+c");
    keyboard->release(KEY_C);
    EXPECT_EQ(takeClientKeys(), "-c");
}

TEST_P(EventPoster, aKeyThatTheUserHoldsAlreadyIsPressedAnew)
{
    keyboard->press(KEY_C);
    postStroke(keyC, control);
    keyboard->release(KEY_C);
    EXPECT_EQ(takeClientKeysWithModifiers(), "+c +leftControl -Control.c +Control.c -Control.c -Control.leftControl");
}

TEST_P(EventPoster, modifiersThatTheUserHoldsAreLiftedAndGivenBack)
{
    keyboard->press(KEY_LEFTSHIFT);
    settle();
    postStroke(keyC, control);
    EXPECT_EQ(takeClientKeysWithModifiers(),
        "+leftShift -Shift.leftShift +leftControl +Control.c -Control.c -Control.leftControl +leftShift");
    keyboard->tap(KEY_A);
    keyboard->release(KEY_LEFTSHIFT);
    keyboard->tap(KEY_B);
    EXPECT_EQ(takeClientKeysWithModifiers(), "+Shift.a -Shift.a -Shift.leftShift +b -b");
}

TEST_P(EventPoster, aModifierThatTheStrokeWantsIsLeftWhereTheUserHoldsIt)
{
    keyboard->press(KEY_RIGHTSHIFT);
    settle();
    postStroke(keyC, shift);
    keyboard->release(KEY_RIGHTSHIFT);
    EXPECT_EQ(takeClientKeysWithModifiers(), "+rightShift +Shift.c -Shift.c -Shift.rightShift");
}

TEST_P(EventPoster, aModifierLetGoDuringTheStrokeDoesNotComeBack)
{
    keyboard->press(KEY_LEFTSHIFT);
    settle();
    post(keyC, KeyState::down, control);
    settle();
    keyboard->release(KEY_LEFTSHIFT);
    settle();
    post(keyC, KeyState::up, control);
    EXPECT_EQ(takeClientKeysWithModifiers(),
        "+leftShift -Shift.leftShift +leftControl +Control.c -Control.c -Control.leftControl");
    keyboard->tap(KEY_A);
    EXPECT_EQ(takeClientKeysWithModifiers(), "+a -a");
    // Nor is it down on the faking device, where its next press would be lost.
    postStroke(keyA, shift);
    EXPECT_EQ(takeClientKeysWithModifiers(), "+leftShift +Shift.a -Shift.a -Shift.leftShift");
}

TEST_P(EventPoster, aModifierPressedDuringTheStrokeIsKept)
{
    post(keyC, KeyState::down, control);
    settle();
    keyboard->press(KEY_LEFTSHIFT);
    settle();
    post(keyC, KeyState::up, control);
    settle();
    keyboard->tap(KEY_A);
    keyboard->release(KEY_LEFTSHIFT);
    EXPECT_EQ(takeClientKeysWithModifiers(),
        "+leftControl +Control.c +Control.leftShift -Shift.Control.leftShift -Control.c -Control.leftControl "
        "+leftShift +Shift.a -Shift.a -Shift.leftShift");
}

TEST_P(EventPoster, theModifierThatTheStrokeHoldsIsTheUsersIfTheUserHoldsItToo)
{
    post(keyC, KeyState::down, control);
    settle();
    keyboard->press(KEY_LEFTCTRL);
    settle();
    post(keyC, KeyState::up, control);
    settle();
    keyboard->tap(KEY_A);
    keyboard->release(KEY_LEFTCTRL);
    keyboard->tap(KEY_B);
    EXPECT_EQ(takeClientKeysWithModifiers(),
        "+leftControl +Control.c -Control.c +Control.a -Control.a -Control.leftControl +b -b");
}

TEST_P(EventPoster, liftingAltUnderCoverLooksLikeNoTapOfAlt)
{
    keyboard->press(KEY_LEFTALT);
    settle();
    postStroke(keyC, control);
    const std::string keys = takeClientKeys();
    EXPECT_EQ(keys.substr(0, 13), "+leftOption +") << keys;
    EXPECT_EQ(keys[13], '#') << keys;
    keyboard->release(KEY_LEFTALT);
    EXPECT_EQ(takeClientKeys(), "-leftOption");
}

TEST_P(EventPoster, aCustomisedKeyMayPostItself)
{
    startTap();
    customise({FKey::f5});
    keyboard->press(KEY_F5);
    settle();
    postStroke(virtualKeyCode(FKey::f5));
    keyboard->release(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
    EXPECT_EQ(takeClientKeys(), "+f5 -f5");
}

TEST_P(EventPoster, builtInKeystrokesAreThoseOfTheDesktop)
{
    postStroke(keyC, command, KeystrokeOrigin::builtIn);
    EXPECT_EQ(takeClientKeysWithModifiers(), "+leftControl +Control.c -Control.c -Control.leftControl");
    postStroke(33, command, KeystrokeOrigin::builtIn);
    EXPECT_EQ(takeMeaningfulKeys(), "+leftOption +Alt.left -Alt.left -Alt.leftOption");
    postStroke(117, none, KeystrokeOrigin::builtIn);
    EXPECT_EQ(takeClientKeys(), "+forwardDelete -forwardDelete");
}

TEST_P(EventPoster, aRecordedKeystrokeGoesOutAsItWasRecorded)
{
    postStroke(keyC, command, KeystrokeOrigin::recorded);
    EXPECT_EQ(takeMeaningfulKeys(), "+leftCommand +Super.c -Super.c -Super.leftCommand");
}

TEST_P(EventPoster, aTerminalIsAskedToCopyInItsOwnWay)
{
    isTerminalInFront = true;
    post(keyC, KeyState::down, command, KeystrokeOrigin::builtIn);
    // Another window comes to the front before the key goes up.
    isTerminalInFront = false;
    post(keyC, KeyState::up, command, KeystrokeOrigin::builtIn);
    EXPECT_EQ(takeClientKeys(), "+leftShift +leftControl +c -c -leftControl -leftShift");
}

TEST_P(EventPoster, whatTheDesktopItselfDoesIsNotAKeystroke)
{
    postStroke(126, control, KeystrokeOrigin::builtIn);
    EXPECT_EQ(takeClientKeys(), "");
    EXPECT_EQ(logLines, QStringList{QStringLiteral("[Tarvin] Not available on this desktop: show all windows.")});
}

TEST_P(EventPoster, lettersAreFoundWhereTheLayoutHasThem)
{
    server->setLayout("fr");
    settle();
    postStroke(keyA, command, KeystrokeOrigin::builtIn);
    // On this layout the letter is on the key to the right of Tab.
    EXPECT_EQ(takeClientKeys(), "+leftControl +q -q -leftControl");
    server->setLayout("ru");
    settle();
    postStroke(keyA, command, KeystrokeOrigin::builtIn);
    EXPECT_EQ(takeClientKeys(), "+leftControl +a -a -leftControl");
}

TEST_P(EventPoster, modifiersAreFoundWhereTheUserPutThem)
{
    server->setLayout("us", "", "ctrl:swapcaps");
    settle();
    postStroke(keyC, control);
    EXPECT_EQ(takeClientKeysWithModifiers(), "+capsLock +Control.c -Control.c -Control.capsLock");
}

TEST_P(EventPoster, nothingStaysDownWhenTheInputEnds)
{
    post(keyC, KeyState::down, control);
    settle();
    EXPECT_EQ(client->keys(), "+leftControl +c");
    stopInput();
    EXPECT_TRUE(endtoend::eventually([&] { return client->keys() == "+leftControl +c -c -leftControl"; }))
        << client->keys();
}

TEST_P(EventPoster, aModifierThatAKilledProgramLeftDownIsMended)
{
    stopInput();
    endtoend::XClient killed(server->display());
    xcb_test_fake_input(killed.get(), XCB_KEY_PRESS, KEY_LEFTCTRL + 8, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    killed.sync();
    // The user's own key ends it for the applications, but not on the faking device.
    keyboard->tap(KEY_LEFTCTRL);
    startInput();
    settle();
    client->forget();
    postStroke(keyC, control);
    EXPECT_EQ(takeClientKeysWithModifiers(), "+leftControl +Control.c -Control.c -Control.leftControl");
}

TEST_P(EventPoster, aSecondaryClickLandsWhereItIsAskedFor)
{
    endtoend::XClient watcher(server->display());
    const std::uint32_t events = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE;
    xcb_change_window_attributes(watcher.get(), watcher.root(), XCB_CW_EVENT_MASK, &events);
    watcher.sync();
    EXPECT_TRUE(poster->canMakeClick());
    poster->postSecondaryClick({.position = {700, 500}, .state = KeyState::down}, TapLocation::session);
    poster->postSecondaryClick({.position = {700, 500}, .state = KeyState::up}, TapLocation::session);
    thread->settle();
    std::vector<std::string> clicks;
    const bool isComplete = endtoend::eventually([&] {
        while (const endtoend::XOwned<xcb_generic_event_t> event{xcb_poll_for_event(watcher.get())}) {
            if (event->response_type == XCB_MAPPING_NOTIFY)
                continue;
            const auto& button = reinterpret_cast<const xcb_button_press_event_t&>(*event);
            clicks.push_back(std::to_string(event->response_type) + ":" + std::to_string(button.detail) + "@"
                + std::to_string(button.root_x) + "," + std::to_string(button.root_y));
        }
        return clicks.size() == 2;
    });
    EXPECT_TRUE(isComplete);
    EXPECT_EQ(clicks, (std::vector<std::string>{"4:3@700,500", "5:3@700,500"}));
    EXPECT_EQ(X11Pointer(*thread).position(), (Point{700, 500}));
    EXPECT_EQ(X11Pointer(*thread, [] { return 2.0; }).position(), (Point{350, 250}));
}

} // namespace

INSTANTIATE_TEST_SUITE_P(OnServer, EventPoster, allServers, serverName);

namespace {

// Until a session has set a keymap, this server reads what is posted by another keymap than what is pressed.
class BareSession : public InputSession
{
protected:
    [[nodiscard]] bool clientGets(const std::string& keysyms)
    {
        return endtoend::eventually([&] { return client->keysyms() == keysyms; });
    }
};

TEST_P(BareSession, aPostedKeyMeansWhatItIsMeantTo)
{
    keyboard->tap(KEY_A);
    settle();
    client->forget();
    postStroke(123, command);
    EXPECT_TRUE(clientGets("+ffeb +ff51 -ff51 -ffeb")) << client->keysyms();
    client->forget();
    postStroke(33, command, KeystrokeOrigin::builtIn);
    EXPECT_TRUE(clientGets("+ffe9 +ff51 -ff51 -ffe9")) << client->keysyms();
}

TEST_P(BareSession, aLiftedModifierIsGivenBackAsItself)
{
    keyboard->press(KEY_RIGHTCTRL);
    settle();
    client->forget();
    postStroke(keyC);
    // Up by the keymap of the keyboard, down by that of the faking device.
    EXPECT_TRUE(endtoend::eventually([&] {
        client->read();
        return client->events().size() == 4;
    }));
    EXPECT_EQ(client->events()[0].keycode, KEY_RIGHTCTRL + keycodeOffset);
    EXPECT_EQ(client->keysyms().substr(client->keysyms().rfind(' ') + 1), "+ffe4");
    client->forget();
    keyboard->tap(KEY_A);
    keyboard->release(KEY_RIGHTCTRL);
    settle();
    keyboard->tap(KEY_B);
    EXPECT_TRUE(endtoend::eventually([&] {
        return client->keysWithModifiers().find("+Control.a -Control.a") != std::string::npos
            && client->keysWithModifiers().ends_with("+b -b");
    })) << client->keysWithModifiers();
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    OnServer, BareSession, ::testing::Values(endtoend::XServer::Kind::bareXorg), [](const auto&) { return "Xorg"; });

} // namespace tarvin::x11
