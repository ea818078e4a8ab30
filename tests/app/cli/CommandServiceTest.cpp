#include "app/cli/CommandService.h"

#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "profiles/MappingArchive.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace tarvin {

namespace {

using testing::ElementsAre;

class CommandServiceTest : public testing::Test
{
protected:
    /// The command as a user types it, without quoting.
    CommandReply perform(const QString& line, const std::optional<QByteArray>& input = std::nullopt)
    {
        QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        const QString command = words.takeFirst();
        return service().perform({command, words, input});
    }
    /// The same, expected to go well.
    QString output(const QString& line)
    {
        const CommandReply reply = perform(line);
        EXPECT_EQ(reply.exitCode, 0) << reply.error.toStdString();
        return reply.output;
    }
    /// The same, expected to be refused as wrong input, changing nothing.
    QString refusal(const QString& line, const std::optional<QByteArray>& input = std::nullopt)
    {
        const ProfileMappings before = profile.profileMappings();
        const CommandReply reply = perform(line, input);
        EXPECT_EQ(reply.exitCode, exitWrongInput) << line.toStdString();
        EXPECT_TRUE(reply.output.isEmpty());
        EXPECT_EQ(profile.profileMappings(), before);
        return reply.error;
    }
    CommandService& service() { return isLive ? liveService : offlineService; }
    [[nodiscard]] KeyAction actionIn(const QString& profileId, FKey key) const
    {
        const auto keys = profile.profileMappings().find(profileId);
        if (keys == profile.profileMappings().end() || !keys->second.contains(key))
            return KeyAction::unassigned;
        return keys->second.at(key).action;
    }

