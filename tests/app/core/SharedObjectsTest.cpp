#include "app/core/SharedObjects.h"

#include "app/core/NoToolPanelWindows.h"
#include "interception/EventTapManager.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "shell/BackgroundModeManager.h"

#include <gtest/gtest.h>

namespace tarvin {
namespace {

class TheSharedObjects : public ::testing::Test
{
protected:
    simulated::SimulatedPlatform platform;
    NoToolPanelWindows panels;
    SharedObjects objects{platform.ports(), panels};
};

TEST_F(TheSharedObjects, theSwitchOfTheSummonShortcutReachesTheInputPathsAtOnce)
{
    objects.eventTapManager().start();
    objects.backgroundModeManager().setGlobalSummonShortcutEnabled(false);
    EXPECT_EQ(platform.inputTaps().publishedSummon(), SummonShortcut::released);
    objects.backgroundModeManager().setGlobalSummonShortcutEnabled(true);
    EXPECT_EQ(platform.inputTaps().publishedSummon(), SummonShortcut::taken);
}

TEST_F(TheSharedObjects, theSwitchOfTheSummonShortcutNeedsNoInputPaths)
{
    objects.backgroundModeManager().setGlobalSummonShortcutEnabled(false);
    objects.eventTapManager().start();
    EXPECT_EQ(platform.inputTaps().publishedSummon(), SummonShortcut::released);
}

} // namespace
} // namespace tarvin
