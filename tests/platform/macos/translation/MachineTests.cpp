#include "platform/macos/translation/BrightnessReader.h"
#include "platform/macos/translation/PowerRecord.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarvin::macos {

namespace {

TEST(BrightnessReader, whatIsNoPartOfTheWholeIsNothing)
{
    EXPECT_EQ(brightnessOf(0), 0.0);
    EXPECT_EQ(brightnessOf(0.5F), 0.5);
    EXPECT_EQ(brightnessOf(1), 1.0);
    EXPECT_EQ(brightnessOf(brightnessNotRead), std::nullopt) << "a display without brightness";
    EXPECT_EQ(brightnessOf(1.5F), std::nullopt);
    EXPECT_EQ(brightnessOf(std::nanf("")), std::nullopt);
}

TEST(PowerRecord, whatIsNotToldStaysUnknown)
{
    const PowerSource battery = powerSourceOf({.currentCapacity = 87, .isCharging = true});
    EXPECT_EQ(battery.currentCapacity, 87);
    EXPECT_EQ(battery.isCharging, true);
    const PowerSource silent = powerSourceOf({});
    EXPECT_EQ(silent.currentCapacity, std::nullopt);
    EXPECT_EQ(silent.isCharging, std::nullopt);
}

} // namespace

} // namespace tarvin::macos
