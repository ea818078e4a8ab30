#include "app/simulate/Stage.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

#include <QJsonDocument>

namespace tarvin::simulate {
namespace {

using namespace std::chrono_literals;

class StageTest : public testing::Test
{
protected:
    void done(const auto& instruction) { EXPECT_EQ(stage.apply(instruction), std::nullopt); }
    QJsonObject mappings()
    {
        return QJsonDocument::fromJson(desktop.files().content(mappingFile).value_or(QByteArray())).object();
    }
    QString frontName()
    {
        return desktop.workspace().frontmostApplication().value_or(RunningApplication{}).localizedName;
    }

    simulated::SimulatedPlatform desktop;
    Stage stage{desktop};
    QString mappingFile = desktop.files().applicationSupportDirectory() + u"/profiles_mappings.json"_qs;
    QJsonObject mute{{u"action"_qs, u"mute"_qs}};
};

TEST_F(StageTest, mappedKeysAreEnteredIntoTheMappingFile)
{
    done(MapKey{u"global"_qs, FKey::f5, mute});
    done(MapKey{u"global"_qs, FKey::f6, mute});
    done(MapKey{u"safari"_qs, FKey::f5, mute});
    EXPECT_EQ(mappings(),
        (QJsonObject{{u"global"_qs, QJsonObject{{u"F5"_qs, mute}, {u"F6"_qs, mute}}},
            {u"safari"_qs, QJsonObject{{u"F5"_qs, mute}}}}));
}

TEST_F(StageTest, aDamagedMappingFileIsNotAddedTo)
{
    done(PutFile{u"profiles_mappings.json"_qs, "[]"});
    EXPECT_EQ(stage.apply(MapKey{u"global"_qs, FKey::f5, mute}),
        u"the mapping file was given as something else than a JSON object; expected one to add to"_qs);
}

TEST_F(StageTest, pathsWithoutASlashInFrontLieInTheProgramsFolder)
{
    done(PutFile{u"a.txt"_qs, "a"});
    done(PutFile{u"/b.txt"_qs, "b"});
    EXPECT_EQ(desktop.files().content(u"/data/Tarvin/a.txt"_qs), "a");
    EXPECT_EQ(desktop.files().content(u"/b.txt"_qs), "b");
    done(RemoveFile{u"a.txt"_qs});
    EXPECT_FALSE(desktop.files().exists(u"/data/Tarvin/a.txt"_qs));
    EXPECT_EQ(
        stage.apply(RemoveFile{u"a.txt"_qs}), u"there is no file \"/data/Tarvin/a.txt\"; expected one to remove"_qs);
    done(FailFile{.path = u"/b.txt"_qs, .operation = simulated::FileOperation::read, .error = u"no"_qs});
    EXPECT_TRUE(std::holds_alternative<FileError>(desktop.files().read(u"/b.txt"_qs)));
    done(FailFile{.path = u"/b.txt"_qs, .operation = simulated::FileOperation::read, .error = {}});
    EXPECT_FALSE(std::holds_alternative<FileError>(desktop.files().read(u"/b.txt"_qs)));
}

TEST_F(StageTest, theExecutableStaysTheFirstArgument)
{
    done(DescribeProcess{.arguments = QStringList{u"--startup"_qs}, .bundleName = std::optional<QString>()});
    done(DescribeProcess{.arguments = QStringList{u"--background"_qs}, .loginItem = true});
    EXPECT_EQ(desktop.processInfo().arguments(), (QStringList{u"/apps/Tarvin/tarvin"_qs, u"--background"_qs}));
    EXPECT_EQ(desktop.processInfo().bundleName(), std::nullopt);
    EXPECT_EQ(desktop.processInfo().bundleIdentifier(), u"com.velmor.Tarvin"_qs);
    EXPECT_TRUE(desktop.processInfo().wasStartedAsLoginItem());
}

TEST_F(StageTest, applicationsAreFoundByIdentifierOrName)
{
    done(RunApplication{.name = u"Safari"_qs, .bundleIdentifiers = {u"com.apple.Safari"_qs}});
    done(RunApplication{.name = u"job"_qs});
    done(BringToFront{.application = u"com.apple.Safari"_qs});
    EXPECT_EQ(frontName(), u"Safari"_qs);
    done(BringToFront{.application = u"job"_qs});
    EXPECT_EQ(frontName(), u"job"_qs);
    done(BringToFront{});
    EXPECT_EQ(frontName(), QString());
    EXPECT_EQ(stage.apply(BringToFront{.application = u"Xcode"_qs}),
        u"no running application has the identifier or the name \"Xcode\"; expected \"com.velmor.Tarvin\", "
        u"\"com.apple.Safari\" or \"job\", or an \"application\" before"_qs);
}

TEST_F(StageTest, anApplicationToldTwiceIsTheSameOne)
{
    done(RunApplication{.name = u"Safari"_qs, .inFront = true});
    done(RunApplication{.name = u"Safari"_qs, .isHidden = true});
    done(RunApplication{.process = 900, .name = u"Safari"_qs});
    done(RunApplication{.name = u"Xcode"_qs});
    std::vector<ProcessIdentifier> processes;
    for (const RunningApplication& application : desktop.workspace().runningApplications())
        processes.push_back(application.processIdentifier);
    EXPECT_EQ(processes, (std::vector<ProcessIdentifier>{100, 501, 900, 901}));
    EXPECT_TRUE(desktop.workspace().applicationWithProcess(501)->isHidden);
    EXPECT_EQ(frontName(), u"Safari"_qs);
    EXPECT_EQ(stage.apply(RunApplication{.process = 100, .name = u"X"_qs}),
        u"process 100 is the program itself; expected another"_qs);
}

TEST_F(StageTest, anApplicationThatQuitsIsGone)
{
    done(RunApplication{.name = u"Safari"_qs, .inFront = true});
    done(QuitApplication{u"Safari"_qs});
    EXPECT_EQ(frontName(), QString());
    EXPECT_NE(stage.apply(QuitApplication{u"Safari"_qs}), std::nullopt);
    EXPECT_NE(stage.apply(QuitApplication{u"Tarvin"_qs}), std::nullopt);
}

TEST_F(StageTest, theFrontCanChangeWithoutAWord)
{
    QStringList heard;
    const std::unique_ptr<WorkspaceObserver> observer =
        desktop.workspace().observeActivation([&heard](const std::optional<RunningApplication>& application) {
            heard << (application ? application->localizedName : u"unnamed"_qs);
        });
    done(RunApplication{.name = u"Safari"_qs});
    done(RunApplication{.name = u"Xcode"_qs});
    done(BringToFront{.application = u"Safari"_qs, .announcement = FrontAnnouncement::never});
    done(BringToFront{.application = u"Xcode"_qs, .announcement = FrontAnnouncement::unnamed});
    done(BringToFront{.application = u"Safari"_qs});
    EXPECT_EQ(heard, (QStringList{u"unnamed"_qs, u"Safari"_qs}));
}

TEST_F(StageTest, whatIsTouchedOnTheDesktopIsThere)
{
    done(MovePointer{{3, 4}});
    done(FillClipboard{.text = u"text"_qs, .isSecret = true});
    done(ArrangeScreens{{{.frame = {{0, 0}, {10, 10}}, .visibleFrame = {{0, 1}, {10, 9}}}}});
    done(ShowWindows{{{.owner = 501, .layer = 0, .size = {5, 5}}}});
    done(SetUptime{50});
    done(SetClock{Scheduler::WallClock(9s)});
    done(StoreSetting{u"a"_qs, 1});
    done(StoreSetting{u"b"_qs, 1});
    done(StoreSetting{u"b"_qs, QJsonValue()});
    done(SetPermission{false});
    done(ArrangeLoginItem{.enabled = true, .refusal = std::optional<QString>(u"no"_qs)});
    done(ArrangeFunctionKeyTool{.available = false, .stored = u"1"_qs});
    done(SetPostingPossible{.keyCode = 96, .possible = false});
    done(SetPostingPossible{.possible = false});
    done(AdvanceTime{5ms});
    EXPECT_EQ(desktop.pointer().position(), (Point{3, 4}));
    EXPECT_EQ(desktop.pasteboard().content(), (PasteboardText{.text = u"text"_qs, .isSecret = true}));
    EXPECT_EQ(desktop.screens().screens().front().visibleFrame, (Rect{{0, 1}, {10, 9}}));
    EXPECT_EQ(desktop.workspace().onScreenWindows().size(), 1u);
    EXPECT_DOUBLE_EQ(desktop.scheduler().uptime(), 50.005);
    EXPECT_EQ(desktop.scheduler().now().time_since_epoch(), 9005ms);
    EXPECT_EQ(desktop.preferences().value(u"a"_qs), QJsonValue(1));
    EXPECT_TRUE(desktop.preferences().value(u"b"_qs).isUndefined());
    EXPECT_FALSE(desktop.permission().isProcessTrusted());
    EXPECT_TRUE(desktop.loginItem().isEnabled());
    EXPECT_EQ(desktop.loginItem().disable(), u"no"_qs);
    EXPECT_FALSE(desktop.functionKeySetting().isAvailable());
    EXPECT_EQ(desktop.functionKeySetting().storedText(), "1");
    EXPECT_FALSE(desktop.poster().canMakeKey(96));
    EXPECT_FALSE(desktop.poster().canMakeClick());
}

TEST_F(StageTest, tapsMonitorsAndScriptsAreRefusedAsTold)
{
    done(SetTapAvailable{TapLocation::session, false});
    done(SetGlobalMonitorAvailable{false});
    done(SetHidManagerOpens{false});
    done(AnswerScripts{.canBuild = true, .error = u"no"_qs});
    EXPECT_EQ(desktop.inputTaps().createTap(TapLocation::session, {}), nullptr);
    EXPECT_EQ(desktop.inputTaps().addGlobalMonitor({}), nullptr);
    EXPECT_FALSE(desktop.inputTaps().openHidManager({})->isOpen());
    desktop.scheduler().callOffMain(
        [this] { EXPECT_EQ(desktop.scripts().run(OpenAccessibilityPage{})->error, u"no"_qs); });
    EXPECT_EQ(stage.apply(DisableTap{TapLocation::session, DisableReason::timeout}),
        u"there is no such tap now; expected one to switch off"_qs);
    EXPECT_EQ(stage.apply(CloseWindow{u"Studio"_qs}),
        u"the program has no window \"Studio\"; expected one of its windows"_qs);
}

} // namespace
} // namespace tarvin::simulate
