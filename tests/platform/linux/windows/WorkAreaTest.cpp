#include "platform/linux/windows/WorkArea.h"

#include <ostream>

namespace tarvin::windows {

static void PrintTo(const PixelRect& rect, std::ostream* stream)
{
    *stream << rect.width << 'x' << rect.height << '+' << rect.x << '+' << rect.y;
}

namespace {

constexpr PixelRect whole{0, 0, 2000, 1000};
constexpr PixelRect leftMonitor{0, 0, 1200, 1000};
constexpr PixelRect rightMonitor{1200, 0, 800, 600};

} // namespace

TEST(WorkArea, aPanelAtTheTopTakesItsHeightFromItsMonitorOnly)
{
    const auto struts = strutsOf({0, 0, 30, 0, 0, 0, 0, 0, 0, 1199, 0, 0}, whole);
    EXPECT_EQ(freeArea(leftMonitor, struts, whole), (PixelRect{0, 30, 1200, 970}));
    EXPECT_EQ(freeArea(rightMonitor, struts, whole), rightMonitor);
}

TEST(WorkArea, aPanelOfAShorterMonitorReachesAcrossWhatLiesBelowIt)
{
    // 40 pixels of panel at the bottom of the right monitor, and the 400 that this monitor is shorter.
    const auto struts = strutsOf({0, 0, 0, 440, 0, 0, 0, 0, 0, 0, 1200, 1999}, whole);
    EXPECT_EQ(freeArea(rightMonitor, struts, whole), (PixelRect{1200, 0, 800, 560}));
    EXPECT_EQ(freeArea(leftMonitor, struts, whole), leftMonitor);
}

TEST(WorkArea, aPanelBetweenTwoMonitorsLeavesTheOuterOneAlone)
{
    const auto struts = strutsOf({1250, 0, 0, 0, 0, 599, 0, 0, 0, 0, 0, 0}, whole);
    EXPECT_EQ(freeArea(rightMonitor, struts, whole), (PixelRect{1250, 0, 750, 600}));
    EXPECT_EQ(freeArea(leftMonitor, struts, whole), leftMonitor);
}

TEST(WorkArea, anOldStrutKeepsTheWholeEdgeFree)
{
    const auto struts = strutsOf({0, 50, 0, 0}, whole);
    ASSERT_EQ(struts.size(), 1U);
    EXPECT_EQ(freeArea(rightMonitor, struts, whole), (PixelRect{1200, 0, 750, 600}));
}

TEST(WorkArea, panelsAtTwoEdgesAddUp)
{
    const auto struts = strutsOf({60, 0, 25, 0}, whole);
    EXPECT_EQ(freeArea(leftMonitor, struts, whole), (PixelRect{60, 25, 1140, 975}));
}

TEST(WorkArea, aStrutOfAnotherLengthIsNone)
{
    EXPECT_TRUE(strutsOf({}, whole).empty());
    EXPECT_TRUE(strutsOf({1, 2, 3}, whole).empty());
}

} // namespace tarvin::windows
