#include "platform/posix/JsonPreferences.h"

#include "model/JsonText.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/TemporaryFolder.h"
#include "platform/simulated/SimulatedScheduler.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

#include <optional>

namespace tarvin::posix {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QJsonValue unset(QJsonValue::Undefined);

class JsonPreferencesTest : public TemporaryFolder
{
protected:
    /// As a launch of the program reads them.
    JsonPreferences launch()
    {
        return {files, file, [this](const QString& line) { reports.append(line); }};
    }

    [[nodiscard]] QJsonValue stored() const { return QJsonDocument::fromJson(contentOf(file)).object(); }

    FaultyFileCalls calls;
    PosixFiles files{path(u"data"), calls};
    const QString file = path(u"settings.json");
    QStringList reports;
};

TEST_F(JsonPreferencesTest, withoutAFileEverythingIsUnsetAndNoFileIsMade)
{
    EXPECT_EQ(launch().value(u"a"_qs), unset);
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(JsonPreferencesTest, whatIsSetIsInTheFileAtOnceAndThereAtTheNextLaunch)
{
    JsonPreferences preferences = launch();
    preferences.setValue(u"switch"_qs, false);
    EXPECT_EQ(stored(), json(R"({"switch": false})"));
    preferences.setValue(u"text"_qs, u"ü 🌐"_qs);
    preferences.setValue(u"list"_qs, QJsonArray{1, u"two"_qs, QJsonObject{{u"three"_qs, 3}}});

    const JsonPreferences next = launch();
    EXPECT_EQ(next.value(u"switch"_qs), false);
    EXPECT_EQ(next.value(u"text"_qs), u"ü 🌐"_qs);
    EXPECT_EQ(next.value(u"list"_qs), json(R"([1, "two", {"three": 3}])"));
    EXPECT_EQ(next.value(u"other"_qs), unset);
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(JsonPreferencesTest, whatIsRemovedIsUnset)
{
    JsonPreferences preferences = launch();
    preferences.setValue(u"a"_qs, true);
    preferences.setValue(u"b"_qs, true);
    preferences.removeValue(u"a"_qs);
    preferences.removeValue(u"never set"_qs);
    EXPECT_EQ(preferences.value(u"a"_qs), unset);
    EXPECT_EQ(stored(), json(R"({"b": true})"));
}

TEST_F(JsonPreferencesTest, theFileAndItsFolderAreForTheUserAlone)
{
    JsonPreferences preferences(files, path(u"config/Tarvin/settings.json"), [](const QString&) {});
    preferences.setValue(u"a"_qs, true);
    EXPECT_EQ(modeOf(path(u"config")), 0700);
    EXPECT_EQ(modeOf(path(u"config/Tarvin")), 0700);
    EXPECT_EQ(modeOf(path(u"config/Tarvin/settings.json")), 0600);
}

TEST_F(JsonPreferencesTest, keysThatTheProgramDoesNotKnowSurvive)
{
    lay(file, R"({"of a later version": {"deep": [1]}, "a": true})");
    launch().setValue(u"a"_qs, false);
    EXPECT_EQ(stored(), json(R"({"of a later version": {"deep": [1]}, "a": false})"));
}

TEST_F(JsonPreferencesTest, aDamagedFileIsSetAsideAndReported)
{
    for (const char* damage : {R"({"a": tru)", "", R"([1])"}) {
        reports.clear();
        lay(file, damage);
        JsonPreferences preferences = launch();
        EXPECT_EQ(preferences.value(u"a"_qs), unset);
        EXPECT_EQ(contentOf(path(u"settings.json.damaged")), damage);
        EXPECT_FALSE(QFile::exists(file));
        ASSERT_EQ(reports.size(), 1);
        EXPECT_TRUE(reports.first().startsWith(u"[Tarvin] Error reading settings from " % file));
        EXPECT_TRUE(reports.first().endsWith(u"The file is kept as " % path(u"settings.json.damaged")));

        preferences.setValue(u"a"_qs, true);
        EXPECT_EQ(stored(), json(R"({"a": true})"));
        EXPECT_EQ(contentOf(path(u"settings.json.damaged")), damage);
        QFile::remove(path(u"settings.json.damaged"));
    }
}

TEST_F(JsonPreferencesTest, aSecondDamagedFileDoesNotReplaceTheFirst)
{
    lay(file, "first");
    static_cast<void>(launch());
    lay(file, "second");
    static_cast<void>(launch());
    EXPECT_EQ(contentOf(path(u"settings.json.damaged")), "first");
    EXPECT_EQ(contentOf(path(u"settings.json.damaged.2")), "second");
}

TEST_F(JsonPreferencesTest, whatCannotBeReadIsSetAsideToo)
{
    QDir().mkdir(file);
    JsonPreferences preferences = launch();
    preferences.setValue(u"a"_qs, true);
    EXPECT_EQ(stored(), json(R"({"a": true})"));
    EXPECT_THAT(names(), ElementsAre(u"settings.json"_qs, u"settings.json.damaged"_qs));
    EXPECT_EQ(reports.size(), 1);
}

TEST_F(JsonPreferencesTest, aDamagedFileThatCannotBeSetAsideIsNeverOverwritten)
{
    lay(file, "damaged");
    calls.failAt(0, EROFS);
    JsonPreferences preferences = launch();
    calls.repair();
    preferences.setValue(u"a"_qs, true);
    EXPECT_EQ(preferences.value(u"a"_qs), true) << "until the program ends";
    EXPECT_EQ(contentOf(file), "damaged");
    EXPECT_THAT(names(), ElementsAre(u"settings.json"_qs));
    ASSERT_EQ(reports.size(), 2);
    EXPECT_TRUE(reports[0].endsWith(u"It cannot be set aside and is left alone: Read-only file system"))
        << reports[0].toStdString();
    EXPECT_EQ(reports[1], u"[Tarvin] Failed to save settings: the damaged file is still in place");
}

TEST_F(JsonPreferencesTest, aFailedWriteIsReportedAndCaughtUpByTheNext)
{
    JsonPreferences preferences = launch();
    preferences.setValue(u"a"_qs, 1);
    calls.repair();
    calls.failAt(2, ENOSPC);
    preferences.setValue(u"b"_qs, 2);
    EXPECT_THAT(reports, ElementsAre(u"[Tarvin] Failed to save settings: No space left on device"_qs));
    EXPECT_EQ(preferences.value(u"b"_qs), 2);
    EXPECT_EQ(stored(), json(R"({"a": 1})"));

    preferences.setValue(u"c"_qs, 3);
    EXPECT_EQ(stored(), json(R"({"a": 1, "b": 2, "c": 3})"));
    EXPECT_EQ(reports.size(), 1);
}

TEST_F(JsonPreferencesTest, whereverTheProgramEndsInAChangeTheNextLaunchFindsTheOldOrTheNewValue)
{
    int kept = 0;
    int changed = 0;
    for (int call = 0;; ++call) {
        calls.repair();
        JsonPreferences preferences = launch();
        preferences.setValue(u"a"_qs, u"old"_qs);
        calls.repair();
        calls.crashAt(call);
        preferences.setValue(u"a"_qs, u"new"_qs);
        if (!calls.reachedFault())
            break;
        calls.repair();
        const QJsonValue found = launch().value(u"a"_qs);
        kept += found == u"old"_qs ? 1 : 0;
        changed += found == u"new"_qs ? 1 : 0;
        EXPECT_TRUE(found == u"old"_qs || found == u"new"_qs) << call;
    }
    EXPECT_GT(kept, 0);
    EXPECT_GT(changed, 0);
}

/// Settings whose file is written by a background queue, which runs when the test says so.
class BackgroundPreferences : public JsonPreferencesTest
{
protected:
    [[nodiscard]] QJsonValue onDisk() const { return stored().toObject().value(u"a"); }
    void letWriteOnce() { scheduler.runPosted(); }

    simulated::SimulatedScheduler scheduler;
    std::optional<JsonPreferences> preferences{
        std::in_place, files, file, [this](const QString& line) { reports.append(line); }, &scheduler};
};

TEST_F(BackgroundPreferences, aChangeHoldsAtOnceAndReachesTheDiskLater)
{
    preferences->setValue(u"a"_qs, 1);
    EXPECT_EQ(preferences->value(u"a"_qs), 1);
    EXPECT_FALSE(QFile::exists(file));
    letWriteOnce();
    EXPECT_EQ(onDisk(), 1);
}

TEST_F(BackgroundPreferences, whatChangesDuringAWriteGoesIntoTheNext)
{
    preferences->setValue(u"a"_qs, 1);
    preferences->setValue(u"a"_qs, 2);
    preferences->setValue(u"a"_qs, 3);
    letWriteOnce();
    EXPECT_EQ(onDisk(), 3);
    preferences->setValue(u"a"_qs, 4);
    letWriteOnce();
    EXPECT_EQ(onDisk(), 4);
}

TEST_F(BackgroundPreferences, theEndWritesWhatIsNotOnDiskYet)
{
    preferences->setValue(u"a"_qs, 1);
    preferences->setValue(u"a"_qs, 2);
    preferences.reset();
    EXPECT_EQ(onDisk(), 2);
    letWriteOnce();
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(BackgroundPreferences, theEndLeavesAloneWhatIsOnDisk)
{
    preferences->setValue(u"a"_qs, 1);
    letWriteOnce();
    ASSERT_TRUE(QFile::remove(file));
    preferences.reset();
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(BackgroundPreferences, aFailureIsReportedAndTheNextChangeIsTriedAgain)
{
    ASSERT_TRUE(QDir().mkpath(file + u"/in the way"_qs));
    preferences->setValue(u"a"_qs, 1);
    letWriteOnce();
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports.first().startsWith(u"[Tarvin] Failed to save settings: "_qs));
    ASSERT_TRUE(QDir(file).removeRecursively());
    preferences->setValue(u"a"_qs, 2);
    letWriteOnce();
    EXPECT_EQ(onDisk(), 2);
}

} // namespace

} // namespace tarvin::posix
