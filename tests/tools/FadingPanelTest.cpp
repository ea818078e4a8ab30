#include "tools/panel/FadingPanel.h"

#include "support/SignalCount.h"
#include "tools/support/ToolsDesktop.h"

#include <gmock/gmock.h>

namespace tarvin {
namespace {

using namespace std::chrono_literals;
using simulated::PanelFaded;
using simulated::SelfActivated;
using simulated::WindowChanged;
using simulated::WindowStep;
using testing::ElementsAre;

class PlainPanel final : public FadingPanel
{
public:
    using FadingPanel::FadingPanel;
    void show() override
    {
        if (FloatingPanel* const panel = madeWindow())
            present(*panel);
    }
};

class FadingPanelTest : public testing::Test
{
protected:
    std::vector<WindowStep> steps()
    {
        std::vector<WindowStep> found;
        for (const WindowChanged& change : desktop.effects().all<WindowChanged>())
            found.push_back(change.step);
        return found;
    }

    test::ToolsDesktop desktop;
    std::unique_ptr<PlainPanel> panel = std::make_unique<PlainPanel>(
        desktop.panelCollaborators({.size = {100, 100}}), FadingPanel::FadeTimes{.in = 160ms, .out = 120ms});
};

TEST_F(FadingPanelTest, theWindowIsMadeAtTheFirstShowingAndKept)
{
    EXPECT_EQ(panel->window(), nullptr);
    panel->show();
    panel->hide();
    desktop.advance(200ms);
    EXPECT_EQ(desktop.windowsMade, 1);
    panel->show();
    EXPECT_EQ(desktop.windowsMade, 1);
    EXPECT_NE(panel->window(), nullptr);
}

TEST_F(FadingPanelTest, itComesUpWithTheKeyboardAndTheProgramWithIt)
{
    panel->show();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_THAT(steps(), ElementsAre(WindowStep::created, WindowStep::madeKeyAndFront));
    EXPECT_THAT(desktop.effects().all<SelfActivated>(),
        ElementsAre(SelfActivated{simulated::OwnActivation::ignoringOtherApps}));
    EXPECT_THAT(desktop.effects().all<PanelFaded>(), ElementsAre(PanelFaded{u"Panel"_qs, 1, 160ms}));
}

TEST_F(FadingPanelTest, itIsVisibleUntilItsFadeHasEnded)
{
    panel->show();
    desktop.advance(1s);
    panel->hide();
    desktop.advance(119ms);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_TRUE(desktop.panel->isOnScreen());
    desktop.advance(1ms);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_FALSE(desktop.panel->isOnScreen());
}

TEST_F(FadingPanelTest, hidingWhatWasNeverShownDoesNothing)
{
    panel->hide();
    desktop.advance(1s);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(desktop.effects().effects().empty());
}

TEST_F(FadingPanelTest, hidingWhatIsHiddenDoesNothing)
{
    panel->show();
    panel->hide();
    desktop.advance(1s);
    desktop.effects().clear();
    panel->hide();
    desktop.advance(1s);
    EXPECT_TRUE(desktop.effects().effects().empty());
}

TEST_F(FadingPanelTest, aSecondHidingDuringTheFadeFadesAgainAndBothTakeThePanelAway)
{
    panel->show();
    desktop.advance(1s);
    desktop.effects().clear();
    panel->hide();
    desktop.advance(60ms);
    panel->hide();
    desktop.advance(1s);
    EXPECT_EQ(desktop.effects().count<PanelFaded>(), 2u);
    EXPECT_THAT(steps(), ElementsAre(WindowStep::orderedOut, WindowStep::orderedOut));
}

TEST_F(FadingPanelTest, toggleClosesWhatIsVisible)
{
    panel->toggle();
    EXPECT_TRUE(panel->isVisible());
    panel->toggle();
    desktop.advance(1s);
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(FadingPanelTest, closingLeavesTheProgramTheActiveOne)
{
    panel->show();
    desktop.advance(1s);
    panel->hide();
    desktop.advance(1s);
    EXPECT_TRUE(desktop.platform.workspace().isOwnProcessFrontmost());
    EXPECT_EQ(desktop.effects().count<simulated::ApplicationActivated>(), 0u);
}

TEST_F(FadingPanelTest, withoutAWindowNothingIsVisible)
{
    desktop.canMakeWindows = false;
    panel->show();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(desktop.effects().count<SelfActivated>(), 0u);
}

TEST_F(FadingPanelTest, eachChangeIsToldOnce)
{
    const test::SignalCount changes(*panel, &FadingPanel::isVisibleChanged);
    panel->show();
    EXPECT_EQ(changes.count(), 1);
    panel->hide();
    panel->hide();
    desktop.advance(1s);
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(FadingPanelTest, aPanelThatWentDuringItsFadeIsMissedByNobody)
{
    panel->show();
    panel->hide();
    panel.reset();
    desktop.advance(1s);
    EXPECT_EQ(desktop.effects().count<simulated::PortMisused>(), 0u);
}

} // namespace
} // namespace tarvin
