#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

class AppQuickFlipManagerTest : public testing::Test
{
protected:
    QStringList flip(const std::optional<QString>& companion = std::nullopt)
    {
        ConfiguredAction config(KeyAction::quickAppFlip);
        config.quickFlipCompanionBundleId = companion;
        return desktop.run(config).mid(1);
    }
    void workIn(ProcessIdentifier process)
    {
        desktop.workspace().setFrontmostProcess(process);
        desktop.platform.scheduler().runPosted();
    }
    static QString nameOf(const std::optional<RunningApplication>& application)
    {
        return application ? application->localizedName : u"none"_qs;
    }
    /// "current, previous"
    QString pair()
    {
        return nameOf(desktop.quickFlip.currentApp()) + u", "_qs + nameOf(desktop.quickFlip.previousApp());
    }

    PerformingDesktop desktop;
    static constexpr ProcessIdentifier safari = PerformingDesktop::safariProcess;
    static constexpr ProcessIdentifier mail = PerformingDesktop::mailProcess;
    static constexpr ProcessIdentifier own = PerformingDesktop::ownProcess;
};

TEST_F(AppQuickFlipManagerTest, twoPressesReturnToTheFirstApplication)
{
    workIn(mail);
    EXPECT_EQ(flip(), lines({"0 activate Safari", "0 notice Quick-Flipped to Safari"}));
    EXPECT_EQ(desktop.frontName(), u"Safari"_qs);
    EXPECT_EQ(flip(), lines({"0 activate Mail", "0 notice Quick-Flipped to Mail"}));
    EXPECT_EQ(desktop.frontName(), u"Mail"_qs);
}

TEST_F(AppQuickFlipManagerTest, thePairIsThatOfTheLastTwoOrdinaryApplications)
{
    EXPECT_EQ(pair(), u"Safari, none"_qs);
    workIn(mail);
    EXPECT_EQ(pair(), u"Mail, Safari"_qs);
    workIn(own);
    EXPECT_EQ(pair(), u"Mail, Safari"_qs);
    desktop.workspace().setFrontmost({.processIdentifier = 400,
        .bundleIdentifiers = {u"helper"_qs},
        .localizedName = u"Helper"_qs,
        .activationPolicy = ActivationPolicy::accessory});
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(pair(), u"Mail, Safari"_qs);
}

TEST_F(AppQuickFlipManagerTest, anActivationOfTheSameProcessKeepsThePrevious)
{
    workIn(mail);
    desktop.workspace().announceActivation(desktop.workspace().applicationWithProcess(mail));
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(pair(), u"Mail, Safari"_qs);
}

TEST_F(AppQuickFlipManagerTest, anActivationOfNobodyKnowsWhomChangesNothing)
{
    desktop.workspace().announceActivation(std::nullopt);
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(pair(), u"Safari, none"_qs);
}

TEST_F(AppQuickFlipManagerTest, twoWithoutIdentifierCountAsEqual)
{
    desktop.platform.processInfo().setBundleIdentifier(std::nullopt);
    desktop.runApplication(400, u"Nameless"_qs, {});
    workIn(400);
    EXPECT_EQ(pair(), u"Safari, none"_qs);
}

TEST_F(AppQuickFlipManagerTest, whoeverIsMadeBehindTheStudioNeverFlipsToIt)
{
    workIn(own);
    AppQuickFlipManager late({.workspace = desktop.ports.workspace,
        .applications = desktop.ports.applicationControl,
        .processInfo = desktop.ports.processInfo,
        .notice = desktop.notice,
        .scheduler = desktop.ports.scheduler});
    EXPECT_EQ(nameOf(late.currentApp()), u"Tarvin"_qs);
    workIn(mail);
    EXPECT_EQ(nameOf(late.currentApp()), u"Mail"_qs);
    EXPECT_EQ(nameOf(late.previousApp()), u"none"_qs);
}

TEST_F(AppQuickFlipManagerTest, fromTheStudioAPressGoesToTheOneBefore)
{
    workIn(mail);
    workIn(own);
    EXPECT_EQ(flip(), lines({"0 activate Safari", "0 notice Quick-Flipped to Safari"}));
}

