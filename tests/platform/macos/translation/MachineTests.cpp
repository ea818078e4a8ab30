#include "platform/macos/translation/BrightnessReader.h"
#include "platform/macos/translation/OpenPanelAnswer.h"
#include "platform/macos/translation/PowerRecord.h"

#include "support/QtPrinters.h"

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

TEST(OpenPanelAnswer, onlyAConfirmedPathIsChosen)
{
    const std::optional<QString> paint = QStringLiteral("/Applications/Paint.app");
    EXPECT_EQ(chosenPath(confirmedResponse, paint), paint);
    EXPECT_EQ(chosenPath(confirmedResponse, std::nullopt), std::nullopt);
    EXPECT_EQ(chosenPath(0, paint), std::nullopt) << "cancelled";
    EXPECT_EQ(chosenPath(-1000, paint), std::nullopt) << "ended by the system";
}

} // namespace

} // namespace tarvin::macos
