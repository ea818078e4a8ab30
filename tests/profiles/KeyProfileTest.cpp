#include "profiles/KeyProfile.h"

#include "model/JsonText.h"
#include "profiles/ProfileDesktop.h"

#include <limits>

namespace tarvin {

namespace {

using simulated::FileChanged;
using simulated::FileOperation;
using simulated::FileStep;
using simulated::SettingStored;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class KeyProfileTest : public ProfileDesktop
{
protected:
    /// How often the signal was given while the body ran.
    template <typename Signal, typename Body> int countOf(Signal signal, const Body& body)
    {
        int count = 0;
        const QMetaObject::Connection connection =
            QObject::connect(&profile(), signal, &profile(), [&count] { ++count; });
        body();
        QObject::disconnect(connection);
        return count;
    }

    [[nodiscard]] std::size_t fileWrites() const
    {
        return static_cast<std::size_t>(std::ranges::count_if(desktop.effects().all<FileChanged>(),
            [](const FileChanged& change) { return change.step != FileStep::directoryCreated; }));
    }
};

TEST_F(KeyProfileTest, aFirstLaunchStartsOnTheProfileForAllApplications)
{
    EXPECT_EQ(profile().currentProfile(), AppProfile::global());
    EXPECT_EQ(profile().availableProfiles(), AppProfile::presets());
    EXPECT_THAT(profile().profileMappings(), IsEmpty());
    EXPECT_EQ(profile().storageURL(), mainFile);
    EXPECT_EQ(profile().backupStorageURL(), backupFile);
    EXPECT_EQ(fileWrites(), 0);
}

TEST_F(KeyProfileTest, theSwitchesAreOnWhereNothingIsStored)
{
    EXPECT_TRUE(profile().isInterceptionEnabled());
    EXPECT_TRUE(profile().isFunctionKeysEnabled());
    EXPECT_TRUE(profile().isOtherKeysEnabled());
    EXPECT_THAT(desktop.effects().all<SettingStored>(), IsEmpty());
}

TEST_F(KeyProfileTest, theKeysOfTheSwitchesAreTheStoredOnes)
{
    EXPECT_EQ(KeyProfile::interceptionEnabledKey, u"Tarvin_InterceptionEnabled");
    EXPECT_EQ(KeyProfile::functionKeysEnabledKey, u"Tarvin_FunctionKeysEnabled");
    EXPECT_EQ(KeyProfile::otherKeysEnabledKey, u"Tarvin_OtherKeysEnabled");
}

TEST_F(KeyProfileTest, aSwitchIsStoredAtOnceUnderItsKey)
{
    profile().setInterceptionEnabled(false);
    profile().setFunctionKeysEnabled(false);
    profile().setOtherKeysEnabled(false);
    profile().setOtherKeysEnabled(true);
    EXPECT_THAT(desktop.effects().all<SettingStored>(),
        ElementsAre(SettingStored{u"Tarvin_InterceptionEnabled"_qs, false},
            SettingStored{u"Tarvin_FunctionKeysEnabled"_qs, false}, SettingStored{u"Tarvin_OtherKeysEnabled"_qs, false},
            SettingStored{u"Tarvin_OtherKeysEnabled"_qs, true}));
    EXPECT_EQ(fileWrites(), 0);
}

TEST_F(KeyProfileTest, aSwitchThatIsSetToWhatItWasIsStoredAllTheSame)
{
    profile().setInterceptionEnabled(true);
    EXPECT_THAT(
        desktop.effects().all<SettingStored>(), ElementsAre(SettingStored{u"Tarvin_InterceptionEnabled"_qs, true}));
}

TEST_F(KeyProfileTest, aStoredFalseStaysFalseAcrossLaunches)
{
    profile().setFunctionKeysEnabled(false);
    quit();
    EXPECT_TRUE(profile().isInterceptionEnabled());
    EXPECT_FALSE(profile().isFunctionKeysEnabled());
    EXPECT_TRUE(profile().isOtherKeysEnabled());

    desktop.preferences().stage(u"Tarvin_InterceptionEnabled"_qs, false);
    desktop.preferences().stage(u"Tarvin_FunctionKeysEnabled"_qs, true);
    desktop.preferences().stage(u"Tarvin_OtherKeysEnabled"_qs, false);
    quit();
    EXPECT_FALSE(profile().isInterceptionEnabled());
    EXPECT_TRUE(profile().isFunctionKeysEnabled());
    EXPECT_FALSE(profile().isOtherKeysEnabled());
}

TEST_F(KeyProfileTest, aStoredNumberIsReadAsASwitch)
{
    desktop.preferences().stage(u"Tarvin_InterceptionEnabled"_qs, 0);
    desktop.preferences().stage(u"Tarvin_FunctionKeysEnabled"_qs, 1);
    desktop.preferences().stage(u"Tarvin_OtherKeysEnabled"_qs, QJsonValue(QJsonValue::Null));
    EXPECT_FALSE(profile().isInterceptionEnabled());
    EXPECT_TRUE(profile().isFunctionKeysEnabled());
    EXPECT_FALSE(profile().isOtherKeysEnabled());
}

TEST_F(KeyProfileTest, aCustomRecordIsStoredAndItsUseRecorded)
{
    profile().setConfig(typing(u"hello"_qs), FKey::f5);
    EXPECT_EQ(profile().actionConfig(FKey::f5), typing(u"hello"_qs));
    EXPECT_EQ(stored(mainFile)[u"global"][u"F5"][u"textSnippet"], u"hello"_qs);
    EXPECT_EQ(desktop.files().content(mainFile), desktop.files().content(backupFile));
    EXPECT_THAT(recordedUses, ElementsAre(KeyAction::textSnippet));
}

TEST_F(KeyProfileTest, theUseIsRecordedBeforeTheRecordIsSaved)
{
    std::size_t writesAtRecording = 99;
    KeyProfile separate(
        desktop.files(), desktop.preferences(), desktop.workspace(), desktop.console(), desktop.uuids(),
        [&](KeyAction) { writesAtRecording = fileWrites(); }, u"/data/separate.json"_qs);
    separate.setConfig(typing(u"a"_qs), FKey::f5);
    EXPECT_EQ(writesAtRecording, 0);
}

TEST_F(KeyProfileTest, theFactoryActionWithoutParametersRemovesTheEntry)
{
    for (const FKey key : allFKeys) {
        profile().setConfig(typing(u"a"_qs), key);
        recordedUses.clear();
        profile().setConfig(ConfiguredAction(defaultAction(key)), key);
        EXPECT_EQ(stored(mainFile)[u"global"][rawValue(key).toString()], QJsonValue(QJsonValue::Undefined));
        EXPECT_THAT(profile().currentMappings(), IsEmpty());
        EXPECT_THAT(recordedUses, IsEmpty());
    }
}

TEST_F(KeyProfileTest, theFactoryActionWithAParameterIsStored)
{
    ConfiguredAction record(KeyAction::unassigned);
    record.customURL = u"https://example.org"_qs;
    profile().setConfig(record, FKey::f13);
    EXPECT_TRUE(profile().isCustomized(FKey::f13));
    EXPECT_THAT(recordedUses, ElementsAre(KeyAction::unassigned));
}

TEST_F(KeyProfileTest, aRecordFromTheStoreItselfCanBeSetAgain)
{
    profile().setConfig(typing(u"a long text that lies on the heap"_qs), FKey::f5);
    profile().setConfig(*profile().runtimeCustomConfig(FKey::f5), FKey::f5);
    EXPECT_EQ(typed(FKey::f5), u"a long text that lies on the heap");
    profile().setConfig(*profile().runtimeCustomConfig(FKey::f5), FKey::f6);
    EXPECT_EQ(typed(FKey::f6), u"a long text that lies on the heap");
}

TEST_F(KeyProfileTest, anotherActionKeepsTheParameters)
{
    ConfiguredAction record(KeyAction::keyboardShortcut);
    record.customShortcuts = {
        CustomShortcut{.id = QUuid::createUuid(), .command = true, .keyCode = 8, .keyDisplay = u"C"_qs}};
    record.customShortcut = record.customShortcuts.first();
    profile().setConfig(record, FKey::f5);
    profile().setAction(KeyAction::textSnippet, FKey::f5);

    quit();
    const ConfiguredAction& reloaded = profile().currentMappings().at(FKey::f5);
    EXPECT_EQ(reloaded.action, KeyAction::textSnippet);
    EXPECT_EQ(reloaded.customShortcuts, record.customShortcuts);
    EXPECT_EQ(profile().actionInEditor(FKey::f5), KeyAction::textSnippet);
    EXPECT_THAT(recordedUses, ElementsAre(KeyAction::keyboardShortcut, KeyAction::textSnippet));
}

TEST_F(KeyProfileTest, anActionOnAKeyWithoutRecordStartsFromTheFactoryRecord)
{
    profile().setAction(KeyAction::copy, FKey::f5);
    EXPECT_EQ(profile().currentMappings().at(FKey::f5), ConfiguredAction(KeyAction::copy));
    profile().setAction(defaultAction(FKey::f5), FKey::f5);
    EXPECT_THAT(profile().currentMappings(), IsEmpty());
}

TEST_F(KeyProfileTest, editsGoToTheCurrentProfileAlone)
{
    profile().setConfig(typing(u"global"_qs), FKey::f5);
    profile().setCurrentProfile(AppProfile::safari());
    profile().setConfig(typing(u"safari"_qs), FKey::f5);
    EXPECT_THAT(profile().profileMappings(),
        ElementsAre(Pair(u"global"_qs, ElementsAre(Pair(FKey::f5, typing(u"global"_qs)))),
            Pair(u"safari"_qs, ElementsAre(Pair(FKey::f5, typing(u"safari"_qs))))));
}

TEST_F(KeyProfileTest, selectingAProfileStoresNothingAndIsForgottenAtTheNextLaunch)
{
    profile().setCurrentProfile(AppProfile::safari());
    EXPECT_EQ(fileWrites(), 0);
    EXPECT_THAT(desktop.effects().all<SettingStored>(), IsEmpty());
    quit();
    EXPECT_EQ(profile().currentProfile(), AppProfile::global());
}

TEST_F(KeyProfileTest, resettingAKeyRemovesItsEntryAndRecordsNoUse)
{
    profile().setConfig(typing(u"a"_qs), FKey::f5);
    profile().setConfig(typing(u"b"_qs), FKey::f6);
    recordedUses.clear();
    profile().resetToDefault(FKey::f5);
    EXPECT_THAT(profile().currentMappings(), ElementsAre(Pair(FKey::f6, typing(u"b"_qs))));
    EXPECT_EQ(stored(mainFile)[u"global"].toObject().keys(), QStringList{u"F6"_qs});
    EXPECT_THAT(recordedUses, IsEmpty());
}

TEST_F(KeyProfileTest, resettingAKeyThatHasNoEntrySavesToo)
{
    profile().resetToDefault(FKey::f5);
    EXPECT_EQ(stored(mainFile), json(R"({"global": {}})"));
}

TEST_F(KeyProfileTest, aResetProfileStaysInTheFileWithAnEmptyObject)
{
    profile().setConfig(typing(u"global"_qs), FKey::f5);
    profile().setCurrentProfile(AppProfile::safari());
    profile().setConfig(typing(u"safari"_qs), FKey::f5);
    profile().resetCurrentProfileToDefaults();
    EXPECT_EQ(stored(mainFile)[u"safari"], json("{}"));
    EXPECT_EQ(stored(mainFile)[u"global"].toObject().keys(), QStringList{u"F5"_qs});
    EXPECT_THAT(profile().currentMappings(), IsEmpty());
}

TEST_F(KeyProfileTest, resettingEveryProfileKeepsTheListAndTheSelection)
{
    profile().setConfig(typing(u"global"_qs), FKey::f5);
    profile().addAppProfile(u"Editor"_qs, u"com.example.editor"_qs, u"app.fill"_qs);
    profile().setConfig(typing(u"editor"_qs), FKey::f5);
    const QList<AppProfile> listed = profile().availableProfiles();

    profile().resetAllProfilesToDefaults();
    EXPECT_THAT(profile().profileMappings(), IsEmpty());
    EXPECT_EQ(stored(mainFile), json("{}"));
    EXPECT_EQ(profile().availableProfiles(), listed);
    EXPECT_EQ(profile().currentProfile().id, u"com.example.editor");
}

TEST_F(KeyProfileTest, anAddedApplicationIsListedLastAndSelected)
{
    profile().addAppProfile(u"Editor"_qs, u"com.example.editor"_qs, u"app.fill"_qs);
    const AppProfile editor{u"com.example.editor"_qs, u"Editor"_qs, u"com.example.editor"_qs, u"app.fill"_qs};
    EXPECT_EQ(profile().availableProfiles(), AppProfile::presets() << editor);
    EXPECT_EQ(profile().currentProfile(), editor);
    EXPECT_EQ(fileWrites(), 0);
}

TEST_F(KeyProfileTest, anApplicationThatIsListedIsNeitherAddedAgainNorSelected)
{
    profile().addAppProfile(u"Editor"_qs, u"com.example.editor"_qs, u"app.fill"_qs);
    const QList<AppProfile> listed = profile().availableProfiles();
    profile().setCurrentProfile(AppProfile::xcode());

    profile().addAppProfile(u"Another name"_qs, u"com.example.editor"_qs, u"star"_qs);
    EXPECT_EQ(profile().availableProfiles(), listed);
    EXPECT_EQ(profile().currentProfile(), AppProfile::xcode());
}

TEST_F(KeyProfileTest, aPresetDoesNotBlockASecondProfileForItsApplication)
{
    profile().addAppProfile(u"Safari"_qs, u"com.apple.Safari"_qs, u"app.fill"_qs);
    EXPECT_EQ(profile().availableProfiles().size(), 6);
    EXPECT_EQ(profile().currentProfile().id, u"com.apple.Safari");
    profile().addAppProfile(u"Safari"_qs, u"safari"_qs, u"app.fill"_qs);
    EXPECT_EQ(profile().availableProfiles().size(), 6) << "the id of a preset is taken";
}

TEST_F(KeyProfileTest, anAddedApplicationFindsItsMappingsAgainOnceItIsAddedAgain)
{
    profile().addAppProfile(u"Editor"_qs, u"com.example.editor"_qs, u"app.fill"_qs);
    profile().setConfig(typing(u"editor"_qs), FKey::f5);
    quit();
    bringToFront({u"com.example.editor"_qs});

    EXPECT_EQ(profile().availableProfiles(), AppProfile::presets());
    EXPECT_EQ(profile().profileMappings().count(u"com.example.editor"_qs), 1);
    EXPECT_EQ(typed(FKey::f5), QString());

    profile().addAppProfile(u"Editor"_qs, u"com.example.editor"_qs, u"app.fill"_qs);
    EXPECT_EQ(typed(FKey::f5), u"editor");
}

TEST_F(KeyProfileTest, mappingsOfProfilesThatAreNotListedSurviveASave)
{
    stageMain(R"({"com.example.editor": {"F5": "copy"}})");
    profile().setConfig(typing(u"a"_qs), FKey::f1);
    EXPECT_EQ(stored(mainFile)[u"com.example.editor"][u"F5"][u"action"], u"copy"_qs);
}

TEST_F(KeyProfileTest, anEntryUnderAnUnknownNameIsGoneAfterTheNextSave)
{
    stageMain(R"({"global": {"F1": {"action": "mute"}, "Foo": {"action": "copy"}}})");
    EXPECT_THAT(profile().currentMappings(), ElementsAre(Pair(FKey::f1, ConfiguredAction(KeyAction::mute))));
    profile().setConfig(typing(u"a"_qs), FKey::f2);
    EXPECT_EQ(stored(mainFile)[u"global"].toObject().keys(), (QStringList{u"F1"_qs, u"F2"_qs}));
}

TEST_F(KeyProfileTest, afterAFailedSaveTheMemoryKeepsTheChange)
{
    profile().setConfig(typing(u"old"_qs), FKey::f5);
    desktop.files().failOn(FileOperation::write, mainFile, u"No space left on device"_qs);
    profile().setConfig(typing(u"new"_qs), FKey::f5);
    EXPECT_EQ(typed(FKey::f5), u"new");
    EXPECT_THAT(consoleLines(), ElementsAre(u"[Tarvin] Failed to save profile mappings: No space left on device"_qs));
    quit();
    EXPECT_EQ(typed(FKey::f5), u"old");
}

TEST_F(KeyProfileTest, writingTheCurrentMappingsDoesNotSave)
{
    profile().setCurrentMappings({{FKey::f5, typing(u"a"_qs)}});
    EXPECT_EQ(typed(FKey::f5), u"a");
    EXPECT_EQ(fileWrites(), 0);
}

TEST_F(KeyProfileTest, aRestoredBackupIsInForceAtOnce)
{
    stageMain("damaged");
    stageBackup(R"({"global": {"F5": {"action": "text_snippet", "textSnippet": "saved"}}})");
    EXPECT_EQ(typed(FKey::f5), u"saved");
    EXPECT_EQ(stored(mainFile)[u"global"][u"F5"][u"textSnippet"], u"saved"_qs);
}

TEST_F(KeyProfileTest, aSeparateStoreKeepsToItsOwnFiles)
{
    desktop.files().createDirectory(u"/elsewhere"_qs);
    KeyProfile separate(
        desktop.files(), desktop.preferences(), desktop.workspace(), desktop.console(), desktop.uuids(),
        [](KeyAction) {}, u"/elsewhere/map.json"_qs);
    separate.setConfig(typing(u"a"_qs), FKey::f5);
    EXPECT_TRUE(desktop.files().exists(u"/elsewhere/map.json"_qs));
    EXPECT_TRUE(desktop.files().exists(u"/elsewhere/map.backup.json"_qs));
    EXPECT_FALSE(desktop.files().exists(mainFile));
}

TEST_F(KeyProfileTest, everyPublishedChangeIsAnnouncedOnce)
{
    EXPECT_EQ(
        countOf(&KeyProfile::currentProfileChanged, [this] { profile().setCurrentProfile(AppProfile::xcode()); }), 1);
    EXPECT_EQ(
        countOf(&KeyProfile::currentProfileChanged, [this] { profile().setCurrentProfile(AppProfile::xcode()); }), 0);
    EXPECT_EQ(countOf(&KeyProfile::availableProfilesChanged,
                  [this] { profile().addAppProfile(u"a"_qs, u"a"_qs, u"app.fill"_qs); }),
        1);
    EXPECT_EQ(
        countOf(&KeyProfile::profileMappingsChanged, [this] { profile().setConfig(typing(u"a"_qs), FKey::f1); }), 1);
    EXPECT_EQ(countOf(&KeyProfile::profileMappingsChanged, [this] { profile().resetToDefault(FKey::f1); }), 1);
    EXPECT_EQ(countOf(&KeyProfile::profileMappingsChanged, [this] { profile().resetCurrentProfileToDefaults(); }), 1);
    EXPECT_EQ(countOf(&KeyProfile::profileMappingsChanged, [this] { profile().resetAllProfilesToDefaults(); }), 1);
    EXPECT_EQ(countOf(&KeyProfile::interceptionEnabledChanged, [this] { profile().setInterceptionEnabled(false); }), 1);
    EXPECT_EQ(countOf(&KeyProfile::interceptionEnabledChanged, [this] { profile().setInterceptionEnabled(false); }), 0);
    EXPECT_EQ(countOf(&KeyProfile::functionKeysEnabledChanged, [this] { profile().setFunctionKeysEnabled(false); }), 1);
    EXPECT_EQ(countOf(&KeyProfile::otherKeysEnabledChanged, [this] { profile().setOtherKeysEnabled(false); }), 1);
}

TEST_F(KeyProfileTest, thePublishedStateIsReadableAsProperties)
{
    profile().setConfig(typing(u"a"_qs), FKey::f1);
    EXPECT_EQ(profile().property("currentProfile").value<AppProfile>(), AppProfile::global());
    EXPECT_EQ(profile().property("availableProfiles").value<QList<AppProfile>>(), AppProfile::presets());
    EXPECT_EQ(profile().property("profileMappings").value<ProfileMappings>(), profile().profileMappings());
    EXPECT_TRUE(profile().setProperty("interceptionEnabled", false));
    EXPECT_FALSE(profile().isInterceptionEnabled());
    EXPECT_EQ(profile().property("functionKeysEnabled"), true);
    EXPECT_EQ(profile().property("otherKeysEnabled"), true);
}

} // namespace

} // namespace tarvin
