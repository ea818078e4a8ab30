#include "tools/ring/ActionsRingManager.h"

#include "tools/support/ToolsDesktop.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tarvin {
namespace {

using namespace std::chrono_literals;
using simulated::PanelFaded;

double toOneDecimal(double value)
{
    return std::round(value * 10) / 10 + 0.0;
}

class ActionsRing : public testing::Test
{
protected:
    test::ToolsDesktop desktop;
    std::vector<ConfiguredAction> performed;
    std::vector<bool> visibleWhenPerformed;
    ActionsRingManager ring{desktop.panelCollaborators(ActionsRingManager::traits), desktop.platform.pointer(),
        [this](const ConfiguredAction& action) {
            performed.push_back(action);
            visibleWhenPerformed.push_back(ring.isVisible());
        }};
};

TEST_F(ActionsRing, itsSixItemsStandOnACircleFromTheTopClockwise)
{
    const std::vector<Point> expected = {{0, -100}, {86.6, -50}, {86.6, 50}, {0, 100}, {-86.6, 50}, {-86.6, -50}};
    ASSERT_EQ(ringItems.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const Point offset = ringOffset(i);
        EXPECT_EQ((Point{toOneDecimal(offset.x), toOneDecimal(offset.y)}), expected[i]) << i;
    }
}

TEST_F(ActionsRing, itOffersTheSameSixActionsInTheirOrder)
{
    std::vector<std::string> titles;
    for (const RingItem& item : ringItems)
        titles.push_back(item.title.toString().toStdString());
    EXPECT_THAT(titles, testing::ElementsAre("Screen Capture", "Calculator", "Copy", "Paste", "Mute", "Lock Screen"));
    EXPECT_EQ(ringItems[0].action, KeyAction::screenCapture);
    EXPECT_EQ(ringItems[5].action, KeyAction::lockScreen);
}

TEST_F(ActionsRing, screenCaptureTakesARegionToTheClipboard)
{
    const ConfiguredAction capture(ringItems[0].action);
    EXPECT_EQ(capture.action, KeyAction::screenCapture);
    EXPECT_EQ(capture.screenCaptureMode, ScreenCaptureMode::region);
    EXPECT_EQ(capture.screenCaptureDestination, ScreenCaptureDestination::clipboard);
}

TEST_F(ActionsRing, itOpensWithItsMiddleAtThePointer)
{
    desktop.platform.pointer().setPosition({700, 400});
    ring.show();
    EXPECT_EQ(desktop.panel->frame(), (Rect{{530, 230}, {340, 340}}));
}

TEST_F(ActionsRing, inACornerOfTheScreenItStandsAroundThePointerAllTheSame)
{
    desktop.platform.pointer().setPosition({0, 0});
    ring.show();
    EXPECT_EQ(desktop.panel->frame().origin, (Point{-170, -170}));
    ring.hide();
    desktop.advance(1s);
    desktop.platform.pointer().setPosition({1440, 900});
    ring.show();
    EXPECT_EQ(desktop.panel->frame().origin, (Point{1270, 730}));
}

TEST_F(ActionsRing, itFadesInAndOutAtItsOwnPace)
{
    ring.show();
    ring.hide();
    desktop.advance(149ms);
    EXPECT_TRUE(ring.isVisible());
    desktop.advance(1ms);
    EXPECT_FALSE(ring.isVisible());
    EXPECT_THAT(desktop.effects().all<PanelFaded>(),
        testing::ElementsAre(PanelFaded{u"Panel"_qs, 1, 180ms}, PanelFaded{u"Panel"_qs, 0, 150ms}));
}

TEST_F(ActionsRing, hidingBeforeAnyShowingDoesNothing)
{
    ring.hide();
    desktop.advance(1s);
    EXPECT_EQ(desktop.windowsMade, 0);
    EXPECT_TRUE(desktop.effects().effects().empty());
}

TEST_F(ActionsRing, aSecondHidingDuringTheFadeStartsASecondFade)
{
    ring.show();
    ring.hide();
    desktop.advance(100ms);
    ring.hide();
    desktop.advance(1s);
    EXPECT_EQ(desktop.effects().count<PanelFaded>(), 3u);
    EXPECT_FALSE(ring.isVisible());
}

TEST_F(ActionsRing, aChosenActionIsPerformedOnceAndAtOnceWhileTheRingFades)
{
    ring.show();
    ring.select(ConfiguredAction(KeyAction::mute));
    ASSERT_EQ(performed.size(), 1u);
    EXPECT_EQ(performed.front().action, KeyAction::mute);
    EXPECT_THAT(visibleWhenPerformed, testing::ElementsAre(true));
    desktop.advance(1s);
    EXPECT_FALSE(ring.isVisible());
    EXPECT_EQ(performed.size(), 1u);
}

TEST_F(ActionsRing, goneWithTheActiveProgramItIsTakenForVisibleAndNeedsTwoToggles)
{
    ring.toggle();
    desktop.advance(1s);
    desktop.bringToFront(test::ToolsDesktop::safariProcess);
    EXPECT_FALSE(desktop.panel->isOnScreen());
    EXPECT_TRUE(ring.isVisible());
    ring.toggle();
    desktop.advance(1s);
    EXPECT_FALSE(ring.isVisible());
    EXPECT_FALSE(desktop.panel->isOnScreen());
    ring.toggle();
    EXPECT_TRUE(ring.isVisible());
    EXPECT_TRUE(desktop.panel->isOnScreen());
}

TEST_F(ActionsRing, itStandsOnTheDesktopWhereItWasOpened)
{
    EXPECT_EQ(ActionsRingManager::traits.spaces, PanelSpaces::current);
}

} // namespace
} // namespace tarvin
