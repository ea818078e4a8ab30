#pragma once

#include "platform/ports/EventPoster.h"
#include "platform/ports/InputTaps.h"
#include "platform/ports/KeyRecording.h"
#include "platform/ports/Permission.h"

#include <gtest/gtest.h>

namespace tarvin::contracts {

/// What every platform promises of the keyboard, with and without the permission, and without a key pressed or posted.
/// A platform under test has `inputTaps()`, `eventPoster()`, `keyRecording()` and `permission()`.
template <typename Tested> class InputContract : public testing::Test
{
protected:
    Tested tested;
    InputTaps& taps = tested.inputTaps();
};

TYPED_TEST_SUITE_P(InputContract);

TYPED_TEST_P(InputContract, aTapIsSwitchedOffUntilItIsEnabled)
{
    for (const TapLocation location : {TapLocation::session, TapLocation::hid}) {
        const auto tap = this->taps.createTap(location, [](const InputEvent&) { return EventVerdict::pass; });
        // None without the permission.
        if (!tap)
            continue;
        EXPECT_FALSE(tap->isEnabled());
        tap->attachToMainLoop();
        tap->enable();
        EXPECT_TRUE(tap->isEnabled());
        tap->disable();
        EXPECT_FALSE(tap->isEnabled());
        tap->detachFromMainLoop();
    }
}

TYPED_TEST_P(InputContract, monitorsComeAndGo)
{
    auto global = this->taps.addGlobalMonitor([](const InputEvent&) {});
    auto local = this->taps.addLocalMonitor([](const InputEvent&) { return EventVerdict::pass; });
    EXPECT_NE(local, nullptr);
    global.reset();
    local.reset();
}

TYPED_TEST_P(InputContract, theObserverOfTheHardwareIsThereEvenIfItStaysSilent)
{
    const auto manager = this->taps.openHidManager([](const HidValue&) {});
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(manager->isOpen(), manager->isOpen());
}

TYPED_TEST_P(InputContract, theKeysOfTheActionsCanBeMade)
{
    // C, V, the return key, escape, F5, the arrow upwards.
    for (const int key : {8, 9, 36, 53, 96, 126})
        EXPECT_TRUE(this->tested.eventPoster().canMakeKey(static_cast<KeyCode>(key))) << key;
    EXPECT_TRUE(this->tested.eventPoster().canMakeClick());
}

TYPED_TEST_P(InputContract, onlyOneRecordsAtATime)
{
    const auto swallow = [](const PressedKey&) { return RecordingVerdict::swallow; };
    auto first = this->tested.keyRecording().start(swallow, {});
    if (!first)
        GTEST_SKIP() << "there is no keyboard to record from";
    EXPECT_EQ(this->tested.keyRecording().start(swallow, {}), nullptr);
    first.reset();
    EXPECT_NE(this->tested.keyRecording().start(swallow, {}), nullptr);
}

TYPED_TEST_P(InputContract, askingForThePermissionDoesNotChangeIt)
{
    const bool isTrusted = this->tested.permission().isProcessTrusted();
    EXPECT_EQ(this->tested.permission().isProcessTrusted(), isTrusted);
}

REGISTER_TYPED_TEST_SUITE_P(InputContract, aTapIsSwitchedOffUntilItIsEnabled, monitorsComeAndGo,
    theObserverOfTheHardwareIsThereEvenIfItStaysSilent, theKeysOfTheActionsCanBeMade, onlyOneRecordsAtATime,
    askingForThePermissionDoesNotChangeIt);

} // namespace tarvin::contracts
