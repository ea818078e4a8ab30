#include "interception/support/InputEvents.h"
#include "interception/support/InterceptionDesktop.h"
#include "interception/support/Printers.h"

#include <gtest/gtest.h>

// Which of the keys that pass the taps the drawn keyboard shows.

namespace tarvin::test {

class StudioAnimationTest : public testing::Test
{
protected:
    InterceptionDesktop desktop;
};

TEST_F(StudioAnimationTest, aPlainKeyIsAnimatedWhileTheStudioIsWatched)
{
    desktop.showStudio();
    EXPECT_EQ(desktop.tap(keyDown(keyA)), EventVerdict::pass);
    EXPECT_EQ(desktop.tap(keyUp(keyA)), EventVerdict::pass);
    EXPECT_EQ(desktop.strokes(), "+A -A");
}

TEST_F(StudioAnimationTest, theRepeatOfAPlainKeyIsAnimatedAsAPress)
{
    desktop.showStudio();
    desktop.tap(keyRepeat(keyA));
    EXPECT_EQ(desktop.strokes(), "+A");
}

TEST_F(StudioAnimationTest, nothingIsAnimatedWhileTheStudioIsClosed)
{
    desktop.platform.appShell().becomeActive();
    desktop.play("tap +F2 | tap -F2");
    desktop.tap(keyDown(keyA));
    EXPECT_EQ(desktop.strokes(), "");
}

TEST_F(StudioAnimationTest, nothingIsAnimatedWhileAnotherApplicationIsActive)
{
    desktop.studio.visible = true;
    desktop.play("tap +F2 | tap -F2");
    desktop.tap(keyDown(keyA));
    EXPECT_EQ(desktop.strokes(), "");
}

TEST_F(StudioAnimationTest, nothingIsAnimatedWithTheMasterSwitchOff)
{
    desktop.showStudio();
    desktop.profile.setInterceptionEnabled(false);
    desktop.tap(keyDown(keyA));
    desktop.play("tap +F2 | tap -F2");
    EXPECT_EQ(desktop.strokes(), "");
}

TEST_F(StudioAnimationTest, theCommaKeyPassesWithoutAnimation)
{
    desktop.showStudio();
    EXPECT_EQ(desktop.tap(keyDown(keyComma)), EventVerdict::pass);
    EXPECT_EQ(desktop.strokes(), "");
}

TEST_F(StudioAnimationTest, withCommandOrControlHeldNoPlainKeyIsAnimated)
{
    desktop.showStudio();
    EXPECT_EQ(desktop.tap(keyDown(keyA, EventFlags::command)), EventVerdict::pass);
    EXPECT_EQ(desktop.tap(keyUp(keyA, EventFlags::control)), EventVerdict::pass);
    EXPECT_EQ(desktop.strokes(), "");
    desktop.tap(keyDown(keyA, EventFlags::option | EventFlags::shift));
    EXPECT_EQ(desktop.strokes(), "+A");
}

TEST_F(StudioAnimationTest, aLeftHandModifierIsNotAnimated)
{
    desktop.showStudio();
    EXPECT_EQ(desktop.tap(flagsChanged(keyLeftShift, EventFlags::shift)), EventVerdict::pass);
    EXPECT_EQ(desktop.strokes(), "");
}

TEST_F(StudioAnimationTest, aFactoryKeyIsAnimatedWhateverModifiersAreHeld)
{
    desktop.showStudio();
    desktop.tap(keyDown(FKey::f2, EventFlags::command));
    desktop.tap(keyRepeat(FKey::f2));
    desktop.tap(keyUp(FKey::f2));
    EXPECT_EQ(desktop.strokes(), "+F2 +F2 -F2");
}

TEST_F(StudioAnimationTest, aFactoryModifierIsAnimatedByItsFlag)
{
    desktop.showStudio();
    desktop.play("tap +RightOption | tap -RightOption");
    EXPECT_EQ(desktop.verdicts(), "pass pass");
    EXPECT_EQ(desktop.strokes(), "+RightOption -RightOption");
}

TEST_F(StudioAnimationTest, aFactoryCapsLockPassesAndIsAnimatedAsAPressEachTime)
{
    desktop.showStudio();
    desktop.play("tap +CapsLock | tap -CapsLock | tap +CapsLock");
    EXPECT_EQ(desktop.verdicts(), "pass pass pass");
    EXPECT_EQ(desktop.strokes(), "+CapsLock +CapsLock +CapsLock");
    EXPECT_EQ(desktop.held(), "");
}

} // namespace tarvin::test
