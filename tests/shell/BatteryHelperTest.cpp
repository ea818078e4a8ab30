#include "shell/BatteryHelper.h"

#include "platform/simulated/SimulatedPlatform.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using namespace std::chrono_literals;
using Sources = std::vector<PowerSource>;

class BatteryHelperTest : public testing::Test
{
protected:
    /// A machine whose first battery is this one.
    void setBattery(std::optional<int> capacity, std::optional<bool> charging)
    {
        platform.powerSources().setSources(Sources{{capacity, charging}});
    }
    [[nodiscard]] BatteryHelper make() { return {platform.powerSources(), platform.scheduler()}; }

    simulated::SimulatedPlatform platform;
};

TEST_F(BatteryHelperTest, aMachineWithoutABatteryReadsAsFullAndNotCharging)
{
    const BatteryHelper battery = make();
    EXPECT_EQ(battery.percentage(), 100);
    EXPECT_FALSE(battery.isCharging());
    EXPECT_EQ(battery.batteryIcon(), u"battery.100");
}

TEST_F(BatteryHelperTest, itReadsWhenMade)
{
    setBattery(42, true);
    const BatteryHelper battery = make();
    EXPECT_EQ(battery.percentage(), 42);
    EXPECT_TRUE(battery.isCharging());
}

TEST_F(BatteryHelperTest, itReadsAgainEveryThirtySeconds)
{
    setBattery(50, false);
    const BatteryHelper battery = make();
    setBattery(49, true);
    platform.scheduler().advance(29999ms);
    EXPECT_EQ(battery.percentage(), 50);
    platform.scheduler().advance(1ms);
    EXPECT_EQ(battery.percentage(), 49);
    EXPECT_TRUE(battery.isCharging());
    setBattery(48, true);
    platform.scheduler().advance(30s);
    EXPECT_EQ(battery.percentage(), 48);
}

TEST_F(BatteryHelperTest, theTimerGoesWithTheHelper)
{
    {
        const BatteryHelper battery = make();
        EXPECT_EQ(platform.scheduler().runningTimers(), 1U);
    }
    EXPECT_EQ(platform.scheduler().runningTimers(), 0U);
}

TEST_F(BatteryHelperTest, onlyTheFirstSourceCounts)
{
    platform.powerSources().setSources(Sources{{30, false}, {90, true}});
    const BatteryHelper battery = make();
    EXPECT_EQ(battery.percentage(), 30);
    EXPECT_FALSE(battery.isCharging());
}

TEST_F(BatteryHelperTest, aFirstSourceThatTellsNothingHidesTheSecond)
{
    platform.powerSources().setSources(Sources{{std::nullopt, std::nullopt}, {20, true}});
    const BatteryHelper battery = make();
    EXPECT_EQ(battery.percentage(), 100);
    EXPECT_FALSE(battery.isCharging());
}

TEST_F(BatteryHelperTest, whatIsNotToldStaysAsItWas)
{
    setBattery(60, true);
    BatteryHelper battery = make();
    setBattery(55, std::nullopt);
    battery.refresh();
    EXPECT_EQ(battery.percentage(), 55);
    EXPECT_TRUE(battery.isCharging());
    setBattery(std::nullopt, false);
    battery.refresh();
    EXPECT_EQ(battery.percentage(), 55);
    EXPECT_FALSE(battery.isCharging());
}

TEST_F(BatteryHelperTest, aBatteryThatIsGoneLeavesTheLastValues)
{
    setBattery(33, true);
    BatteryHelper battery = make();
    platform.powerSources().setSources(Sources());
    battery.refresh();
    EXPECT_EQ(battery.percentage(), 33);
    platform.powerSources().setSources(std::nullopt);
    battery.refresh();
    EXPECT_EQ(battery.percentage(), 33);
    EXPECT_TRUE(battery.isCharging());
}

TEST_F(BatteryHelperTest, theIconFollowsTheLevelAtEveryBound)
{
    struct Case
    {
        int percentage;
        QStringView icon;
    };
    BatteryHelper battery = make();
    for (const Case& one :
        {Case{100, u"battery.100"}, {75, u"battery.100"}, {74, u"battery.75"}, {50, u"battery.75"}, {49, u"battery.50"},
            {25, u"battery.50"}, {24, u"battery.25"}, {0, u"battery.25"}, {-1, u"battery.25"}, {101, u"battery.25"}}) {
        setBattery(one.percentage, false);
        battery.refresh();
        EXPECT_EQ(battery.batteryIcon(), one.icon) << one.percentage;
    }
}

TEST_F(BatteryHelperTest, aChargingBatteryShowsTheBoltAtEveryLevel)
{
    BatteryHelper battery = make();
    for (const int percentage : {0, 24, 50, 100, 120}) {
        setBattery(percentage, true);
        battery.refresh();
        EXPECT_EQ(battery.batteryIcon(), u"battery.100.bolt") << percentage;
    }
}

TEST_F(BatteryHelperTest, itTellsOfChangesOnly)
{
    setBattery(80, false);
    BatteryHelper battery = make();
    const SignalCount levels(battery, &BatteryHelper::percentageChanged);
    const SignalCount charges(battery, &BatteryHelper::chargingChanged);
    const SignalCount icons(battery, &BatteryHelper::batteryIconChanged);
    battery.refresh();
    EXPECT_EQ(levels.count() + charges.count() + icons.count(), 0);
    setBattery(79, false);
    battery.refresh();
    EXPECT_EQ(levels.count(), 1);
    EXPECT_EQ(charges.count(), 0);
    setBattery(79, true);
    battery.refresh();
    EXPECT_EQ(levels.count(), 1);
    EXPECT_EQ(charges.count(), 1);
    EXPECT_EQ(icons.count(), 2);
}

TEST_F(BatteryHelperTest, aViewReadsTheIconAsAProperty)
{
    setBattery(10, false);
    const BatteryHelper battery = make();
    EXPECT_EQ(battery.property("batteryIcon").toString(), u"battery.25"_qs);
    EXPECT_EQ(battery.property("percentage").toInt(), 10);
}

} // namespace

} // namespace tarvin::test
