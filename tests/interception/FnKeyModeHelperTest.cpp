#include "interception/FnKeyModeHelper.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin::test {

using namespace simulated;
using testing::ElementsAre;
using testing::IsEmpty;

class FnKeyModeHelperTest : public testing::Test
{
protected:
    FnKeyModeHelper makeHelper() { return {platform.functionKeySetting(), platform.console()}; }

    /// Everything that reached the system, in order and in words.
    QStringList effects()
    {
        QStringList words;
        for (const Effect& effect : platform.effects().effects()) {
            if (const auto* tool = std::get_if<ToolLaunched>(&effect.what))
                words += tool->tool + u' ' + tool->arguments.join(u' ');
            else if (const auto* set = std::get_if<SystemPreferenceSet>(&effect.what))
                words += u"set %1 %2"_qs.arg(set->key, set->value ? u"true" : u"false");
            else if (std::holds_alternative<SystemPreferenceSynchronized>(effect.what))
                words += u"synchronize"_qs;
            else if (const auto* announced = std::get_if<ChangeAnnounced>(&effect.what))
                words += u"announce "_qs + announced->name;
            else if (const auto* line = std::get_if<ConsoleLine>(&effect.what))
                words += line->line;
        }
        return words;
    }

    bool readsAs(const QByteArray& output)
    {
        platform.functionKeySetting().setStoredText(output);
        return makeHelper().readCurrentState();
    }

    SimulatedPlatform platform;
};

namespace {

const QString readByTool = u"/usr/bin/defaults read -g com.apple.keyboard.fnState"_qs;
const QStringList restoring{u"/usr/bin/defaults write -g com.apple.keyboard.fnState -bool false"_qs,
    u"set com.apple.keyboard.fnState false"_qs, u"synchronize"_qs, u"announce com.apple.keyboard.fnStateChanged"_qs,
    u"[Tarvin] Successfully restored macOS keyboard to 100% Apple factory defaults."_qs};

} // namespace

TEST_F(FnKeyModeHelperTest, oneAndTrueInAnyCaseReadAsOn)
{
    EXPECT_TRUE(readsAs("1\n"));
    EXPECT_TRUE(readsAs("1"));
    EXPECT_TRUE(readsAs(" \t1 \r\n"));
    EXPECT_TRUE(readsAs("true\n"));
    EXPECT_TRUE(readsAs("TRUE\n"));
    EXPECT_TRUE(readsAs("True"));
}

TEST_F(FnKeyModeHelperTest, everythingElseReadsAsOff)
{
    EXPECT_FALSE(readsAs("0\n"));
    EXPECT_FALSE(readsAs(""));
    EXPECT_FALSE(readsAs("false\n"));
    EXPECT_FALSE(readsAs("YES\n"));
    EXPECT_FALSE(readsAs("11\n"));
    EXPECT_FALSE(readsAs("1 1\n"));
}

TEST_F(FnKeyModeHelperTest, outputThatIsNotUtf8ReadsAsOff)
{
    EXPECT_FALSE(readsAs("1\xFF\n"));
    EXPECT_FALSE(readsAs("1\xC3"));
}

TEST_F(FnKeyModeHelperTest, itsCreationReadsTheSetting)
{
    platform.functionKeySetting().setStoredText("1\n");
    const FnKeyModeHelper helper(platform.functionKeySetting(), platform.console());
    EXPECT_TRUE(helper.isDedicatedKeyMode());
    EXPECT_EQ(effects(), QStringList{readByTool});
}

TEST_F(FnKeyModeHelperTest, readingLeavesThePublishedStateAlone)
{
    FnKeyModeHelper helper(platform.functionKeySetting(), platform.console());
    platform.functionKeySetting().setStoredText("1\n");
    EXPECT_TRUE(helper.readCurrentState());
    EXPECT_FALSE(helper.isDedicatedKeyMode());
}

TEST_F(FnKeyModeHelperTest, aToolThatDoesNotStartReadsAsOffAndIsReported)
{
    platform.functionKeySetting().setStoredText("1\n");
    platform.functionKeySetting().setLaunchError(u"no such file"_qs);
    const FnKeyModeHelper helper(platform.functionKeySetting(), platform.console());
    EXPECT_FALSE(helper.isDedicatedKeyMode());
    EXPECT_EQ(effects(), (QStringList{readByTool, u"[Tarvin] Failed to read fnState: no such file"_qs}));
}

