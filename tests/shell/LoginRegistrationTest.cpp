#include "shell/support/ShellDesktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LoginRegistrationTest : public testing::Test
{
protected:
    LoginRegistrationTest() { std::ignore = desktop.whatHappened(); }

    void sync(bool enabled) { registration.sync(enabled); }

    ShellDesktop desktop;
    LoginRegistration registration{desktop.ports.loginItem, desktop.ports.scripts, desktop.ports.scheduler,
        desktop.ports.processInfo, desktop.log};
};

TEST_F(LoginRegistrationTest, theServiceComesFirstAndTheScriptAfterIt)
{
    sync(true);
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"login item enabled"_qs, u"script enable"_qs));
    EXPECT_THAT(
        desktop.newLogLines(), ElementsAre(u"[Tarvin] SMAppService registered main app for Open at Startup."_qs));
    sync(false);
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"login item disabled"_qs, u"script disable"_qs));
    EXPECT_THAT(
        desktop.newLogLines(), ElementsAre(u"[Tarvin] SMAppService unregistered main app from Open at Startup."_qs));
}

TEST_F(LoginRegistrationTest, theScriptRunsEvenWhereTheServiceHasNothingToDo)
{
    sync(false);
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"script disable"_qs));
    desktop.platform.loginItem().setEnabled(true);
    sync(true);
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"script enable"_qs));
    EXPECT_THAT(desktop.newLogLines(), IsEmpty());
}

TEST_F(LoginRegistrationTest, theCallReturnsBeforeTheScriptHasRun)
{
    sync(true);
    EXPECT_EQ(desktop.platform.effects().count<simulated::ScriptRun>(), 0U);
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.platform.effects().count<simulated::ScriptRun>(), 1U);
}

TEST_F(LoginRegistrationTest, aRefusalOfTheServiceIsLoggedAndTheScriptRunsAllTheSame)
{
    desktop.platform.loginItem().setRefusal(u"Operation not permitted"_qs);
    sync(true);
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"login item enabled, refused"_qs, u"script enable"_qs));
    EXPECT_THAT(
        desktop.newLogLines(), ElementsAre(u"[Tarvin] SMAppService registration notice: Operation not permitted"_qs));
    desktop.platform.loginItem().setEnabled(true);
    sync(false);
    EXPECT_THAT(
        desktop.newLogLines(), ElementsAre(u"[Tarvin] SMAppService registration notice: Operation not permitted"_qs));
}

TEST_F(LoginRegistrationTest, aRefusalChangesNoSetting)
{
    desktop.platform.loginItem().setRefusal(u"Operation not permitted"_qs);
    desktop.manager().setOpenAtStartup(true);
    EXPECT_TRUE(desktop.manager().openAtStartup());
    EXPECT_EQ(desktop.stored(u"Tarvin_OpenAtStartup"), QJsonValue(true));
}

TEST_F(LoginRegistrationTest, theScriptNamesTheBundleAndItsPath)
{
    desktop.platform.processInfo().setBundleName(u"Tarvin Beta"_qs);
    desktop.platform.processInfo().setBundlePath(u"/Applications/Tarvin Beta.app"_qs);
    sync(true);
    std::ignore = desktop.whatHappened();
    desktop.platform.processInfo().setBundleName(std::nullopt);
    sync(false);
    std::ignore = desktop.whatHappened();
    EXPECT_THAT(desktop.platform.scripts().scripts(),
        ElementsAre(Script(SetLoginItem{u"Tarvin Beta"_qs, u"/Applications/Tarvin Beta.app"_qs, true}),
            Script(SetLoginItem{u"Tarvin"_qs, u"/Applications/Tarvin Beta.app"_qs, false})));
}

TEST_F(LoginRegistrationTest, aHostOfTestsGetsNoLoginItemByScript)
{
    desktop.platform.processInfo().setBundleIdentifier(u"com.apple.dt.xctest.tool"_qs);
    sync(true);
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"login item enabled"_qs));
}

TEST_F(LoginRegistrationTest, aNameWithAQuoteMarkGoesInAsItIsAndTheFailureIsLogged)
{
    desktop.platform.processInfo().setBundleName(u"Tar\"vin"_qs);
    desktop.platform.scripts().setResult({.error = u"Expected end of line"_qs, .text = {}});
    sync(true);
    EXPECT_THAT(desktop.newLogLines(),
        ElementsAre(u"[Tarvin] SMAppService registered main app for Open at Startup."_qs,
            u"[Tarvin] System Events login item sync notice: Expected end of line"_qs));
    EXPECT_EQ(std::get<SetLoginItem>(desktop.platform.scripts().scripts().front()).name, u"Tar\"vin"_qs);
    EXPECT_FALSE(desktop.whatHappened().join(u' ').contains(u"MISUSED"));
}

TEST_F(LoginRegistrationTest, aScriptThatCannotBeBuiltIsDroppedInSilence)
{
    desktop.platform.loginItem().setEnabled(true);
    desktop.platform.scripts().setCanBuild(false);
    sync(true);
    EXPECT_THAT(desktop.newLogLines(), IsEmpty());
}

} // namespace

} // namespace tarvin::test
