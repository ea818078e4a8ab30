#include "platform/linux/x11/KeyEvents.h"

#include "platform/linux/x11/EffectText.h"
#include "platform/linux/x11/ModifierMasks.h"
#include "platform/linux/x11/PublishedKeys.h"

#include <gtest/gtest.h>

namespace tarvin::x11 {

namespace {

std::string eventText(std::string_view name, KeyMotion motion, EventFlags flags = EventFlags::none)
{
    const auto event = makeKeyEvent(keycodeNamed(name), motion, flags);
    return event ? textOf(*event) : "nothing";
}

TEST(KeyEvents, aKeyGoesDownRepeatsAndGoesUp)
{
    EXPECT_EQ(eventText("f5", KeyMotion::press), "+f5");
    EXPECT_EQ(eventText("f5", KeyMotion::repeat, EventFlags::shift), "*f5/S");
    EXPECT_EQ(eventText("f5", KeyMotion::release), "-f5");
}

TEST(KeyEvents, aModifierChangesFlagsAndNeverRepeats)
{
    EXPECT_EQ(eventText("rightOption", KeyMotion::press, EventFlags::option), "~rightOption/O");
    EXPECT_EQ(eventText("capsLock", KeyMotion::release), "~capsLock");
    EXPECT_EQ(eventText("capsLock", KeyMotion::repeat), "nothing");
}

TEST(KeyEvents, aMediaKeyHasItsTypeAndStateInOneWord)
{
    const auto down = makeKeyEvent(keycodeNamed("brightnessDown"), KeyMotion::press, EventFlags::none);
    ASSERT_TRUE(down && down->systemDefined);
    EXPECT_EQ(down->type, InputEventType::systemDefined);
    EXPECT_EQ(down->systemDefined->subtype, 8);
    EXPECT_EQ(down->systemDefined->data1, 0x00030A00U);
    EXPECT_EQ(
        makeKeyEvent(keycodeNamed("mute"), KeyMotion::repeat, EventFlags::none)->systemDefined->data1, 0x00070A01U);
    EXPECT_EQ(
        makeKeyEvent(keycodeNamed("mute"), KeyMotion::release, EventFlags::none)->systemDefined->data1, 0x00070B00U);
}

TEST(KeyEvents, aKeyWithoutAWordHasNoEvent)
{
    EXPECT_FALSE(makeKeyEvent(78, KeyMotion::press, EventFlags::none));
    EXPECT_FALSE(makeKeyEvent(0, KeyMotion::press, EventFlags::none));
}

TEST(KeyEvents, everyKeyThatMeansACustomisableKeyIsFound)
{
    const KeycodeSet keycodes = keycodesOf({FKey::f10, FKey::rightOption, FKey::fnGlobe});
    KeycodeSet expected;
    for (const char* name : {"f10", "mute", "rightOption"})
        expected.set(keycodeNamed(name));
    EXPECT_EQ(keycodes, expected);
    EXPECT_TRUE(keycodesOf({}).none());
}

TEST(KeyEvents, twinsAreTheTwoSidesOfAModifier)
{
    EXPECT_EQ(twinBitOf(keycodeNamed("leftShift")), sideBitOf(keycodeNamed("rightShift")));
    EXPECT_EQ(twinBitOf(keycodeNamed("rightCommand")), sideBitOf(keycodeNamed("leftCommand")));
    EXPECT_EQ(sideBitOf(keycodeNamed("capsLock")), 0);
    EXPECT_EQ(twinBitOf(keycodeNamed("a")), 0);
    EXPECT_EQ(ownFlagOf(keycodeNamed("rightControl")), EventFlags::control);
    EXPECT_EQ(ownFlagOf(keycodeNamed("capsLock")), EventFlags::none);
}

TEST(KeyEvents, flagsLeaveOutTheLocks)
{
    const ModifierMasks masks;
    EXPECT_EQ(masks.flagsOf(0x02 | 0x10), EventFlags::none);
    EXPECT_EQ(masks.flagsOf(0x01 | 0x02 | 0x40), EventFlags::shift | EventFlags::command);
    EXPECT_EQ(masks.maskFor(EventFlags::control | EventFlags::option | EventFlags::function), 0x04 | 0x08);
}

TEST(PublishedKeysCell, whatIsStoredIsLoaded)
{
    PublishedKeysCell cell;
    EXPECT_EQ(cell.load(), PublishedKeys());
    for (const SummonShortcut summon : {SummonShortcut::taken, SummonShortcut::released}) {
        for (const FKeySet keys : {FKeySet{}, FKeySet{FKey::f1, FKey::f19}, FKeySet::all()}) {
            cell.store({.keys = keys, .summon = summon});
            EXPECT_EQ(cell.load(), (PublishedKeys{keys, summon}));
        }
    }
}

} // namespace

} // namespace tarvin::x11