TEST_F(AppQuickFlipManagerTest, aRunningCompanionComesForwardAndThenTheOneBefore)
{
    EXPECT_EQ(flip(u"com.example.mail"_qs), lines({"0 activate Mail", "0 notice Flipped to Mail"}));
    EXPECT_EQ(flip(u"com.example.mail"_qs), lines({"0 activate Safari", "0 notice Flipped to Safari"}));
}

TEST_F(AppQuickFlipManagerTest, aRoleNamesACompanionToo)
{
    desktop.runApplication(400, u"Web"_qs, {u"org.example.web"_qs, u"com.example.role"_qs});
    EXPECT_EQ(flip(u"com.example.role"_qs), lines({"0 activate Web", "0 notice Flipped to Web"}));
}

TEST_F(AppQuickFlipManagerTest, aCompanionThatDoesNotRunIsStarted)
{
    desktop.platform.applicationControl().install(
        {.path = u"/Applications/Chat.app"_qs, .name = u"Chat"_qs, .bundleIdentifiers = {u"com.example.chat"_qs}});
    EXPECT_EQ(flip(u"com.example.chat"_qs),
        lines({"0 open application /Applications/Chat.app", "0 notice Launched Companion App"}));
    EXPECT_EQ(desktop.frontName(), u"Chat"_qs);
}

TEST_F(AppQuickFlipManagerTest, withACompanionThatIsNotInstalledThePlainRoadIsTaken)
{
    workIn(mail);
    EXPECT_EQ(flip(u"com.example.none"_qs), lines({"0 activate Safari", "0 notice Quick-Flipped to Safari"}));
}

TEST_F(AppQuickFlipManagerTest, anEmptyCompanionIsNone)
{
    workIn(mail);
    EXPECT_EQ(flip(QString()), lines({"0 activate Safari", "0 notice Quick-Flipped to Safari"}));
}

TEST_F(AppQuickFlipManagerTest, inTheCompanionWithNothingBeforeSomeOtherApplicationComesForward)
{
    EXPECT_EQ(flip(u"com.apple.Safari"_qs), lines({"0 activate Mail", "0 notice Quick-Flipped to Mail"}));
}

TEST_F(AppQuickFlipManagerTest, aPreviousApplicationThatHasEndedIsPassedOver)
{
    desktop.runApplication(400, u"Chat"_qs, {u"com.example.chat"_qs});
    workIn(400);
    workIn(mail);
    desktop.workspace().removeApplication(400);
    EXPECT_EQ(pair(), u"Mail, Chat"_qs);
    EXPECT_EQ(flip(), lines({"0 activate Safari", "0 notice Quick-Flipped to Safari"}));
    EXPECT_EQ(flip(u"com.apple.Safari"_qs), lines({"0 activate Mail", "0 notice Flipped to Mail"}));
}

TEST_F(AppQuickFlipManagerTest, helpersAndTheProgramItselfAreNoFallback)
{
    desktop.workspace().setApplication({.processIdentifier = mail,
        .bundleIdentifiers = {u"com.example.mail"_qs},
        .localizedName = u"Mail"_qs,
        .activationPolicy = ActivationPolicy::accessory});
    EXPECT_EQ(flip(), lines({}));
}

TEST_F(AppQuickFlipManagerTest, inTestSafeModeNothingComesForward)
{
    workIn(mail);
    desktop.runInTestSafeMode();
    EXPECT_EQ(flip(), lines({}));
    EXPECT_EQ(flip(u"com.apple.Safari"_qs), lines({}));
}

TEST_F(AppQuickFlipManagerTest, aChangeOfThePairIsAnnounced)
{
    int changes = 0;
    QObject::connect(&desktop.quickFlip, &AppQuickFlipManager::pairChanged, &desktop.quickFlip, [&] { ++changes; });
    workIn(mail);
    EXPECT_EQ(changes, 1);
}

} // namespace

} // namespace tarvin::test