    simulated::SimulatedPlatform desktop;
    Platform ports = desktop.ports();
    KeyProfile profile{ports.files, ports.preferences, ports.workspace, ports.console, ports.uuids, [](KeyAction) {}};
    MappingArchive archive{profile, ports.files, ports.uuids, ports.scheduler};
    std::vector<ConfiguredAction> ran;
    CommandService liveService{profile, archive, QUuid::createUuid,
        LiveProgram{[] {
                        return QJsonObject{{u"engineRunning"_qs, true}, {u"frontApplication"_qs, u"com.app"_qs},
                            {u"customKeys"_qs, QJsonArray{u"F5"_qs}}};
                    },
            [this](const ConfiguredAction& action) { ran.push_back(action); }}};
    CommandService offlineService{profile, archive, QUuid::createUuid, std::nullopt};
    bool isLive = true;
};

TEST_F(CommandServiceTest, aKeyIsSetInTheProfileForAllApplications)
{
    EXPECT_EQ(output(u"set F5 mute"_qs), u"F5 in global: Mute audio"_qs);
    EXPECT_EQ(actionIn(u"global"_qs, FKey::f5), KeyAction::mute);
    EXPECT_TRUE(desktop.files().exists(profile.storageURL()));
}

TEST_F(CommandServiceTest, aKeyIsSetInANamedProfileAndTheStudioKeepsItsOwn)
{
    profile.setCurrentProfile(AppProfile::xcode());
    output(u"set F5 open_web_url customURL=https://debian.org --profile safari"_qs);
    EXPECT_EQ(profile.profileMappings().at(u"safari"_qs).at(FKey::f5).customURL, u"https://debian.org"_qs);
    output(u"set F6 mute --profile org.gnome.Maps"_qs);
    EXPECT_EQ(actionIn(u"org.gnome.Maps"_qs, FKey::f6), KeyAction::mute);
    EXPECT_EQ(profile.currentProfile(), AppProfile::xcode());
}

TEST_F(CommandServiceTest, settingWhatTheFactoryDoesTakesTheCustomisationAway)
{
    output(u"set F5 mute"_qs);
    EXPECT_TRUE(output(u"set F5 dictation"_qs).contains(u"as the factory made it"));
    EXPECT_EQ(actionIn(u"global"_qs, FKey::f5), KeyAction::unassigned);
}

TEST_F(CommandServiceTest, whatIsWrongWithASetIsNamedAndNothingIsChanged)
{
    output(u"set F5 mute"_qs);
    EXPECT_EQ(refusal(u"set"_qs), u"set takes a key and an action"_qs);
    EXPECT_EQ(refusal(u"set F5"_qs), u"set takes a key and an action"_qs);
    EXPECT_TRUE(refusal(u"set F20 mute"_qs).startsWith(u"\"F20\" is no key; expected one of F1, F2, "));
    EXPECT_TRUE(refusal(u"set f5 mute"_qs).startsWith(u"\"f5\" is no key"));
    EXPECT_TRUE(refusal(u"set F5 fly"_qs).startsWith(u"\"fly\" is no action"));
    EXPECT_TRUE(refusal(u"set F5 mute --profile safary"_qs)
                    .startsWith(u"there is no profile \"safary\"; expected global, safari, "));
    EXPECT_EQ(refusal(u"set F5 mute --profile"_qs), u"--profile needs a value"_qs);
    EXPECT_EQ(refusal(u"set F5 mute --loud"_qs), u"unknown option \"--loud\""_qs);
    EXPECT_EQ(archive.changes().size(), 1U);
}

TEST_F(CommandServiceTest, resetTakesOneKeyOneProfileOrAll)
{
    for (const QString& line : {u"set F5 mute"_qs, u"set F6 copy"_qs, u"set F5 copy --profile safari"_qs})
        output(line);
    output(u"reset F5"_qs);
    EXPECT_EQ(actionIn(u"global"_qs, FKey::f5), KeyAction::unassigned);
    EXPECT_EQ(actionIn(u"safari"_qs, FKey::f5), KeyAction::copy);
    output(u"reset F5 --profile safari"_qs);
    EXPECT_EQ(actionIn(u"safari"_qs, FKey::f5), KeyAction::unassigned);
    output(u"set F5 copy --profile safari"_qs);
    output(u"reset --profile global"_qs);
    EXPECT_EQ(actionIn(u"global"_qs, FKey::f6), KeyAction::unassigned);
    EXPECT_EQ(actionIn(u"safari"_qs, FKey::f5), KeyAction::copy);
    profile.setCurrentProfile(AppProfile::safari());
    output(u"reset --profile"_qs);
    EXPECT_EQ(actionIn(u"safari"_qs, FKey::f5), KeyAction::unassigned);
    output(u"set F5 mute"_qs);
    output(u"reset --all"_qs);
    EXPECT_TRUE(profile.profileMappings().empty());
}

TEST_F(CommandServiceTest, aResetThatIsUnclearIsRefused)
{
    output(u"set F5 mute"_qs);
    for (const QString& line :
        {u"reset"_qs, u"reset F5 F6"_qs, u"reset F5 --all"_qs, u"reset --all --profile safari"_qs})
        EXPECT_EQ(refusal(line), u"reset takes one key, --profile or --all"_qs);
    EXPECT_TRUE(refusal(u"reset Foo"_qs).startsWith(u"\"Foo\" is no key"));
    EXPECT_TRUE(refusal(u"reset --profile nowhere"_qs).startsWith(u"there is no profile"));
}

TEST_F(CommandServiceTest, whatIsExportedIsImportedAgain)
{
    output(u"set F5 open_web_url customURL=https://debian.org"_qs);
    output(u"set CapsLock copy --profile safari"_qs);
    const ProfileMappings before = profile.profileMappings();
    const CommandReply exported = perform(u"export keys.json"_qs);
    ASSERT_TRUE(exported.file);
    output(u"reset --all"_qs);
    const CommandReply imported = perform(u"import keys.json"_qs, exported.file);
    EXPECT_EQ(imported.output, u"Imported 2 records; 2 are stored now."_qs);
    EXPECT_EQ(profile.profileMappings(), before);
}

TEST_F(CommandServiceTest, anImportMergesOrReplaces)
{
    output(u"set F6 mute"_qs);
    perform(u"import -"_qs, QByteArray(R"({"global":{"F5":"copy"}})"));
    EXPECT_EQ(actionIn(u"global"_qs, FKey::f6), KeyAction::mute);
    EXPECT_EQ(actionIn(u"global"_qs, FKey::f5), KeyAction::copy);
    perform(u"import - --replace"_qs, QByteArray(R"({"global":{"F7":"copy"}})"));
    EXPECT_EQ(actionIn(u"global"_qs, FKey::f6), KeyAction::unassigned);
    EXPECT_EQ(actionIn(u"global"_qs, FKey::f7), KeyAction::copy);
}

TEST_F(CommandServiceTest, anImportWithAMistakeImportsNothing)
{
    output(u"set F6 mute"_qs);
    const QString error = refusal(
        u"import keys.json --replace"_qs, QByteArray(R"({"global":{"F5":"copy","F99":"copy","F7":{"action":"fly"}}})"));
    EXPECT_TRUE(error.startsWith(u"keys.json: nothing was imported\n  global.F7: "));
    EXPECT_TRUE(error.contains(u"\n  global.F99: "));
    refusal(u"import keys.json"_qs, QByteArray("no JSON"));
    refusal(u"import keys.json"_qs, QByteArray());
    refusal(u"import"_qs, QByteArray("{}"));
    refusal(u"export"_qs);
    refusal(u"export a b"_qs);
}

TEST_F(CommandServiceTest, undoTellsWhatItTookBack)
{
    output(u"set F5 mute"_qs);
    output(u"set F5 copy"_qs);
    EXPECT_EQ(output(u"undo"_qs), u"global F5: Copy -> Mute audio"_qs);
    EXPECT_EQ(output(u"undo"_qs), u"global F5: Mute audio -> factory default"_qs);
    const CommandReply none = perform(u"undo"_qs);
    EXPECT_EQ(none.exitCode, exitFailed);
    EXPECT_EQ(none.error, u"there is no change to undo"_qs);
    refusal(u"undo all"_qs);
}

TEST_F(CommandServiceTest, anImportIsOneChangeToUndo)
{
    perform(u"import -"_qs, QByteArray(R"({"global":{"F5":"copy","F6":"mute"}})"));
    output(u"undo"_qs);
    EXPECT_TRUE(profile.profileMappings().empty());
}

TEST_F(CommandServiceTest, keptStatesAreListedAndBroughtBack)
{
    EXPECT_EQ(output(u"restore"_qs), u"No state is kept yet."_qs);
    output(u"set F5 mute"_qs);
    output(u"set F6 copy"_qs);
    const QStringList lines = output(u"restore"_qs).split(u'\n');
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines.at(0).simplified(), u"1 2026-01-01T00:00:00Z 2 records profiles_mappings.saved-2.json"_qs);
    EXPECT_EQ(output(u"restore 2"_qs), u"Restored profiles_mappings.saved-1.json: 1 records."_qs);
    EXPECT_EQ(actionIn(u"global"_qs, FKey::f6), KeyAction::unassigned);
    for (const QString& line : {u"restore 0"_qs, u"restore 3"_qs, u"restore x"_qs, u"restore 1 2"_qs})
        refusal(line);
}

