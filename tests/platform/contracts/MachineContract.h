#pragma once

#include "platform/ports/DisplayBrightness.h"
#include "platform/ports/Pointer.h"
#include "platform/ports/PowerSources.h"
#include "platform/ports/Screens.h"
#include "platform/ports/Sounds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tarvin::contracts {

[[nodiscard]] inline bool contains(const Rect& outer, const Rect& inner)
{
    return inner.origin.x >= outer.origin.x && inner.origin.y >= outer.origin.y
        && inner.origin.x + inner.size.width <= outer.origin.x + outer.size.width
        && inner.origin.y + inner.size.height <= outer.origin.y + outer.size.height;
}

/// What every platform promises of displays, pointer, batteries and loudspeaker. A platform under test has `screens()`,
/// `pointer()`, `displayBrightness()`, `powerSources()` and `sounds()`.
template <typename Tested> class MachineContract : public testing::Test
{
protected:
    Tested tested;
};

TYPED_TEST_SUITE_P(MachineContract);

TYPED_TEST_P(MachineContract, theTopLeftOfThePrimaryDisplayIsTheOrigin)
{
    const std::vector<Screen> screens = this->tested.screens().screens();
    if (screens.empty())
        GTEST_SKIP() << "there is no display";
    EXPECT_EQ(screens.front().frame.origin, (Point{}));
    for (const Screen& screen : screens) {
        EXPECT_GT(screen.frame.size.width, 0);
        EXPECT_TRUE(contains(screen.frame, screen.visibleFrame));
    }
}

TYPED_TEST_P(MachineContract, theDisplayWithTheKeyboardIsOneOfTheDisplays)
{
    const std::vector<Screen> screens = this->tested.screens().screens();
    const std::optional<Screen> main = this->tested.screens().mainScreen();
    EXPECT_EQ(main.has_value(), !screens.empty());
    EXPECT_TRUE(!main || std::ranges::find(screens, *main) != screens.end());
}

TYPED_TEST_P(MachineContract, thePointerHasAPlace)
{
    const Point first = this->tested.pointer().position();
    EXPECT_TRUE(std::isfinite(first.x) && std::isfinite(first.y));
}

TYPED_TEST_P(MachineContract, brightnessIsAPartOfTheWhole)
{
    const std::optional<double> brightness = this->tested.displayBrightness().current();
    EXPECT_TRUE(!brightness || (*brightness >= 0 && *brightness <= 1));
}

TYPED_TEST_P(MachineContract, aBatteryIsChargedToSomePercentage)
{
    const auto sources = this->tested.powerSources().read();
    if (!sources)
        return;
    for (const PowerSource& source : *sources) {
        if (source.currentCapacity) {
            EXPECT_GE(*source.currentCapacity, 0);
            EXPECT_LE(*source.currentCapacity, 100);
        }
    }
}

TYPED_TEST_P(MachineContract, aSoundThatIsNotThereIsNone)
{
    EXPECT_EQ(this->tested.sounds().create(QStringLiteral("/no/such/sound.aiff")), std::nullopt);
    EXPECT_EQ(this->tested.sounds().create(QString()), std::nullopt);
}

REGISTER_TYPED_TEST_SUITE_P(MachineContract, theTopLeftOfThePrimaryDisplayIsTheOrigin,
    theDisplayWithTheKeyboardIsOneOfTheDisplays, thePointerHasAPlace, brightnessIsAPartOfTheWhole,
    aBatteryIsChargedToSomePercentage, aSoundThatIsNotThereIsNone);

} // namespace tarvin::contracts
