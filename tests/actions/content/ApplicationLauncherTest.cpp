#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

class ApplicationLauncherTest : public testing::Test
{
protected:
    void install(const QString& path, const QString& name, const QStringList& identifiers)
    {
        desktop.platform.applicationControl().install({.path = path, .name = name, .bundleIdentifiers = identifiers});
    }
    static ConfiguredAction record(const QString& identifier, const QString& path = {}, const QString& name = {})
    {
        ConfiguredAction config(KeyAction::openApplication);
        if (!identifier.isEmpty())
            config.customAppBundleId = identifier;
        if (!path.isEmpty())
            config.customAppPath = path;
        if (!name.isEmpty())
            config.customAppName = name;
        return config;
    }
    /// By the rule for whole records, which a key press reaches only with an empty one.
    QStringList open(const ConfiguredAction& config)
    {
        return desktop.transcriptOf([&] { desktop.actions.guarded.executeOpenApplication(config); });
    }

    PerformingDesktop desktop;
};

TEST_F(ApplicationLauncherTest, anInstalledApplicationIsOpenedWhereItStands)
{
    install(u"/Applications/Editor.app"_qs, u"Editor"_qs, {u"com.example.editor"_qs});
    EXPECT_EQ(desktop.run(record(u"com.example.editor"_qs)),
        lines({"0 use open_application", "0 open /Applications/Editor.app"}));
    EXPECT_EQ(desktop.frontName(), u"Editor"_qs);
}

TEST_F(ApplicationLauncherTest, anApplicationThatIsNotInstalledOpensTheEmptyPathAndSaysNothing)
{
    EXPECT_EQ(desktop.run(record(u"com.example.none"_qs, u"/elsewhere"_qs, u"None"_qs)),
        lines({"0 use open_application", "0 open "}));
}

TEST_F(ApplicationLauncherTest, aRecordWithoutIdentifierSaysThatThereIsNone)
{
    EXPECT_EQ(desktop.run(record(QString(), u"/a"_qs, u"a"_qs)),
        lines({"0 use open_application", "0 notice No application configured"}));
}

TEST_F(ApplicationLauncherTest, applicationsOfTheSystemHaveAPathOfTheirOwn)
{
    EXPECT_EQ(desktop.run(KeyAction::calculator), lines({"0 open /System/Applications/Calculator.app"}));
    install(u"/usr/share/applications/calc.desktop"_qs, u"Calculator"_qs, {u"calc"_qs, u"com.apple.calculator"_qs});
    EXPECT_EQ(desktop.run(KeyAction::calculator), lines({"0 open /usr/share/applications/calc.desktop"}));
}

TEST_F(ApplicationLauncherTest, byNameAloneTheFolderOfApplicationsIsShown)
{
    EXPECT_EQ(desktop.run(KeyAction::openApplication), lines({"0 notice No App Configured", "0 open /Applications"}));
}

TEST_F(ApplicationLauncherTest, aRunningApplicationIsBroughtForward)
{
    install(u"/Applications/Mail.app"_qs, u"Mail"_qs, {u"com.example.mail"_qs});
    EXPECT_EQ(
        open(record(u"com.example.mail"_qs, {}, u"My Mail"_qs)), lines({"0 activate Mail", "0 notice Opened My Mail"}));
}

TEST_F(ApplicationLauncherTest, anApplicationThatHasEndedIsStartedAgain)
{
    desktop.workspace().setApplication({.processIdentifier = PerformingDesktop::mailProcess,
        .bundleIdentifiers = {u"com.example.mail"_qs},
        .localizedName = u"Mail"_qs,
        .isTerminated = true});
    install(u"/Applications/Mail.app"_qs, u"Mail"_qs, {u"com.example.mail"_qs});
    EXPECT_EQ(open(record(u"com.example.mail"_qs)),
        lines({"0 open application /Applications/Mail.app", "0 notice Opened App"}));
}

TEST_F(ApplicationLauncherTest, aPathCountsOnlyIfSomethingStandsThere)
{
    install(u"/opt/tool.app"_qs, u"Tool"_qs, {});
    EXPECT_EQ(
        open(record({}, u"/opt/tool.app"_qs)), lines({"0 open application /opt/tool.app", "0 notice Opened App"}));
    EXPECT_EQ(open(record({}, u"/opt/none.app"_qs)), lines({"0 notice No App Configured", "0 open /Applications"}));
}

TEST_F(ApplicationLauncherTest, aNameIsLookedForInFourFolders)
{
    const QStringList places = {u"/Users/somebody/Applications/Tool.app"_qs,
        u"/System/Applications/Utilities/Tool.app"_qs, u"/System/Applications/Tool.app"_qs,
        u"/Applications/Tool.app"_qs};
    for (const QString& place : places) {
        install(place, u"Tool"_qs, {});
        EXPECT_EQ(open(record({}, {}, u"Tool"_qs)),
            QStringList({u"0 open application "_qs + place, u"0 notice Opened Tool"_qs}));
    }
}

TEST_F(ApplicationLauncherTest, missionControlIsAnApplicationAndAKeystroke)
{
    EXPECT_EQ(desktop.run(KeyAction::missionControl),
        lines({"0 open application /System/Applications/Mission Control.app", "0 down 126 control",
            "0 notice Mission Control", "15 up 126 control"}));
}

TEST_F(ApplicationLauncherTest, inTestSafeModeOnlyMissionControlOpens)
{
    desktop.runInTestSafeMode();
    EXPECT_EQ(desktop.run(KeyAction::notes), lines({}));
    EXPECT_EQ(desktop.run(KeyAction::openApplication), lines({}));
    EXPECT_EQ(desktop.run(KeyAction::missionControl),
        lines({"0 open application /System/Applications/Mission Control.app", "0 notice Mission Control"}));
}

} // namespace

} // namespace tarvin::test
