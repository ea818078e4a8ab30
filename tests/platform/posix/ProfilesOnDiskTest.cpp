#include "platform/posix/PosixFiles.h"
#include "platform/posix/TemporaryFolder.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "profiles/ProfilePrinters.h"

#include <memory>

namespace tarvin::posix {

namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::IsEmpty;

/// The profiles over a real folder, whose disk fails or whose process ends at any chosen call.
class ProfilesOnDiskTest : public TemporaryFolder
{
protected:
    [[nodiscard]] std::unique_ptr<KeyProfile> launch()
    {
        return std::make_unique<KeyProfile>(
            files, desktop.preferences(), desktop.workspace(), desktop.console(), desktop.uuids(), [](KeyAction) {});
    }

    /// What a launch of the program finds when all is well again.
    [[nodiscard]] ProfileMappings mappingsOfTheNextLaunch()
    {
        calls.repair();
        return launch()->profileMappings();
    }

    [[nodiscard]] static ConfiguredAction typing(const QString& text)
    {
        ConfiguredAction record(KeyAction::textSnippet);
        record.textSnippet = text;
        return record;
    }

    void forget()
    {
        QFile::remove(mainFile);
        QFile::remove(backupFile);
    }

    [[nodiscard]] QStringList takeConsoleLines()
    {
        QStringList lines;
        for (const simulated::ConsoleLine& line : desktop.effects().all<simulated::ConsoleLine>())
            lines.append(line.line);
        desktop.effects().clear();
        return lines;
    }

    simulated::SimulatedPlatform desktop;
    FaultyFileCalls calls;
    PosixFiles files{path(u"share/Tarvin"), calls};
    const QString mainFile = path(u"share/Tarvin/profiles_mappings.json");
    const QString backupFile = path(u"share/Tarvin/profiles_mappings.backup.json");

