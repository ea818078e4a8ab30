#include "ui/AnimatedValue.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

/// The animation is moved by hand: `setCurrentTime` stands for the clock.
class AnimatedValueTest : public testing::Test
{
protected:
    AnimatedValue value{0, [this] { ++changes; }};
    int changes = 0;
};

constexpr auto spring = Motion::spring(0.3, 0.75);

TEST_F(AnimatedValueTest, goesToItsTargetAndStops)
{
    value.animateTo(10, spring);
    EXPECT_EQ(value.state(), QAbstractAnimation::Running);
    value.setCurrentTime(100);
    EXPECT_GT(value.value(), 3);
    value.setCurrentTime(5000);
    EXPECT_EQ(value.value(), 10);
    EXPECT_EQ(value.state(), QAbstractAnimation::Stopped);
    EXPECT_GT(changes, 1);
}

TEST_F(AnimatedValueTest, turnsAroundFromWhereItIsWithTheSpeedItHas)
{
    value.animateTo(10, spring);
    value.setCurrentTime(80);
    const double there = value.value();
    value.animateTo(0, spring);
    EXPECT_EQ(value.value(), there);
    value.setCurrentTime(10);
    EXPECT_GT(value.value(), there) << "it still moves on before it turns";
    value.setCurrentTime(5000);
    EXPECT_EQ(value.value(), 0);
}

TEST_F(AnimatedValueTest, aTargetThatItHasAlreadyStartsNothing)
{
    value.animateTo(0, spring);
    EXPECT_EQ(value.state(), QAbstractAnimation::Stopped);
    EXPECT_EQ(changes, 0);
}

TEST_F(AnimatedValueTest, jumpsWithoutMovement)
{
    value.animateTo(10, spring);
    value.jumpTo(4);
    EXPECT_EQ(value.value(), 4);
    EXPECT_EQ(value.target(), 4);
    EXPECT_EQ(value.state(), QAbstractAnimation::Stopped);
}

} // namespace

} // namespace tarvin