TEST_F(CommandServiceTest, aDamagedStateIsNamedAndChangesNothing)
{
    output(u"set F5 mute"_qs);
    output(u"set F6 copy"_qs);
    desktop.files().stage(desktop.files().applicationSupportDirectory() + u"/profiles_mappings.saved-1.json"_qs, "[");
    EXPECT_TRUE(output(u"restore"_qs).contains(u"damaged"));
    const CommandReply reply = perform(u"restore 2"_qs);
    EXPECT_EQ(reply.exitCode, exitFailed);
    EXPECT_EQ(actionIn(u"global"_qs, FKey::f6), KeyAction::copy);
}

TEST_F(CommandServiceTest, theListIsTheSameForPeopleAndScripts)
{
    output(u"set F5 mute"_qs);
    EXPECT_EQ(output(u"list"_qs), u"global  F5  mute  Mute audio"_qs);
    EXPECT_EQ(QJsonDocument::fromJson(output(u"list --json"_qs).toUtf8()).array().size(), 1);
    refusal(u"list all"_qs);
    refusal(u"list --xml"_qs);
}

TEST_F(CommandServiceTest, theStatusTellsWhetherTheProgramRuns)
{
    output(u"set F5 mute"_qs);
    EXPECT_TRUE(output(u"status"_qs).contains(u"runs, version"));
    const QJsonObject live = QJsonDocument::fromJson(output(u"status --json"_qs).toUtf8()).object();
    EXPECT_EQ(live.value(u"running"), QJsonValue(true));
    EXPECT_EQ(live.value(u"engineRunning"), QJsonValue(true));
    EXPECT_EQ(live.value(u"storedRecords"), QJsonValue(1));
    isLive = false;
    profile.setOtherKeysEnabled(false);
    const CommandReply reply = perform(u"status --json"_qs);
    EXPECT_EQ(reply.exitCode, exitNotRunning);
    const QJsonObject offline = QJsonDocument::fromJson(reply.output.toUtf8()).object();
    EXPECT_EQ(offline.value(u"running"), QJsonValue(false));
    EXPECT_EQ(offline.value(u"otherKeysEnabled"), QJsonValue(false));
    EXPECT_TRUE(perform(u"status"_qs).output.contains(u"does not run"));
    refusal(u"status now"_qs);
}

TEST_F(CommandServiceTest, anActionRunsInTheProgramThatRunsAndNowhereElse)
{
    output(u"run text_snippet textSnippet=hello"_qs);
    ASSERT_EQ(ran.size(), 1U);
    EXPECT_EQ(ran.front().textSnippet, u"hello"_qs);
    refusal(u"run"_qs);
    refusal(u"run fly"_qs);
    refusal(u"run mute volume=7"_qs);
    isLive = false;
    EXPECT_EQ(perform(u"run mute"_qs).exitCode, exitNotRunning);
    EXPECT_EQ(ran.size(), 1U);
}

TEST_F(CommandServiceTest, anUnknownCommandIsRefused)
{
    EXPECT_EQ(refusal(u"dance"_qs), u"unknown command \"dance\""_qs);
}

} // namespace

} // namespace tarvin
