#include "shell/support/ShellDesktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Opening and hiding the Studio window.
class StudioWindowTest : public testing::Test
{
protected:
    StudioWindowTest()
    {
        desktop.manager();
        std::ignore = desktop.whatHappened();
    }

    ShellDesktop desktop;
    BackgroundModeManager& manager = desktop.manager();
};

TEST_F(StudioWindowTest, everyWindowButThePanelsIsBroughtForward)
{
    desktop.addStudio();
    desktop.addPanel();
    std::ignore = desktop.whatHappened();
    manager.openStudioWindow();
    EXPECT_TRUE(manager.isStudioWindowVisible());
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"policy regular"_qs, u"come forward"_qs, u"come forward ignoring others"_qs,
            u"Studio set visible"_qs, u"Studio made key and front"_qs, u"Studio ordered front regardless"_qs));
    EXPECT_THAT(desktop.newLogLines(),
        ElementsAre(u"[Tarvin] openStudioWindow invoked. Current policy: 0, window count: 2"_qs,
            u"[Tarvin] Restored window: Studio"_qs));
}

TEST_F(StudioWindowTest, theStoredMainWindowIsVisitedTwiceAndLoggedTwice)
{
    manager.setMainWindow(&desktop.addStudio());
    std::ignore = desktop.whatHappened();
    manager.openStudioWindow();
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"policy regular"_qs, u"come forward"_qs, u"come forward ignoring others"_qs,
            u"Studio set visible"_qs, u"Studio made key and front"_qs, u"Studio ordered front regardless"_qs,
            u"Studio set visible"_qs, u"Studio made key and front"_qs, u"Studio ordered front regardless"_qs));
    EXPECT_THAT(desktop.newLogLines(),
        ElementsAre(u"[Tarvin] openStudioWindow invoked. Current policy: 0, window count: 1"_qs,
            u"[Tarvin] Restored stored mainWindow: Studio"_qs, u"[Tarvin] Restored window: Studio"_qs));
}

TEST_F(StudioWindowTest, aMinimisedWindowIsBroughtBack)
{
    desktop.addStudio().miniaturizeByUser();
    std::ignore = desktop.whatHappened();
    manager.openStudioWindow();
    EXPECT_THAT(desktop.whatHappened().mid(3),
        ElementsAre(u"Studio set visible"_qs, u"Studio deminiaturized"_qs, u"Studio made key and front"_qs,
            u"Studio ordered front regardless"_qs));
}

TEST_F(StudioWindowTest, withoutAnyWindowTheViewIsAskedToMakeIt)
{
    desktop.addPanel();
    std::ignore = desktop.whatHappened();
    int asked = 0;
    manager.setOpenWindowAction([&asked] { ++asked; });
    manager.openStudioWindow();
    EXPECT_EQ(asked, 1);
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"policy regular"_qs, u"come forward"_qs, u"come forward ignoring others"_qs));
    desktop.addStudio();
    manager.openStudioWindow();
    EXPECT_EQ(asked, 1) << "there is a window now";
}

TEST_F(StudioWindowTest, withoutWindowAndViewTheProgramsOwnAddressIsOpened)
{
    manager.openStudioWindow();
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"policy regular"_qs, u"come forward"_qs, u"come forward ignoring others"_qs,
            u"open tarvin://open-studio"_qs));
}

TEST_F(StudioWindowTest, aStoredMainWindowIsWindowEnough)
{
    ShellDesktop elsewhere;
    manager.setMainWindow(&elsewhere.addStudio());
    manager.openStudioWindow();
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"policy regular"_qs, u"come forward"_qs, u"come forward ignoring others"_qs));
    EXPECT_TRUE(static_cast<simulated::SimulatedWindow*>(manager.mainWindow())->isVisible());
}

TEST_F(StudioWindowTest, hidingTakesAwayEveryWindowButThePanels)
{
    desktop.addStudio().setVisible();
    auto& panel = desktop.addPanel();
    panel.setVisible();
    manager.setStudioWindowVisible(true);
    std::ignore = desktop.whatHappened();
    manager.hideStudioWindow();
    EXPECT_FALSE(manager.isStudioWindowVisible());
    EXPECT_TRUE(panel.isVisible());
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"policy accessory"_qs, u"Studio ordered out"_qs));
    EXPECT_THAT(desktop.newLogLines(), IsEmpty());
}

} // namespace

} // namespace tarvin::test
