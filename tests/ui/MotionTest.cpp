#include "ui/Motion.h"

#include <gtest/gtest.h>

namespace tarvin {

using namespace std::chrono_literals;

TEST(Motion, aSpringStartsAtRestPassesItsGoalAndSettlesOnIt)
{
    const Motion spring = Motion::spring(0.3, 0.75);
    EXPECT_EQ(spring.valueAt(0), 0);
    EXPECT_LT(spring.valueAt(0.005), 0.02) << "no speed at first";
    double highest = 0;
    for (double t = 0; t < 1; t += 0.005)
        highest = std::max(highest, spring.valueAt(t));
    // exp(-pi * damping / sqrt(1 - damping^2)) is how far a spring of that damping overshoots.
    EXPECT_NEAR(highest, 1.0284, 0.0005);
    for (double t = spring.settlingSeconds(); t < 2; t += 0.01)
        EXPECT_NEAR(spring.valueAt(t), 1, 0.001) << t;
}

TEST(Motion, aSpringWithALongerResponseIsSlower)
{
    EXPECT_GT(Motion::spring(0.25, 0.8).valueAt(0.1), Motion::spring(0.5, 0.8).valueAt(0.1));
    EXPECT_GT(Motion::spring(0.5, 0.8).settlingSeconds(), Motion::spring(0.25, 0.8).settlingSeconds());
}

TEST(Motion, aSpringKeepsTheSpeedItHas)
{
    const Motion spring = Motion::spring(0.3, 0.8);
    EXPECT_NEAR(spring.velocityAt(0, 5), 5, 0.1);
    EXPECT_GT(spring.valueAt(0.02, 5), spring.valueAt(0.02, 0));
}

TEST(Motion, anEaseIsSlowAtBothEndsAndHalfwayInTheMiddle)
{
    const Motion ease = Motion::easeInOut(200ms);
    EXPECT_EQ(ease.valueAt(0), 0);
    EXPECT_NEAR(ease.valueAt(0.1), 0.5, 0.001);
    EXPECT_LT(ease.valueAt(0.02), 0.05);
    EXPECT_GT(ease.valueAt(0.18), 0.95);
    EXPECT_EQ(ease.valueAt(0.2), 1);
    EXPECT_EQ(ease.settlingSeconds(), 0.2);
}

} // namespace tarvin
