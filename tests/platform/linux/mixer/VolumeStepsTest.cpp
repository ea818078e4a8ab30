#include "platform/linux/mixer/VolumeSteps.h"

namespace tarvin::mixer {

TEST(VolumeSteps, aStepIsSixPointsOfAHundred)
{
    EXPECT_EQ(steppedPercent(50, 6), 56);
    EXPECT_EQ(steppedPercent(50, -6), 44);
}

TEST(VolumeSteps, theStepsEndAtSilenceAndAtFullVolume)
{
    EXPECT_EQ(steppedPercent(97, 6), 100);
    EXPECT_EQ(steppedPercent(100, 6), 100);
    EXPECT_EQ(steppedPercent(3, -6), 0);
}

TEST(VolumeSteps, whatIsLouderThanFullIsNotMadeQuieterByAStepUp)
{
    EXPECT_EQ(steppedPercent(120, 6), 120);
    EXPECT_EQ(steppedPercent(120, -6), 114);
}

TEST(VolumeSteps, everyPercentageSurvivesTheServersUnits)
{
    for (int percent = 0; percent <= 150; ++percent)
        EXPECT_EQ(percentOf(unitsOf(percent)), percent);
    EXPECT_EQ(unitsOf(100), fullVolume);
}

} // namespace tarvin::mixer
