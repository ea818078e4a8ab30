#include "platform/macos/translation/PanelStyle.h"
#include "platform/macos/translation/ScreenFlip.h"

#include <gtest/gtest.h>

namespace tarvin::macos {

namespace {

TEST(ScreenFlip, thePrimaryScreenBeginsAtTheTopLeft)
{
    EXPECT_EQ(flipped(Rect{{0, 0}, {1440, 900}}, 900), (Rect{{0, 0}, {1440, 900}}));
}

TEST(ScreenFlip, theMenuBarIsMissingAtTheTopAndTheDockAtTheBottom)
{
    EXPECT_EQ(flipped(Rect{{0, 70}, {1440, 805}}, 900), (Rect{{0, 25}, {1440, 805}}));
}

TEST(ScreenFlip, aScreenAboveThePrimaryHasNegativeHeights)
{
    EXPECT_EQ(flipped(Rect{{-200, 900}, {1920, 1080}}, 900), (Rect{{-200, -1080}, {1920, 1080}}));
}

TEST(ScreenFlip, turnedOverTwiceItIsTheSameAgain)
{
    const Rect rect{{-17.5, 33}, {460, 480}};
    EXPECT_EQ(flipped(flipped(rect, 982), 982), rect);
    EXPECT_EQ(flipped(flipped(Point{3, 4}, 982), 982), (Point{3, 4}));
}

TEST(ScreenFlip, thePointerIsTurnedOverByTheMainScreen)
{
    EXPECT_EQ(pointerPosition({100, 50}, 900), (Point{100, 850}));
}

TEST(ScreenFlip, withoutAMainScreenThePointerIsTurnedOverBy1080)
{
    EXPECT_EQ(pointerPosition({100, 50}, std::nullopt), (Point{100, 1030}));
}

TEST(PanelStyle, aPanelNeverActivatesTheProgramByItselfAndFloats)
{
    const PanelStyle style = panelStyleOf({});
    EXPECT_EQ(style.styleMask, 128U);
    EXPECT_EQ(style.level, 3);
    EXPECT_EQ(style.collectionBehavior, 0U);
    EXPECT_FALSE(style.hidesOnDeactivate);
}

TEST(PanelStyle, aPanelOnAllDesktopsAlsoStandsOverFullScreenWindows)
{
    EXPECT_EQ(panelStyleOf({.size = {}, .spaces = PanelSpaces::all}).collectionBehavior, 257U);
}

TEST(PanelStyle, aPanelMayGoAwayWithTheProgram)
{
    EXPECT_TRUE(panelStyleOf({.size = {}, .deactivation = PanelDeactivation::goesAway}).hidesOnDeactivate);
}

} // namespace

} // namespace tarvin::macos
