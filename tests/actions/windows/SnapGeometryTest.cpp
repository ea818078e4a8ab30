#include "actions/windows/SnapGeometry.h"

#include "platform/simulated/SimulatedScreens.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarvin {

void PrintTo(const Rect& rect, std::ostream* stream)
{
    *stream << rect.origin.x << ',' << rect.origin.y << ' ' << rect.size.width << 'x' << rect.size.height;
}

namespace {

constexpr Screen leftScreen{.frame = {{0, 0}, {1000, 800}}, .visibleFrame = {{0, 25}, {1000, 700}}};
constexpr Screen rightScreen{.frame = {{1000, -100}, {2000, 1200}}, .visibleFrame = {{1000, -75}, {1900, 1175}}};

class SnapGeometryTest : public testing::Test
{
protected:
    SnapGeometryTest() { screens.setScreens({leftScreen, rightScreen}); }
    [[nodiscard]] Rect visible(const Rect& window) const { return visibleFrameFor(screens, window); }

    simulated::SimulatedScreens screens;
};

TEST_F(SnapGeometryTest, theCentreDecidesOnTheScreen)
{
    EXPECT_EQ(visible({{900, 10}, {100, 100}}), leftScreen.visibleFrame);
    EXPECT_EQ(visible({{950, 10}, {102, 100}}), rightScreen.visibleFrame);
}

TEST_F(SnapGeometryTest, anEdgeBelongsToTheScreenThatBeginsThere)
{
    EXPECT_EQ(visible({{950, 0}, {100, 100}}), rightScreen.visibleFrame);
    EXPECT_EQ(visible({{949.9, 0}, {100, 100}}), leftScreen.visibleFrame);
}

TEST_F(SnapGeometryTest, theCornerDecidesWhereTheCentreIsOnNoScreen)
{
    EXPECT_EQ(visible({{990, 790}, {100, 5000}}), leftScreen.visibleFrame);
}

TEST_F(SnapGeometryTest, aWindowOffEveryScreenBelongsToTheMainOne)
{
    screens.setMainScreen(1);
    EXPECT_EQ(visible({{-9000, -9000}, {100, 100}}), rightScreen.visibleFrame);
}

TEST_F(SnapGeometryTest, withoutAMainScreenTheFirstIsTaken)
{
    screens.setMainScreen(7);
    EXPECT_EQ(visible({{-9000, -9000}, {100, 100}}), leftScreen.visibleFrame);
    screens.setScreens({});
    EXPECT_EQ(visible({{0, 0}, {100, 100}}), Rect{});
}

TEST_F(SnapGeometryTest, halvesMeetInTheMiddle)
{
    const Rect frame = rightScreen.visibleFrame;
    EXPECT_EQ(snapFrame(WindowSnapPosition::left, frame), (Rect{{1000, -75}, {950, 1175}}));
    EXPECT_EQ(snapFrame(WindowSnapPosition::right, frame), (Rect{{1950, -75}, {950, 1175}}));
    EXPECT_EQ(snapFrame(WindowSnapPosition::maximize, frame), frame);
}

TEST_F(SnapGeometryTest, sixteenPointsAreADifference)
{
    const Rect frame{{0, 25}, {1000, 700}};
    EXPECT_TRUE(fills({{15.9, 40.9}, {984.1, 684.1}}, frame));
    EXPECT_TRUE(fills({{-15.9, 9.1}, {1015.9, 715.9}}, frame));
    EXPECT_FALSE(fills({{16, 25}, {1000, 700}}, frame));
    EXPECT_FALSE(fills({{0, 41}, {1000, 700}}, frame));
    EXPECT_FALSE(fills({{0, 25}, {984, 700}}, frame));
    EXPECT_FALSE(fills({{0, 25}, {1000, 716}}, frame));
}

} // namespace

} // namespace tarvin
