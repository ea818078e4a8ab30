#include "platform/linux/x11/InputSession.h"

#include <gtest/gtest.h>

namespace tarvin::x11 {

namespace {

using endtoend::down;
using endtoend::up;

class SessionTap : public InputSession
{ };

TEST_P(SessionTap, aKeyThatIsNotCustomisedReachesTheApplicationAndNobodyElse)
{
    startTap();
    customise({FKey::f5});
    keyboard->tap(KEY_A);
    keyboard->tap(KEY_F6);
    EXPECT_EQ(takeClientKeys(), "+a -a +f6 -f6");
    EXPECT_EQ(takeSeen(), "");
}

TEST_P(SessionTap, aCustomisedKeyReachesTheTapAndNotTheApplication)
{
    startTap();
    customise({FKey::f5});
    keyboard->press(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5");
    keyboard->release(KEY_F5);
    EXPECT_EQ(takeSeen(), "-f5");
    EXPECT_EQ(takeClientKeys(), "");
    EXPECT_EQ(client->focusChanges(), 0);
}

TEST_P(SessionTap, aHeldKeyRepeatsForTheTapAlone)
{
    startTap();
    customise({FKey::f5});
    keyboard->press(KEY_F5);
    const bool hasRepeated = queue.runUntil([&] { return seen.find("*f5 *f5") != std::string::npos; });
    EXPECT_TRUE(hasRepeated) << seen;
    keyboard->release(KEY_F5);
    const std::string all = takeSeen();
    EXPECT_EQ(all.substr(0, 7), "+f5 *f5");
    EXPECT_EQ(all.substr(all.size() - 3), "-f5");
    EXPECT_EQ(takeClientKeys(), "");
}

TEST_P(SessionTap, otherKeysWorkWhileACustomisedKeyIsHeld)
{
    startTap();
    customise({FKey::f5});
    keyboard->press(KEY_F5);
    settle();
    keyboard->chord({KEY_LEFTSHIFT, KEY_A});
    EXPECT_EQ(takeClientKeysWithModifiers(), "+leftShift +Shift.a -Shift.a -Shift.leftShift");
    keyboard->release(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
}

TEST_P(SessionTap, aKeyIsConsumedWithWhateverModifiersItIsPressed)
{
    startTap();
    customise({FKey::f5});
    keyboard->chord({KEY_LEFTSHIFT, KEY_LEFTCTRL, KEY_F5});
    EXPECT_EQ(takeSeen(), "+f5/SC -f5/SC");
    EXPECT_EQ(takeClientKeys(), "+leftShift +leftControl -leftControl -leftShift");
}

TEST_P(SessionTap, aLoneRightOptionIsConsumedAsAKeyOfItsOwn)
{
    startTap();
    customise({FKey::rightOption, FKey::rightCommand});
    keyboard->tap(KEY_RIGHTALT);
    keyboard->tap(KEY_RIGHTMETA);
    EXPECT_EQ(takeSeen(), "~rightOption/O ~rightOption ~rightCommand/M ~rightCommand");
    EXPECT_EQ(takeClientKeys(), "");
}

TEST_P(SessionTap, aConsumedModifierModifiesNothing)
{
    startTap();
    customise({FKey::rightOption});
    keyboard->chord({KEY_RIGHTALT, KEY_A});
    EXPECT_EQ(takeClientKeysWithModifiers(), "+a -a");
    EXPECT_EQ(takeSeen(), "~rightOption/O ~rightOption");
}

TEST_P(SessionTap, theOptionFlagStaysWhileTheLeftTwinIsHeld)
{
    startTap();
    customise({FKey::rightOption});
    keyboard->press(KEY_LEFTALT);
    keyboard->tap(KEY_RIGHTALT);
    keyboard->release(KEY_LEFTALT);
    EXPECT_EQ(takeSeen(), "~rightOption/O ~rightOption/O");
}

TEST_P(SessionTap, aConsumedCapsLockDoesNotLock)
{
    startTap();
    customise({FKey::capsLock});
    keyboard->tap(KEY_CAPSLOCK);
    keyboard->tap(KEY_A);
    EXPECT_EQ(takeClientKeysWithModifiers(), "+a -a");
    EXPECT_EQ(takeSeen(), "~capsLock ~capsLock");
}

TEST_P(SessionTap, mediaKeysComeAsSystemEventsAndKeysOfTheTopRowAsKeyCodes)
{
    startTap();
    customise({FKey::f1, FKey::f3, FKey::f10});
    keyboard->tap(KEY_BRIGHTNESSDOWN);
    keyboard->tap(KEY_SCALE);
    keyboard->tap(KEY_MUTE);
    keyboard->tap(KEY_F10);
    keyboard->tap(KEY_VOLUMEUP);
    EXPECT_EQ(takeSeen(), "+media3 -media3 +missionControl -missionControl +media7 -media7 +f10 -f10");
    EXPECT_EQ(takeClientKeys(), "+volumeUp -volumeUp");
}

TEST_P(SessionTap, theGrabsFollowWhatIsPublished)
{
    startTap();
    customise({FKey::f5});
    keyboard->tap(KEY_F5);
    settle();
    customise({FKey::f6});
    keyboard->tap(KEY_F5);
    keyboard->tap(KEY_F6);
    settle();
    customise({});
    keyboard->tap(KEY_F6);
    EXPECT_EQ(takeSeen(), "+f5 -f5 +f6 -f6");
    EXPECT_EQ(takeClientKeys(), "+f5 -f5 +f6 -f6");
}

TEST_P(SessionTap, aPressThatWasConsumedKeepsItsReleaseFromTheApplication)
{
    startTap();
    customise({FKey::f5});
    keyboard->press(KEY_F5);
    settle();
    customise({});
    keyboard->release(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
    EXPECT_EQ(takeClientKeys(), "");
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeClientKeys(), "+f5 -f5");
}

TEST_P(SessionTap, aPressThatPassedKeepsItsReleaseForTheApplication)
{
    startTap();
    customise({});
    keyboard->press(KEY_F5);
    settle();
    customise({FKey::f5});
    keyboard->release(KEY_F5);
    EXPECT_EQ(takeClientKeys(), "+f5 -f5");
    EXPECT_EQ(takeSeen(), "");
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
}

TEST_P(SessionTap, aKeyHeldSinceBeforeItWasCustomisedGoesOnRepeatingForTheApplication)
{
    startTap();
    customise({});
    keyboard->press(KEY_F5);
    settle();
    customise({FKey::f5});
    const bool hasRepeated =
        queue.runUntil([&] { return client->keys().find("-f5 +f5 -f5 +f5") != std::string::npos; });
    EXPECT_TRUE(hasRepeated) << client->keys();
    keyboard->release(KEY_F5);
    EXPECT_EQ(takeSeen(), "");
}

// Between a press of ours and the end of its grab the keyboard is ours as a whole, however short that is.
TEST_P(SessionTap, aKeyTypedInTheSameInstantReachesTheApplication)
{
    startTap();
    customise({FKey::f5});
    keyboard->play({down(KEY_F5), down(KEY_A), up(KEY_A), up(KEY_F5)});
    EXPECT_EQ(takeClientKeys(), "+a -a");
    keyboard->play({down(KEY_F5), down(KEY_LEFTSHIFT)});
    settle();
    keyboard->play({down(KEY_A), up(KEY_A), up(KEY_LEFTSHIFT), down(KEY_B), up(KEY_B), up(KEY_F5)});
    EXPECT_EQ(takeClientKeysWithModifiers(), "+leftShift +Shift.a -Shift.a -Shift.leftShift +b -b");
    EXPECT_EQ(takeSeen(), "+f5 -f5 +f5 -f5");
}

TEST_P(SessionTap, aKeyLetGoInTheSameInstantDoesNotStick)
{
    startTap();
    customise({FKey::f5});
    keyboard->press(KEY_LEFTCTRL);
    keyboard->press(KEY_A);
    settle();
    keyboard->play({down(KEY_F5), up(KEY_A), up(KEY_LEFTCTRL), up(KEY_F5)});
    EXPECT_EQ(takeClientKeys(), "+leftControl +a -a -leftControl");
    keyboard->tap(KEY_B);
    EXPECT_EQ(takeClientKeysWithModifiers(), "+b -b");
}

TEST_P(SessionTap, twoCustomisedKeysInTheSameInstantAreBothConsumed)
{
    startTap();
    customise({FKey::f5, FKey::f6});
    keyboard->play({down(KEY_F5), down(KEY_F6), up(KEY_F5), up(KEY_F6)});
    EXPECT_EQ(takeSeen(), "+f5 +f6 -f5 -f6");
    EXPECT_EQ(takeClientKeys(), "");
}

TEST_P(SessionTap, aPressThatTheTapLetsPassIsPostedAgain)
{
    startTap();
    customise({FKey::f5});
    // The application has changed its mind and the thread does not know yet.
    custom = {};
    keyboard->press(KEY_F5);
    settle();
    settle();
    keyboard->release(KEY_F5);
    EXPECT_EQ(takeClientKeys(), "+f5 -f5");
    EXPECT_EQ(takeSeen(), "+f5 -f5");
}

TEST_P(SessionTap, aPressThatPassesAfterItsReleaseIsPostedAsAWhole)
{
    startTap();
    customise({FKey::f5});
    custom = {};
    keyboard->tap(KEY_F5);
    thread->settle();
    EXPECT_EQ(takeClientKeys(), "+f5 -f5");
}

TEST_P(SessionTap, aReleaseOfAPostedPressDoesNotWaitForTheVerdictOnIt)
{
    startTap();
    customise({FKey::f5});
    custom = {};
    keyboard->press(KEY_F5);
    settle();
    settle();
    custom = {FKey::f5};
    keyboard->release(KEY_F5);
    EXPECT_EQ(takeClientKeys(), "+f5 -f5");
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeClientKeys(), "");
}

TEST_P(SessionTap, aTapConsumesOnlyWhileItIsAttachedAndEnabled)
{
    startTap();
    customise({FKey::f5});
    EXPECT_TRUE(tap->isEnabled());
    tap->disable();
    EXPECT_FALSE(tap->isEnabled());
    settle();
    keyboard->tap(KEY_F5);
    tap->enable();
    tap->detachFromMainLoop();
    settle();
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeClientKeys(), "+f5 -f5 +f5 -f5");
    tap->attachToMainLoop();
    settle();
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5 -f5");
    EXPECT_EQ(takeClientKeys(), "");
}

TEST_P(SessionTap, whatATapTookBeforeItWentIsPostedAgain)
{
    startTap();
    customise({FKey::f5});
    keyboard->tap(KEY_F5);
    thread->settle();
    tap.reset();
    EXPECT_EQ(takeClientKeys(), "+f5 -f5");
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeClientKeys(), "+f5 -f5");
}

TEST_P(SessionTap, aTapMayGoInTheMiddleOfItsOwnCall)
{
    startTap();
    customise({FKey::f5});
    onEvent = [&](const InputEvent&) { tap.reset(); };
    keyboard->tap(KEY_F5);
    EXPECT_EQ(takeSeen(), "+f5");
}

TEST_P(SessionTap, thereIsOneSessionTapAtATimeAndNoHidTap)
{
    startTap();
    const auto pass = [](const InputEvent&) { return EventVerdict::pass; };
    EXPECT_EQ(taps->createTap(TapLocation::session, pass), nullptr);
    EXPECT_EQ(taps->createTap(TapLocation::hid, pass), nullptr);
    EXPECT_FALSE(taps->openHidManager([](const HidValue&) {})->isOpen());
    tap.reset();
    EXPECT_NE(taps->createTap(TapLocation::session, pass), nullptr);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(OnServer, SessionTap, allServers, serverName);

} // namespace tarvin::x11
