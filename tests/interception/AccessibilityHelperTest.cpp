#include "interception/AccessibilityHelper.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin::test {

using namespace simulated;
using testing::ElementsAre;

class AccessibilityHelperTest : public testing::Test
{
protected:
    SimulatedPlatform platform;
    AccessibilityHelper helper{platform.permission(), platform.scripts(), platform.scheduler()};
};

TEST_F(AccessibilityHelperTest, trustIsWhatThePlatformSays)
{
    EXPECT_TRUE(helper.isProcessTrusted());
    platform.permission().setTrusted(false);
    EXPECT_FALSE(helper.isProcessTrusted());
}

TEST_F(AccessibilityHelperTest, aRequestLetsTheSystemAsk)
{
    helper.requestPermission();
    platform.scheduler().runPosted();
    EXPECT_EQ(platform.effects().count<PermissionPrompted>(), 1U);
    EXPECT_TRUE(platform.scripts().scripts().empty());
}

TEST_F(AccessibilityHelperTest, openingTheSettingsAsksFirstAndRunsTheScriptOffTheMainThread)
{
    helper.openAccessibilitySettings();
    EXPECT_EQ(platform.effects().count<PermissionPrompted>(), 1U);
    EXPECT_TRUE(platform.scripts().scripts().empty());
    platform.scheduler().runPosted();
    EXPECT_THAT(platform.scripts().scripts(), ElementsAre(Script(OpenAccessibilityPage{})));
    EXPECT_EQ(platform.effects().count<PortMisused>(), 0U);
}

TEST_F(AccessibilityHelperTest, theScriptQuitsTheSettingsWaitsAndOpensThePage)
{
    helper.openAccessibilitySettings();
    platform.scheduler().runPosted();
    const auto runs = platform.effects().all<ScriptRun>();
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs.front().source,
        u"tell application \"System Settings\" to quit\n"
        "delay 0.2\n"
        "do shell script \"open x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility\""_qs);
}

TEST_F(AccessibilityHelperTest, aFailureOfTheScriptIsIgnoredInSilence)
{
    platform.scripts().setResult({u"not allowed"_qs, std::nullopt});
    helper.openAccessibilitySettings();
    platform.scheduler().runPosted();
    platform.scripts().setCanBuild(false);
    helper.openAccessibilitySettings();
    platform.scheduler().runPosted();
    EXPECT_EQ(platform.effects().count<ConsoleLine>(), 0U);
    EXPECT_EQ(platform.effects().count<FileChanged>(), 0U);
}

} // namespace tarvin::test
