#include "interception/KeyMotion.h"
#include "interception/support/InputEvents.h"
#include "interception/support/Printers.h"

#include <gtest/gtest.h>

namespace tarvin::test {

TEST(KeyMotion, aRightModifierIsDownWhileItsFlagIsSet)
{
    constexpr auto everythingElse = EventFlags::shift | EventFlags::control;
    EXPECT_TRUE(isDownByFlags(FKey::rightOption, EventFlags::option, {}));
    EXPECT_FALSE(isDownByFlags(FKey::rightOption, everythingElse | EventFlags::command | EventFlags::function, {}));
    EXPECT_TRUE(isDownByFlags(FKey::rightCommand, EventFlags::command, {}));
    EXPECT_FALSE(isDownByFlags(FKey::rightCommand, everythingElse | EventFlags::option | EventFlags::function, {}));
    EXPECT_TRUE(isDownByFlags(FKey::fnGlobe, EventFlags::function, {}));
    EXPECT_FALSE(isDownByFlags(FKey::fnGlobe, everythingElse | EventFlags::option | EventFlags::command, {}));
}

TEST(KeyMotion, whetherAModifierIsHeldInTheFunnelMakesNoDifferenceToItsFlag)
{
    EXPECT_TRUE(isDownByFlags(FKey::rightOption, EventFlags::option, FKeySet::all()));
    EXPECT_FALSE(isDownByFlags(FKey::rightOption, EventFlags::none, {}));
}

TEST(KeyMotion, theReleaseOfARightModifierReadsAsAPressWhileItsLeftTwinIsHeld)
{
    // The flag stays set for the left-hand key.
    EXPECT_TRUE(isDownByFlags(FKey::rightOption, EventFlags::option, {FKey::rightOption}));
}

TEST(KeyMotion, capsLockGoesByTurns)
{
    EXPECT_TRUE(isDownByFlags(FKey::capsLock, EventFlags::none, {}));
    EXPECT_FALSE(isDownByFlags(FKey::capsLock, EventFlags::none, {FKey::capsLock}));
}

TEST(KeyMotion, anyOtherKeyOfAFlagsChangedEventGoesByTurnsToo)
{
    EXPECT_TRUE(isDownByFlags(FKey::f5, EventFlags::none, {FKey::capsLock}));
    EXPECT_FALSE(isDownByFlags(FKey::f5, EventFlags::function, {FKey::f5}));
}

TEST(KeyMotion, keyEventsSayWhatTheyAre)
{
    EXPECT_EQ(motionOf(keyDown(FKey::f5), FKey::f5, {}), KeyMotion::down);
    EXPECT_EQ(motionOf(keyRepeat(FKey::f5), FKey::f5, {}), KeyMotion::repeat);
    EXPECT_EQ(motionOf(keyUp(FKey::f5), FKey::f5, {}), KeyMotion::up);
}

TEST(KeyMotion, aFlagsChangedEventGoesByTheRule)
{
    EXPECT_EQ(motionOf(flagsChanged(FKey::fnGlobe, EventFlags::function), FKey::fnGlobe, {}), KeyMotion::down);
    EXPECT_EQ(motionOf(flagsChanged(FKey::fnGlobe, EventFlags::none), FKey::fnGlobe, {}), KeyMotion::up);
}

TEST(KeyMotion, aMediaKeyIsDownInOneStateAndUpInEveryOther)
{
    EXPECT_EQ(motionOf(mediaKey(mediaSoundUp, 0x0A), FKey::f12, {}), KeyMotion::down);
    EXPECT_EQ(motionOf(mediaKey(mediaSoundUp, 0x0A, 1), FKey::f12, {}), KeyMotion::repeat);
    EXPECT_EQ(motionOf(mediaKey(mediaSoundUp, 0x0B), FKey::f12, {}), KeyMotion::up);
    EXPECT_EQ(motionOf(mediaKey(mediaSoundUp, 0x0B, 1), FKey::f12, {}), KeyMotion::up);
    EXPECT_EQ(motionOf(mediaKey(mediaSoundUp, 0x00), FKey::f12, {}), KeyMotion::up);
}

TEST(KeyMotion, aKeyEventIsAboutTheKeyOfItsCode)
{
    EXPECT_EQ(keyOf(keyDown(FKey::f5)), FKey::f5);
    EXPECT_EQ(keyOf(keyUp(KeyCode(145))), FKey::f1);
    EXPECT_EQ(keyOf(flagsChanged(FKey::rightOption, EventFlags::option)), FKey::rightOption);
    EXPECT_EQ(keyOf(keyDown(keyA)), std::nullopt);
}

TEST(KeyMotion, aMediaKeyIsAboutTheKeyThatCarriesItsFunction)
{
    EXPECT_EQ(keyOf(mediaDown(mediaBrightnessDown)), FKey::f1);
    EXPECT_EQ(keyOf(mediaUp(mediaSoundUp)), FKey::f12);
    EXPECT_EQ(keyOf(mediaDown(mediaEject)), std::nullopt);
}

TEST(KeyMotion, otherSystemEventsAreAboutNoKey)
{
    InputEvent opaque = mediaDown(mediaSoundUp);
    opaque.systemDefined.reset();
    opaque.keyCode = virtualKeyCode(FKey::f5);
    EXPECT_EQ(keyOf(opaque), std::nullopt);
    EXPECT_EQ(keyOf(systemDefined(7, mediaDown(mediaSoundUp).systemDefined->data1)), std::nullopt);
}

} // namespace tarvin::test
