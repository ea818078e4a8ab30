#include "profiles/MappingArchive.h"

#include "ProfileDesktop.h"
#include "profiles/MappingFile.h"

namespace tarvin {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::chrono_literals;

class MappingArchiveTest : public ProfileDesktop
{
protected:
    MappingArchive& archive()
    {
        if (!m_archive) {
            m_archive =
                std::make_unique<MappingArchive>(profile(), desktop.files(), desktop.uuids(), desktop.scheduler());
        }
        return *m_archive;
    }
    /// The next use of either is another launch.
    void relaunch()
    {
        m_archive.reset();
        quit();
    }
    void type(const QString& text, FKey key = FKey::f5)
    {
        archive();
        profile().setConfig(typing(text), key);
        desktop.scheduler().advance(1s);
    }
    /// What F5 types in the profile for all applications.
    [[nodiscard]] QString text(FKey key = FKey::f5)
    {
        return profile().actionConfig(key).textSnippet.value_or(u"-"_qs);
    }
    [[nodiscard]] QStringList stateFiles()
    {
        QStringList names;
        for (const SavedState& state : archive().savedStates())
            names += state.fileName;
        return names;
    }
    /// What F5 types in each kept state, newest first.
    [[nodiscard]] QStringList stateTexts()
    {
        QStringList texts;
        for (const SavedState& state : archive().savedStates()) {
            const auto mappings = archive().read(state);
            if (!mappings)
                texts += u"damaged"_qs;
            else if (!mappings->contains(u"global"_qs) || !mappings->at(u"global"_qs).contains(FKey::f5))
                texts += u"-"_qs;
            else
                texts += mappings->at(u"global"_qs).at(FKey::f5).textSnippet.value_or(u"?"_qs);
        }
        return texts;
    }
    [[nodiscard]] QString fileNamed(const QString& name) const
    {
        return desktop.files().applicationSupportDirectory() + u'/' + name;
    }

