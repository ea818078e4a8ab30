#include "platform/simulated/EffectJson.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>

namespace tarvin::simulated {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class SimulatedToolsTest : public testing::Test
{
protected:
    std::vector<std::string> lines()
    {
        std::vector<std::string> found;
        for (const Effect& effect : desktop.effects().effects())
            found.push_back(toJsonLine(effect).toStdString());
        return found;
    }

    SimulatedPlatform desktop;
};

TEST_F(SimulatedToolsTest, postedKeysAreWrittenDownWithEverythingTheyCarry)
{
    desktop.scheduler().advance(15500us);
    desktop.poster().postKey(
        {8, KeyState::down, EventFlags::command | EventFlags::shift, selfPostedMarker, KeystrokeOrigin::builtIn},
        TapLocation::session);
    EXPECT_THAT(lines(),
        ElementsAre(R"({"at":15.5,"effect":"keyPosted","keyCode":8,"state":"down","flags":["shift","command"],)"
                    R"("marked":true,"location":"session","origin":"builtIn"})"));
}

TEST_F(SimulatedToolsTest, withoutPermissionWhatIsPostedIsDropped)
{
    desktop.permission().setTrusted(false);
    desktop.poster().postKey({.keyCode = 96}, TapLocation::session);
    desktop.poster().postSecondaryClick({{10, 20}, KeyState::up}, TapLocation::session);
    EXPECT_TRUE(desktop.effects().all<KeyPosted>().front().dropped);
    EXPECT_THAT(desktop.effects().all<ClickPosted>(),
        ElementsAre(ClickPosted{{10, 20}, KeyState::up, TapLocation::session, true}));
}

TEST_F(SimulatedToolsTest, anEventThatCannotBeMadeMustNotBePosted)
{
    EXPECT_TRUE(desktop.poster().canMakeKey(96));
    desktop.poster().setCanMakeKey(96, false);
    desktop.poster().setCanMakeClick(false);
    EXPECT_FALSE(desktop.poster().canMakeKey(96));
    EXPECT_TRUE(desktop.poster().canMakeKey(97));
    EXPECT_FALSE(desktop.poster().canMakeClick());
    desktop.poster().postKey({.keyCode = 96}, TapLocation::session);
    desktop.poster().postSecondaryClick({}, TapLocation::session);
    EXPECT_EQ(desktop.effects().count<PortMisused>(), 2u);
    desktop.poster().setCanMakeKey(96, true);
    EXPECT_TRUE(desktop.poster().canMakeKey(96));
}

TEST_F(SimulatedToolsTest, scriptsAnswerAsTold)
{
    desktop.scheduler().callOffMain([this] {
        EXPECT_EQ(desktop.scripts().run(PressKeyByScript{96, EventFlags::none})->error, std::nullopt);
        desktop.scripts().setResult({u"not allowed"_qs, std::nullopt});
        EXPECT_EQ(desktop.scripts().run(PressKeyByScript{97, EventFlags::none})->error, u"not allowed"_qs);
        desktop.scripts().setCanBuild(false);
        EXPECT_FALSE(desktop.scripts().run(PressKeyByScript{98, EventFlags::none}).has_value());
    });
    EXPECT_THAT(lines(),
        ElementsAre(R"({"at":0,"effect":"script","source":"tell application \"System Events\" to key code 96"})",
            R"({"at":0,"effect":"script","source":"tell application \"System Events\" to key code 97",)"
            R"("error":"not allowed"})",
            R"({"at":0,"effect":"script","source":"tell application \"System Events\" to key code 98",)"
            R"("error":"the script cannot be built"})"));
}

TEST_F(SimulatedToolsTest, callsOnTheWrongThreadAreWrittenDown)
{
    static_cast<void>(desktop.scripts().run(OpenAccessibilityPage{}));
    desktop.scheduler().callOffMain([this] { desktop.workspace().openUrl(u"https://example.org"_qs); });
    EXPECT_THAT(desktop.effects().all<PortMisused>(),
        ElementsAre(PortMisused{u"Scripts::run"_qs, u"background queue only"_qs},
            PortMisused{u"Workspace::openUrl"_qs, u"main thread only"_qs}));
}

