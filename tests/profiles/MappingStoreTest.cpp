#include "profiles/MappingStore.h"

#include "model/JsonText.h"
#include "profiles/ProfileDesktop.h"

namespace tarvin {

namespace {

using simulated::FileChanged;
using simulated::FileOperation;
using simulated::FileStep;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class MappingStoreTest : public ProfileDesktop
{
protected:
    [[nodiscard]] MappingStore store(const std::optional<QString>& customStorageURL = std::nullopt)
    {
        return {desktop.files(), desktop.console(), desktop.uuids(), customStorageURL};
    }

    /// The files that were written, in order, whether or not that went well.
    [[nodiscard]] QStringList writes() const
    {
        QStringList paths;
        for (const FileChanged& change : desktop.effects().all<FileChanged>()) {
            if (change.step == FileStep::written || change.step == FileStep::writeFailed)
                paths.append(change.path);
        }
        return paths;
    }

    static ProfileMappings muteOnF1() { return {{u"global"_qs, {{FKey::f1, ConfiguredAction(KeyAction::mute)}}}}; }
    static ProfileMappings copyOnF2() { return {{u"safari"_qs, {{FKey::f2, ConfiguredAction(KeyAction::copy)}}}}; }

    const QByteArray muteOnF1File = R"({"global": {"F1": {"action": "mute"}}})";
    const QByteArray copyOnF2File = R"({"safari": {"F2": {"action": "copy"}}})";
};

TEST_F(MappingStoreTest, bothFilesLieInTheProgramsOwnFolder)
{
    const MappingStore mappings = store();
    EXPECT_EQ(mappings.storageURL(), mainFile);
    EXPECT_EQ(mappings.backupStorageURL(), backupFile);
    EXPECT_THAT(desktop.effects().all<FileChanged>(),
        ElementsAre(
            FileChanged{FileStep::directoryCreated, desktop.files().applicationSupportDirectory(), {}, std::nullopt}));
}

TEST_F(MappingStoreTest, aSeparateStoreHasItsBackupBesideItAndMakesNoFolder)
{
    const std::vector<std::pair<QString, QString>> places{
        {u"/some/where/map.json"_qs, u"/some/where/map.backup.json"_qs},
        {u"/some/where/map.of.keys.json"_qs, u"/some/where/map.of.keys.backup.json"_qs},
        {u"/some/where/map"_qs, u"/some/where/map.backup.json"_qs},
        {u"/some.where/map"_qs, u"/some.where/map.backup.json"_qs},
        {u"/some/where/.map"_qs, u"/some/where/.map.backup.json"_qs},
    };
    for (const auto& [main, backup] : places) {
        const MappingStore mappings = store(main);
        EXPECT_EQ(mappings.storageURL(), main);
        EXPECT_EQ(mappings.backupStorageURL(), backup);
    }
    EXPECT_THAT(desktop.effects().all<FileChanged>(), IsEmpty());
}

TEST_F(MappingStoreTest, aSaveWritesTheMainFileAndThenTheSameIntoTheBackup)
{
    store().save(muteOnF1());
    EXPECT_THAT(writes(), ElementsAre(mainFile, backupFile));
    EXPECT_EQ(stored(mainFile)[u"global"][u"F1"][u"action"], u"mute"_qs);
    EXPECT_EQ(desktop.files().content(mainFile), desktop.files().content(backupFile));
    EXPECT_THAT(consoleLines(), IsEmpty());
}

TEST_F(MappingStoreTest, aFailedSaveIsPrintedAndLeavesTheBackupAlone)
{
    MappingStore mappings = store();
    mappings.save(muteOnF1());
    const std::optional<QByteArray> before = desktop.files().content(mainFile);
    desktop.files().failOn(FileOperation::write, mainFile, u"No space left on device"_qs);
    desktop.effects().clear();

    mappings.save(copyOnF2());
    EXPECT_THAT(consoleLines(), ElementsAre(u"[Tarvin] Failed to save profile mappings: No space left on device"_qs));
    EXPECT_THAT(writes(), ElementsAre(mainFile));
    EXPECT_EQ(desktop.files().content(mainFile), before);
    EXPECT_EQ(desktop.files().content(backupFile), before);
}

TEST_F(MappingStoreTest, aFailureToWriteTheBackupIsSilent)
{
    MappingStore mappings = store();
    mappings.save(muteOnF1());
    const std::optional<QByteArray> before = desktop.files().content(backupFile);
    desktop.files().failOn(FileOperation::write, backupFile, u"No space left on device"_qs);

    mappings.save(copyOnF2());
    EXPECT_THAT(consoleLines(), IsEmpty());
    EXPECT_EQ(store().load(), copyOnF2());
    EXPECT_EQ(desktop.files().content(backupFile), before);
}

TEST_F(MappingStoreTest, aSoundMainFileIsAllThatIsLookedAt)
{
    stageMain(muteOnF1File);
    stageBackup(copyOnF2File);
    EXPECT_EQ(store().load(), muteOnF1());
    EXPECT_THAT(writes(), IsEmpty());
    EXPECT_THAT(consoleLines(), IsEmpty());
}

TEST_F(MappingStoreTest, anEmptyObjectInTheMainFileIsSoundToo)
{
    stageMain("{}");
    stageBackup(copyOnF2File);
    EXPECT_EQ(store().load(), ProfileMappings());
    EXPECT_THAT(consoleLines(), IsEmpty());
    EXPECT_EQ(desktop.files().content(mainFile), "{}");
}

TEST_F(MappingStoreTest, aMainFileThatCannotBeDecodedIsReplacedByTheBackupWithoutAnError)
{
    for (const char* damage : {"[]", "not JSON at all", "", R"({"global": []})"}) {
        desktop.effects().clear();
        stageMain(damage);
        stageBackup(copyOnF2File);
        EXPECT_EQ(store().load(), copyOnF2());
        EXPECT_THAT(
            consoleLines(), ElementsAre(u"[Tarvin] Restoring profile mappings from safety backup: "_qs + backupFile));
        EXPECT_THAT(writes(), ElementsAre(mainFile, backupFile));
        EXPECT_EQ(stored(mainFile)[u"safari"][u"F2"][u"action"], u"copy"_qs);
        EXPECT_EQ(desktop.files().content(mainFile), desktop.files().content(backupFile));
    }
}

TEST_F(MappingStoreTest, aMissingMainFileIsRestoredFromTheBackup)
{
    stageBackup(copyOnF2File);
    EXPECT_EQ(store().load(), copyOnF2());
    EXPECT_THAT(
        consoleLines(), ElementsAre(u"[Tarvin] Restoring profile mappings from safety backup: "_qs + backupFile));
    EXPECT_TRUE(desktop.files().exists(mainFile));
}

TEST_F(MappingStoreTest, anUnreadableMainFileIsPrintedWithItsNameBeforeTheBackupIsTried)
{
    stageMain(muteOnF1File);
    stageBackup(copyOnF2File);
    desktop.files().failOn(FileOperation::read, mainFile, u"Input/output error"_qs);
    EXPECT_EQ(store().load(), copyOnF2());
    EXPECT_THAT(consoleLines(),
        ElementsAre(u"[Tarvin] Error reading profile mappings from profiles_mappings.json: Input/output error"_qs,
            u"[Tarvin] Restoring profile mappings from safety backup: "_qs + backupFile));
}

TEST_F(MappingStoreTest, anUnreadableBackupIsPrintedToo)
{
    stageBackup(copyOnF2File);
    desktop.files().failOn(FileOperation::read, backupFile, u"Input/output error"_qs);
    EXPECT_EQ(store().load(), ProfileMappings());
    EXPECT_THAT(consoleLines(),
        ElementsAre(u"[Tarvin] Restoring profile mappings from safety backup: "_qs + backupFile,
            u"[Tarvin] Error reading profile mappings from profiles_mappings.backup.json: Input/output error"_qs));
    EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(MappingStoreTest, twoDamagedFilesGiveNoMappingsAndStayUntilTheNextSave)
{
    stageMain("damaged");
    stageBackup("damaged as well");
    MappingStore mappings = store();
    EXPECT_EQ(mappings.load(), ProfileMappings());
    EXPECT_THAT(
        consoleLines(), ElementsAre(u"[Tarvin] Restoring profile mappings from safety backup: "_qs + backupFile));
    EXPECT_EQ(desktop.files().content(mainFile), "damaged");
    EXPECT_EQ(desktop.files().content(backupFile), "damaged as well");

    mappings.save(muteOnF1());
    EXPECT_EQ(store().load(), muteOnF1());
}

TEST_F(MappingStoreTest, aDamagedMainFileWithoutABackupGivesNoMappingsInSilence)
{
    stageMain("damaged");
    EXPECT_EQ(store().load(), ProfileMappings());
    EXPECT_THAT(consoleLines(), IsEmpty());
    EXPECT_EQ(desktop.files().content(mainFile), "damaged");
}

TEST_F(MappingStoreTest, theFirstLaunchMakesNoFile)
{
    EXPECT_EQ(store().load(), ProfileMappings());
    EXPECT_THAT(writes(), IsEmpty());
    EXPECT_THAT(consoleLines(), IsEmpty());
}

TEST_F(MappingStoreTest, aMainFileWithOneDamagedEntryIsKeptWithoutTheEntry)
{
    stageMain(R"({"global": {"F1": {"action": "mute"}, "F2": []}})");
    stageBackup(copyOnF2File);
    EXPECT_EQ(store().load(), muteOnF1());
    EXPECT_THAT(consoleLines(), IsEmpty());
}

} // namespace

} // namespace tarvin
