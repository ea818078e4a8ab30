#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using simulated::ForceQuitAnswer;

class ForceQuitTest : public testing::Test
{
protected:
    /// An application with process 400 in front.
    void workIn(const QString& name, const QStringList& identifiers, const std::optional<QString>& executable = {})
    {
        desktop.runApplication(400, name, identifiers);
        desktop.platform.applicationControl().setExecutable(400, executable);
        desktop.workspace().setFrontmostProcess(400);
    }
    QStringList forceQuit() { return desktop.run(KeyAction::forceQuit); }
    QStringList dialog(int milliseconds = 0)
    {
        return QStringList{u"%1 down 53 option+command"_qs.arg(milliseconds),
            u"%1 notice Force Quit Dialog (⌥⌘⎋)"_qs.arg(milliseconds), scriptLine(milliseconds, OpenForceQuitDialog{}),
            u"%1 up 53 option+command"_qs.arg(milliseconds + 15)};
    }

    PerformingDesktop desktop;
};

TEST_F(ForceQuitTest, theApplicationInFrontIsEndedAndKilledIfItIsStillThere)
{
    EXPECT_EQ(forceQuit(), lines({"0 force terminate Safari", "0 kill Safari", "0 notice Force Quit: Safari"}));
    EXPECT_EQ(desktop.workspace().applicationWithProcess(PerformingDesktop::safariProcess), std::nullopt);
}

TEST_F(ForceQuitTest, anApplicationThatIsGoneAtOnceIsNotKilled)
{
    desktop.platform.applicationControl().setForceQuitAnswer(
        PerformingDesktop::safariProcess, ForceQuitAnswer::endsAtOnce);
    EXPECT_EQ(forceQuit(), lines({"0 force terminate Safari", "0 notice Force Quit: Safari"}));
}

TEST_F(ForceQuitTest, anApplicationThatRefusesIsKilled)
{
    desktop.platform.applicationControl().setForceQuitAnswer(
        PerformingDesktop::safariProcess, ForceQuitAnswer::refuses);
    EXPECT_EQ(forceQuit(), lines({"0 force terminate Safari refused", "0 kill Safari", "0 notice Force Quit: Safari"}));
}

TEST_F(ForceQuitTest, behindTheProgramItselfItsTargetIsEnded)
{
    desktop.bringSelfToFront();
    EXPECT_EQ(forceQuit(), lines({"0 force terminate Safari", "0 kill Safari", "0 notice Force Quit: Safari"}));
}

TEST_F(ForceQuitTest, withNoOtherApplicationTheDialogOpensAndTheProgramLives)
{
    desktop.bringSelfToFront();
    desktop.workspace().removeApplication(PerformingDesktop::safariProcess);
    desktop.workspace().removeApplication(PerformingDesktop::mailProcess);
    EXPECT_EQ(forceQuit(), QStringList(u"0 notice No background app — Opening Dialog"_qs) + dialog());
    EXPECT_TRUE(desktop.workspace().applicationWithProcess(PerformingDesktop::ownProcess));
}

TEST_F(ForceQuitTest, withNothingInFrontTheDialogOpens)
{
    desktop.workspace().setFrontmostProcess(std::nullopt);
    EXPECT_EQ(forceQuit(), QStringList(u"0 notice No background app — Opening Dialog"_qs) + dialog());
}

TEST_F(ForceQuitTest, withoutABundleTheProgramStillKnowsItself)
{
    desktop.platform.processInfo().setBundleIdentifier(std::nullopt);
    desktop.bringSelfToFront();
    desktop.workspace().removeApplication(PerformingDesktop::safariProcess);
    desktop.workspace().removeApplication(PerformingDesktop::mailProcess);
    EXPECT_EQ(forceQuit().first(), u"0 notice No background app — Opening Dialog"_qs);
}

TEST_F(ForceQuitTest, aDevelopmentEnvironmentIsProtected)
{
    for (const QString& identifier : {u"com.microsoft.VSCode"_qs, u"com.apple.dt.Xcode"_qs, u"com.apple.Terminal"_qs,
             u"com.googlecode.iTerm2"_qs, u"com.google.Antigravity"_qs}) {
        workIn(u"Editor"_qs, {identifier});
        EXPECT_EQ(forceQuit(), lines({"0 notice Protected Development Environment: Editor"}))
            << identifier.toStdString();
    }
}

TEST_F(ForceQuitTest, aRoleProtectsAsAnIdentifierDoes)
{
    workIn(u"Konsole"_qs, {u"org.kde.konsole"_qs, u"com.apple.Terminal"_qs});
    EXPECT_EQ(forceQuit(), lines({"0 notice Protected Development Environment: Konsole"}));
}

TEST_F(ForceQuitTest, aNameOrAPathProtectsToo)
{
    workIn(u"Antigravity Beta"_qs, {u"com.example.a"_qs});
    EXPECT_EQ(forceQuit(), lines({"0 notice Protected Development Environment: Antigravity Beta"}));
    workIn(u"b"_qs, {u"com.example.b"_qs}, u"/Applications/ANTIGRAVITY.app/b"_qs);
    EXPECT_EQ(forceQuit(), lines({"0 notice Protected Development Environment: b"}));
}

TEST_F(ForceQuitTest, onlyTheIdentifierTellsTheOtherEnvironments)
{
    workIn(u"iTerm and VSCode"_qs, {u"com.example.a"_qs}, u"/opt/vscode/iterm"_qs);
    EXPECT_EQ(forceQuit().last(), u"0 notice Force Quit: iTerm and VSCode"_qs);
}

TEST_F(ForceQuitTest, theFileManagerIsStartedAfresh)
{
    workIn(u"Finder"_qs, {u"com.apple.finder"_qs});
    EXPECT_EQ(forceQuit(),
        lines({"0 force terminate Finder", "0 notice Relaunched Finder",
            "0 script tell application \"Finder\" to activate"}));
}

TEST_F(ForceQuitTest, anApplicationWithoutANameIsCalledApplication)
{
    workIn(QString(), {u"com.example.a"_qs});
    EXPECT_EQ(forceQuit().last(), u"0 notice Force Quit: Application"_qs);
}

TEST_F(ForceQuitTest, theDialogIsAskedForByBothRoads)
{
    ConfiguredAction config(KeyAction::forceQuit);
    config.forceQuitMode = ForceQuitMode::systemDialog;
    EXPECT_EQ(desktop.run(config), QStringList(u"0 use force_quit"_qs) + dialog());
}

TEST_F(ForceQuitTest, inTestSafeModeNothingIsEndedAndNoDialogOpens)
{
    desktop.runInTestSafeMode();
    EXPECT_EQ(forceQuit(), lines({"0 notice Force Quit (Test Mode Simulated)"}));
    ConfiguredAction config(KeyAction::forceQuit);
    config.forceQuitMode = ForceQuitMode::systemDialog;
    EXPECT_EQ(
        desktop.run(config), lines({"0 use force_quit", "0 notice [Test Safe] Open Force Quit dialog simulated"}));
}

} // namespace

} // namespace tarvin::test