TEST_F(SimulatedToolsTest, theFunctionKeyToolIsLaunchedWithItsArguments)
{
    EXPECT_EQ(desktop.functionKeySetting().readByTool().standardOutput, "");
    EXPECT_EQ(desktop.functionKeySetting().writeByTool(true).launchError, std::nullopt);
    EXPECT_EQ(desktop.functionKeySetting().readByTool().standardOutput, "1\n");
    desktop.functionKeySetting().setPreferenceValue(false);
    desktop.functionKeySetting().synchronizePreference();
    desktop.functionKeySetting().announceChange();
    EXPECT_EQ(desktop.functionKeySetting().storedText(), "0\n");
    const QString tool = u"/usr/bin/defaults"_qs;
    const QString key = u"com.apple.keyboard.fnState"_qs;
    EXPECT_THAT(desktop.effects().all<ToolLaunched>(),
        ElementsAre(ToolLaunched{tool, {u"read"_qs, u"-g"_qs, key}, std::nullopt},
            ToolLaunched{tool, {u"write"_qs, u"-g"_qs, key, u"-bool"_qs, u"true"_qs}, std::nullopt},
            ToolLaunched{tool, {u"read"_qs, u"-g"_qs, key}, std::nullopt}));
    EXPECT_THAT(desktop.effects().all<SystemPreferenceSet>(), ElementsAre(SystemPreferenceSet{key, false}));
    EXPECT_EQ(desktop.effects().count<SystemPreferenceSynchronized>(), 1u);
    EXPECT_THAT(desktop.effects().all<ChangeAnnounced>(),
        ElementsAre(ChangeAnnounced{u"com.apple.keyboard.fnStateChanged"_qs}));
}

TEST_F(SimulatedToolsTest, aToolThatDoesNotStartChangesNothing)
{
    desktop.functionKeySetting().setStoredText("true\n");
    desktop.functionKeySetting().setLaunchError(u"no such tool"_qs);
    EXPECT_EQ(desktop.functionKeySetting().writeByTool(false).launchError, u"no such tool"_qs);
    EXPECT_EQ(desktop.functionKeySetting().readByTool().standardOutput, "");
    EXPECT_EQ(desktop.functionKeySetting().storedText(), "true\n");
}

TEST_F(SimulatedToolsTest, theLoginItemCanRefuse)
{
    EXPECT_FALSE(desktop.loginItem().isEnabled());
    EXPECT_EQ(desktop.loginItem().enable(), std::nullopt);
    EXPECT_TRUE(desktop.loginItem().isEnabled());
    desktop.loginItem().setRefusal(u"Operation not permitted"_qs);
    EXPECT_EQ(desktop.loginItem().disable(), u"Operation not permitted"_qs);
    EXPECT_TRUE(desktop.loginItem().isEnabled());
    EXPECT_THAT(desktop.effects().all<LoginItemChanged>(),
        ElementsAre(LoginItemChanged{true, std::nullopt}, LoginItemChanged{false, u"Operation not permitted"_qs}));
}

TEST_F(SimulatedToolsTest, identifiersCountUpAndAreValid)
{
    const QUuid first = desktop.uuids().next();
    EXPECT_EQ(first.toString(QUuid::WithoutBraces), u"00000000-0000-4000-8000-000000000001"_qs);
    EXPECT_EQ(first.version(), QUuid::Random);
    EXPECT_NE(desktop.uuids().next(), first);
    SimulatedPlatform other;
    EXPECT_EQ(other.uuids().next(), first);
}

TEST_F(SimulatedToolsTest, theProgramIsNotMistakenForATestHost)
{
    EXPECT_FALSE(desktop.processInfo().processName().contains(u"test"_qs));
    for (const QString& argument : desktop.processInfo().arguments())
        EXPECT_FALSE(argument.contains(u"test"_qs));
}

TEST_F(SimulatedToolsTest, effectsAreFoundByKindWithTheirTimes)
{
    desktop.console().printLine(u"one"_qs);
    desktop.scheduler().advance(2s);
    desktop.console().printLine(u"two"_qs);
    desktop.permission().promptForTrust();
    EXPECT_THAT(desktop.effects().all<ConsoleLine>(), ElementsAre(ConsoleLine{u"one"_qs}, ConsoleLine{u"two"_qs}));
    EXPECT_THAT(desktop.effects().timesOf<ConsoleLine>(), ElementsAre(0us, 2s));
    desktop.effects().clear();
    EXPECT_THAT(desktop.effects().effects(), IsEmpty());
}

} // namespace
} // namespace tarvin::simulated