    const ConfiguredAction oldRecord = typing(u"old"_qs);
    const ConfiguredAction newRecord = typing(u"new"_qs);
    const ProfileMappings oldState{{u"global"_qs, {{FKey::f5, oldRecord}}}};
    const ProfileMappings newState{{u"global"_qs, {{FKey::f5, newRecord}}}};
    /// Both files: eight calls each.
    static constexpr int callsOfASave = 16;
};

TEST_F(ProfilesOnDiskTest, bothFilesAreForTheUserAloneAndIdentical)
{
    launch()->setConfig(newRecord, FKey::f5);
    EXPECT_EQ(modeOf(path(u"share/Tarvin")), 0700);
    EXPECT_EQ(modeOf(mainFile), 0600);
    EXPECT_EQ(modeOf(backupFile), 0600);
    EXPECT_EQ(contentOf(mainFile), contentOf(backupFile));
    EXPECT_EQ(mappingsOfTheNextLaunch(), newState);
}

TEST_F(ProfilesOnDiskTest, aLaunchMakesTheFolderAndNoFile)
{
    static_cast<void>(launch());
    EXPECT_EQ(modeOf(path(u"share/Tarvin")), 0700);
    EXPECT_THAT(names(u"share/Tarvin"_qs), IsEmpty());
}

TEST_F(ProfilesOnDiskTest, whereverTheProgramEndsInASaveTheNextLaunchFindsTheOldOrTheNewState)
{
    int oldStates = 0;
    int newStates = 0;
    for (int call = 0;; ++call) {
        calls.repair();
        const std::unique_ptr<KeyProfile> profile = launch();
        profile->setConfig(oldRecord, FKey::f5);
        calls.repair();
        calls.crashAt(call);
        profile->setConfig(newRecord, FKey::f5);
        if (!calls.reachedFault())
            break;
        const ProfileMappings found = mappingsOfTheNextLaunch();
        EXPECT_THAT(found, AnyOf(oldState, newState)) << call;
        oldStates += found == oldState ? 1 : 0;
        newStates += found == newState ? 1 : 0;
    }
    EXPECT_EQ(oldStates + newStates, callsOfASave);
    EXPECT_EQ(oldStates, 6) << "until the main file got its new content";
}

TEST_F(ProfilesOnDiskTest, whereverTheProgramEndsInTheFirstSaveTheNextLaunchFindsNothingOrTheNewState)
{
    int newStates = 0;
    for (int call = 0;; ++call) {
        forget();
        calls.repair();
        const std::unique_ptr<KeyProfile> profile = launch();
        calls.repair();
        calls.crashAt(call);
        profile->setConfig(newRecord, FKey::f5);
        if (!calls.reachedFault())
            break;
        static_cast<void>(takeConsoleLines());
        const ProfileMappings found = mappingsOfTheNextLaunch();
        EXPECT_THAT(found, AnyOf(ProfileMappings(), newState)) << call;
        EXPECT_THAT(takeConsoleLines(), IsEmpty()) << "no file is half written: " << call;
        newStates += found == newState ? 1 : 0;
    }
    EXPECT_EQ(newStates, callsOfASave - 6);
}

TEST_F(ProfilesOnDiskTest, whereverTheProgramEndsInARestorationTheNextLaunchFindsTheBackupsState)
{
    int endings = 0;
    for (int call = 0;; ++call) {
        forget();
        calls.repair();
        launch()->setConfig(oldRecord, FKey::f5);
        lay(mainFile, R"({"global": {"F5": )");
        calls.repair();
        calls.crashAt(call);
        static_cast<void>(launch());
        if (!calls.reachedFault())
            break;
        ++endings;
        EXPECT_EQ(mappingsOfTheNextLaunch(), oldState) << call;
        EXPECT_EQ(mappingsOfTheNextLaunch(), oldState) << call;
        EXPECT_EQ(contentOf(mainFile), contentOf(backupFile)) << call;
    }
    EXPECT_EQ(endings, callsOfASave);
}

TEST_F(ProfilesOnDiskTest, whereverASaveFailsTheFilesAndTheMessageAgree)
{
    int failures = 0;
    int staleBackups = 0;
    for (int call = 0;; ++call) {
        calls.repair();
        const std::unique_ptr<KeyProfile> profile = launch();
        profile->setConfig(oldRecord, FKey::f5);
        const QByteArray oldContent = contentOf(mainFile);
        static_cast<void>(takeConsoleLines());
        calls.repair();
        calls.failAt(call, ENOSPC);
        profile->setConfig(newRecord, FKey::f5);
        if (!calls.reachedFault())
            break;

        EXPECT_EQ(*profile->runtimeCustomConfig(FKey::f5), newRecord) << "the memory keeps the change: " << call;
        EXPECT_THAT(
            names(u"share/Tarvin"_qs), ElementsAre(u"profiles_mappings.backup.json"_qs, u"profiles_mappings.json"_qs))
            << call;
        if (contentOf(mainFile) == oldContent) {
            ++failures;
            EXPECT_THAT(takeConsoleLines(),
                ElementsAre(u"[Tarvin] Failed to save profile mappings: No space left on device"_qs))
                << call;
            EXPECT_EQ(contentOf(backupFile), oldContent) << call;
        } else {
            staleBackups += contentOf(backupFile) == oldContent ? 1 : 0;
            EXPECT_THAT(takeConsoleLines(), IsEmpty()) << call;
            EXPECT_EQ(mappingsOfTheNextLaunch(), newState) << call;
        }
    }
    EXPECT_EQ(failures, 6);
    EXPECT_EQ(staleBackups, 6);
}

TEST_F(ProfilesOnDiskTest, aSaveAfterAFailedOneSavesBoth)
{
    const std::unique_ptr<KeyProfile> profile = launch();
    profile->setConfig(oldRecord, FKey::f5);
    calls.repair();
    calls.failAt(2, ENOSPC);
    profile->setConfig(newRecord, FKey::f5);
    profile->setConfig(newRecord, FKey::f6);
    EXPECT_EQ(
        mappingsOfTheNextLaunch(), (ProfileMappings{{u"global"_qs, {{FKey::f5, newRecord}, {FKey::f6, newRecord}}}}));
}

TEST_F(ProfilesOnDiskTest, aFolderThatCannotBeMadeShowsAtTheFirstSave)
{
    calls.failAt(0, EACCES);
    const std::unique_ptr<KeyProfile> profile = launch();
    EXPECT_THAT(takeConsoleLines(), IsEmpty());
    profile->setConfig(newRecord, FKey::f5);
    EXPECT_THAT(
        takeConsoleLines(), ElementsAre(u"[Tarvin] Failed to save profile mappings: No such file or directory"_qs));
    EXPECT_EQ(*profile->runtimeCustomConfig(FKey::f5), newRecord);
}

TEST_F(ProfilesOnDiskTest, aFolderInThePlaceOfTheMainFileIsPrintedAndTheBackupRead)
{
    launch()->setConfig(oldRecord, FKey::f5);
    QFile::remove(mainFile);
    QDir().mkdir(mainFile);
    EXPECT_EQ(launch()->profileMappings(), oldState);
    const QStringList lines = takeConsoleLines();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].startsWith(u"[Tarvin] Error reading profile mappings from profiles_mappings.json: "));
    EXPECT_EQ(lines[1], u"[Tarvin] Restoring profile mappings from safety backup: " % backupFile);
    EXPECT_EQ(lines[2], u"[Tarvin] Failed to save profile mappings: Is a directory");
}

} // namespace

} // namespace tarvin::posix