TEST_F(FnKeyModeHelperTest, turningItOnWritesTwiceThenAnnounces)
{
    FnKeyModeHelper helper(platform.functionKeySetting(), platform.console());
    platform.effects().clear();
    helper.setDedicatedKeyMode(true);
    EXPECT_TRUE(helper.isDedicatedKeyMode());
    EXPECT_EQ(effects(),
        (QStringList{u"/usr/bin/defaults write -g com.apple.keyboard.fnState -bool true"_qs,
            u"set com.apple.keyboard.fnState true"_qs, u"synchronize"_qs,
            u"announce com.apple.keyboard.fnStateChanged"_qs, u"[Tarvin] Set fnState to dedicated function keys."_qs}));
}

TEST_F(FnKeyModeHelperTest, aFailedWriteStopsThereAndThePublishedStateStaysOn)
{
    FnKeyModeHelper helper(platform.functionKeySetting(), platform.console());
    platform.effects().clear();
    platform.functionKeySetting().setLaunchError(u"no such file"_qs);
    helper.setDedicatedKeyMode(true);
    EXPECT_TRUE(helper.isDedicatedKeyMode());
    EXPECT_EQ(effects(),
        (QStringList{u"/usr/bin/defaults write -g com.apple.keyboard.fnState -bool true"_qs,
            u"[Tarvin] Failed to write fnState: no such file"_qs}));
}

TEST_F(FnKeyModeHelperTest, restoringWritesTwiceThenAnnounces)
{
    platform.functionKeySetting().setStoredText("1\n");
    FnKeyModeHelper helper(platform.functionKeySetting(), platform.console());
    platform.effects().clear();
    helper.restoreAppleDefaults();
    EXPECT_FALSE(helper.isDedicatedKeyMode());
    EXPECT_EQ(effects(), restoring);
}

TEST_F(FnKeyModeHelperTest, turningItOffIsExactlyRestoring)
{
    platform.functionKeySetting().setStoredText("1\n");
    FnKeyModeHelper helper(platform.functionKeySetting(), platform.console());
    platform.effects().clear();
    helper.setDedicatedKeyMode(false);
    EXPECT_FALSE(helper.isDedicatedKeyMode());
    EXPECT_EQ(effects(), restoring);
}

TEST_F(FnKeyModeHelperTest, restoringGoesOnWhenTheToolDoesNotStart)
{
    FnKeyModeHelper helper(platform.functionKeySetting(), platform.console());
    platform.effects().clear();
    platform.functionKeySetting().setLaunchError(u"no such file"_qs);
    helper.restoreAppleDefaults();
    EXPECT_EQ(effects(), restoring);
}

TEST_F(FnKeyModeHelperTest, onAPlatformWithoutTheSettingOnlyThePublishedStateFollows)
{
    platform.functionKeySetting().setAvailable(false);
    platform.functionKeySetting().setStoredText("1\n");
    FnKeyModeHelper helper(platform.functionKeySetting(), platform.console());
    EXPECT_FALSE(helper.isDedicatedKeyMode());
    EXPECT_FALSE(helper.readCurrentState());
    helper.setDedicatedKeyMode(true);
    EXPECT_TRUE(helper.isDedicatedKeyMode());
    helper.restoreAppleDefaults();
    EXPECT_FALSE(helper.isDedicatedKeyMode());
    EXPECT_THAT(effects(), IsEmpty());
}

TEST_F(FnKeyModeHelperTest, aChangeIsTold)
{
    FnKeyModeHelper helper(platform.functionKeySetting(), platform.console());
    const SignalCount changed(helper, &FnKeyModeHelper::dedicatedKeyModeChanged);
    helper.restoreAppleDefaults();
    EXPECT_EQ(changed.count(), 0);
    helper.setDedicatedKeyMode(true);
    EXPECT_EQ(changed.count(), 1);
}

} // namespace tarvin::test