    std::unique_ptr<MappingArchive> m_archive;
};

// ---- Undo ----

TEST_F(MappingArchiveTest, nothingIsThereToUndoAtFirst)
{
    EXPECT_EQ(archive().undo(), std::nullopt);
    EXPECT_FALSE(desktop.files().exists(mainFile));
}

TEST_F(MappingArchiveTest, changesAreTakenBackOneByOneFromTheLast)
{
    type(u"a"_qs);
    type(u"b"_qs);
    type(u"c"_qs, FKey::f6);
    EXPECT_TRUE(archive().undo());
    EXPECT_EQ(text(FKey::f6), u"-"_qs);
    EXPECT_EQ(text(), u"b"_qs);
    EXPECT_TRUE(archive().undo());
    EXPECT_EQ(text(), u"a"_qs);
    EXPECT_TRUE(archive().undo());
    EXPECT_TRUE(profile().profileMappings().empty()) << "not even the empty profile is left";
    EXPECT_FALSE(archive().undo());
}

TEST_F(MappingArchiveTest, whatWasUndoneIsOnDisk)
{
    type(u"a"_qs);
    type(u"b"_qs);
    archive().undo();
    relaunch();
    EXPECT_EQ(text(), u"a"_qs);
}

TEST_F(MappingArchiveTest, undoReachesBackOverALaunch)
{
    type(u"a"_qs);
    type(u"b"_qs);
    relaunch();
    EXPECT_EQ(archive().changes().size(), 2U);
    EXPECT_TRUE(archive().undo());
    EXPECT_EQ(text(), u"a"_qs);
    relaunch();
    EXPECT_TRUE(archive().undo());
    EXPECT_EQ(text(), u"-"_qs);
    EXPECT_FALSE(archive().undo());
}

TEST_F(MappingArchiveTest, theLastFiftyChangesAreKept)
{
    for (int i = 0; i <= 55; ++i)
        type(QString::number(i));
    EXPECT_EQ(archive().changes().size(), 50U);
    relaunch();
    int undone = 0;
    while (archive().undo())
        ++undone;
    EXPECT_EQ(undone, 50);
    EXPECT_EQ(text(), u"5"_qs);
}

TEST_F(MappingArchiveTest, aResetOfAProfileComesBackWithAllItsKeysAndItsProfile)
{
    type(u"a"_qs);
    type(u"b"_qs, FKey::f6);
    profile().resetCurrentProfileToDefaults();
    EXPECT_EQ(text(), u"-"_qs);
    archive().undo();
    EXPECT_EQ(text(), u"a"_qs);
    EXPECT_EQ(text(FKey::f6), u"b"_qs);
    profile().resetAllProfilesToDefaults();
    archive().undo();
    EXPECT_EQ(text(), u"a"_qs);
}

TEST_F(MappingArchiveTest, anEmptiedProfileIsOneAgainAfterAnUndo)
{
    type(u"a"_qs);
    profile().resetCurrentProfileToDefaults();
    type(u"b"_qs);
    archive().undo();
    EXPECT_EQ(stored(mainFile), QJsonValue(QJsonObject{{u"global"_qs, QJsonObject()}}));
}

TEST_F(MappingArchiveTest, settingWhatIsSetAlreadyIsNoChange)
{
    type(u"a"_qs);
    type(u"a"_qs);
    profile().resetToDefault(FKey::f9);
    EXPECT_EQ(archive().changes().size(), 1U);
}

TEST_F(MappingArchiveTest, whatWasChangedByHandMeanwhileStays)
{
    type(u"a"_qs);
    type(u"b"_qs);
    relaunch();
    QJsonObject global = stored(mainFile).toObject().value(u"global").toObject();
    global.insert(u"F7"_qs, u"mute"_qs);
    stageMain(QJsonDocument(QJsonObject{{u"global"_qs, global}}).toJson());
    archive().undo();
    EXPECT_EQ(text(), u"a"_qs);
    EXPECT_EQ(profile().actionInEditor(FKey::f7), KeyAction::mute);
}

TEST_F(MappingArchiveTest, aDamagedListOfChangesCostsTheUndoAndNothingElse)
{
    type(u"a"_qs);
    relaunch();
    desktop.files().stage(fileNamed(u"profiles_mappings.changes.json"_qs), "[{]");
    EXPECT_THAT(archive().changes(), IsEmpty());
    type(u"b"_qs);
    EXPECT_TRUE(archive().undo());
    EXPECT_EQ(text(), u"a"_qs);
}

TEST_F(MappingArchiveTest, aListWithOneDamagedChangeLosesThatOne)
{
    desktop.files().stage(fileNamed(u"profiles_mappings.changes.json"_qs),
        R"([7, {"at":"x"}, {"at":"2026-01-01T00:00:00.000Z","profiles":{"global":{"existed":true,"keys":{"F5":null,"Foo":null}}}}])");
    stageMain(R"({"global":{"F5":"mute"}})");
    ASSERT_EQ(archive().changes().size(), 1U);
    archive().undo();
    EXPECT_EQ(stored(mainFile), QJsonValue(QJsonObject{{u"global"_qs, QJsonObject()}}));
}

// ---- Kept states ----

TEST_F(MappingArchiveTest, theLastTenDistinctStatesAreKeptNewestFirst)
{
    for (int i = 0; i < 13; ++i)
        type(QString::number(i));
    EXPECT_THAT(stateTexts(),
        ElementsAre(u"12"_qs, u"11"_qs, u"10"_qs, u"9"_qs, u"8"_qs, u"7"_qs, u"6"_qs, u"5"_qs, u"4"_qs, u"3"_qs));
    const QStringList before = stateTexts();
    relaunch();
    EXPECT_EQ(stateTexts(), before);
    type(u"13"_qs);
    EXPECT_EQ(stateTexts().first(), u"13"_qs);
    EXPECT_EQ(stateTexts().size(), 10);
    QStringList names = stateFiles();
    names.removeDuplicates();
    EXPECT_EQ(names.size(), 10);
}

TEST_F(MappingArchiveTest, aStateThatComesAgainMovesToTheFrontInsteadOfBeingKeptTwice)
{
    type(u"a"_qs);
    type(u"b"_qs);
    archive().undo(); // new records have new identities, the old one is the same
    EXPECT_THAT(stateTexts(), ElementsAre(u"a"_qs, u"b"_qs));
}

TEST_F(MappingArchiveTest, whatWasThereBeforeTheFirstChangeIsKeptToo)
{
    stageMain(R"({"global":{"F5":{"action":"text_snippet","textSnippet":"old"}}})");
    type(u"new"_qs);
    EXPECT_THAT(stateTexts(), ElementsAre(u"new"_qs, u"old"_qs));
}

TEST_F(MappingArchiveTest, aKeptStateIsAFileInTheFormOfTheMappingFile)
{
    type(u"a"_qs);
    const QString path = fileNamed(stateFiles().first());
    EXPECT_EQ(desktop.files().content(path), desktop.files().content(mainFile));
    EXPECT_EQ(archive().savedStates().first().savedAt.toString(Qt::ISODate), u"2026-01-01T00:00:00Z"_qs);
}

TEST_F(MappingArchiveTest, aStateIsRestoredAndThatCanBeUndone)
{
    type(u"a"_qs);
    type(u"b"_qs);
    EXPECT_TRUE(archive().restore(archive().savedStates().at(1)));
    EXPECT_EQ(text(), u"a"_qs);
    EXPECT_THAT(stateTexts(), ElementsAre(u"a"_qs, u"b"_qs));
    archive().undo();
    EXPECT_EQ(text(), u"b"_qs);
}

TEST_F(MappingArchiveTest, aDamagedStateIsNotRestored)
{
    type(u"a"_qs);
    type(u"b"_qs);
    desktop.files().stage(fileNamed(stateFiles().at(1)), "no JSON");
    EXPECT_THAT(stateTexts(), ElementsAre(u"b"_qs, u"damaged"_qs));
    EXPECT_FALSE(archive().restore(archive().savedStates().at(1)));
    EXPECT_EQ(text(), u"b"_qs);
}

TEST_F(MappingArchiveTest, withoutTheListTheStatesAreFoundByTheirNames)
{
    type(u"a"_qs);
    type(u"b"_qs);
    relaunch();
    desktop.files().stage(fileNamed(u"profiles_mappings.saved.json"_qs), "lost");
    EXPECT_THAT(stateTexts(), testing::UnorderedElementsAre(u"a"_qs, u"b"_qs));
}

TEST_F(MappingArchiveTest, theStoreNeverReadsThem)
{
    type(u"a"_qs);
    relaunch();
    desktop.files().remove(mainFile);
    desktop.files().remove(backupFile);
    EXPECT_EQ(text(), u"-"_qs);
    EXPECT_TRUE(archive().restore(archive().savedStates().first()));
    EXPECT_EQ(text(), u"a"_qs);
}

// ---- The store's ways in for whoever is no editor ----

TEST_F(MappingArchiveTest, anotherProfileIsEditedWithoutBeingSelected)
{
    profile().setConfigInProfile(typing(u"x"_qs), FKey::f5, u"safari"_qs);
    EXPECT_EQ(profile().currentProfile(), AppProfile::global());
    EXPECT_EQ(text(), u"-"_qs);
    EXPECT_TRUE(profile().profileMappings().at(u"safari"_qs).contains(FKey::f5));
    EXPECT_THAT(recordedUses, ElementsAre(KeyAction::textSnippet));
    profile().resetToDefaultInProfile(FKey::f5, u"safari"_qs);
    EXPECT_EQ(stored(mainFile), QJsonValue(QJsonObject{{u"safari"_qs, QJsonObject()}}));
    profile().resetToDefaultInProfile(FKey::f5, u"xcode"_qs);
    EXPECT_FALSE(profile().profileMappings().contains(u"xcode"_qs));
}

TEST_F(MappingArchiveTest, theProfileThatDecidesIsTold)
{
    EXPECT_EQ(profile().profileInForce(FKey::f5), std::nullopt);
    profile().setConfigInProfile(typing(u"all"_qs), FKey::f5, u"global"_qs);
    profile().setConfigInProfile(typing(u"web"_qs), FKey::f5, u"safari"_qs);
    EXPECT_EQ(profile().profileInForce(FKey::f5), u"global"_qs);
    bringToFront({u"com.apple.Safari"_qs});
    EXPECT_EQ(profile().profileInForce(FKey::f5), u"safari"_qs);
    profile().setInterceptionEnabled(false);
    EXPECT_EQ(profile().profileInForce(FKey::f5), std::nullopt);
}

} // namespace

} // namespace tarvin
