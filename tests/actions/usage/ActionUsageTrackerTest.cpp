#include "actions/usage/ActionUsageTracker.h"

#include "model/JsonText.h"
#include "model/ModelPrinters.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonObject>

#include <limits>
#include <memory>

namespace tarvin {

namespace {

using simulated::ConsoleLine;
using simulated::FileChanged;
using simulated::FileOperation;
using simulated::FileStep;
using simulated::SettingStored;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using namespace std::chrono_literals;

class ActionUsageTest : public testing::Test
{
protected:
    /// The tracker, made at first use, so that a test can lay out its file and setting before.
    ActionUsageTracker& tracker()
    {
        if (!m_tracker) {
            m_tracker = std::make_unique<ActionUsageTracker>(
                desktop.files(), desktop.preferences(), desktop.console(), desktop.scheduler());
        }
        return *m_tracker;
    }

    /// The program ends; the next use of the tracker is another launch.
    void quit() { m_tracker.reset(); }

    void stage(const QByteArray& content) { desktop.files().stage(file, content); }

    /// Lets the file be written.
    void settle() { desktop.scheduler().runPosted(); }

    [[nodiscard]] QJsonObject stored()
    {
        settle();
        return QJsonDocument::fromJson(desktop.files().content(file).value_or(QByteArray())).object();
    }

    [[nodiscard]] QStringList consoleLines()
    {
        settle();
        QStringList lines;
        for (const ConsoleLine& line : desktop.effects().all<ConsoleLine>())
            lines.append(line.line);
        return lines;
    }

    [[nodiscard]] std::size_t writes()
    {
        settle();
        return static_cast<std::size_t>(
            std::ranges::count(desktop.effects().all<FileChanged>(), FileStep::written, &FileChanged::step));
    }

    [[nodiscard]] QList<KeyAction> frequent(int limit)
    {
        return tracker().actions(ActionUsageFilter::frequentlyUsed, limit);
    }
    [[nodiscard]] QList<KeyAction> recent(int limit)
    {
        return tracker().actions(ActionUsageFilter::recentlyUsed, limit);
    }

    simulated::SimulatedPlatform desktop;
    const QString file = desktop.files().applicationSupportDirectory() + u"/action_usage.json"_qs;

private:
    std::unique_ptr<ActionUsageTracker> m_tracker;
};

TEST_F(ActionUsageTest, theFiltersHaveTheirNames)
{
    EXPECT_EQ(rawValue(ActionUsageFilter::frequentlyUsed), u"Frequent");
    EXPECT_EQ(headerTitle(ActionUsageFilter::frequentlyUsed), u"FREQUENTLY USED");
    EXPECT_EQ(id(ActionUsageFilter::frequentlyUsed), u"Frequent");
    EXPECT_EQ(rawValue(ActionUsageFilter::recentlyUsed), u"Recent");
    EXPECT_EQ(headerTitle(ActionUsageFilter::recentlyUsed), u"RECENTLY USED");
    EXPECT_EQ(id(ActionUsageFilter::recentlyUsed), u"Recent");
    EXPECT_THAT(allActionUsageFilters, ElementsAre(ActionUsageFilter::frequentlyUsed, ActionUsageFilter::recentlyUsed));
}

TEST_F(ActionUsageTest, datesCountFromTheYear2001)
{
    EXPECT_EQ(usageDateOf(Scheduler::WallClock(978307200s)), 0s);
    EXPECT_EQ(usageDateOf(Scheduler::WallClock(978307201500ms)), 1.5s);
}

TEST_F(ActionUsageTest, aFreshInstallShowsTheSameUnderBothFilters)
{
    const auto seeds = ElementsAre(KeyAction::screenCapture, KeyAction::toggleMicMute, KeyAction::keyboardShortcut,
        KeyAction::snapWindowLeft, KeyAction::textSnippet);
    EXPECT_THAT(frequent(5), seeds);
    EXPECT_THAT(recent(5), seeds);
    EXPECT_EQ(tracker().currentFilter(), ActionUsageFilter::frequentlyUsed);
}

TEST_F(ActionUsageTest, aFreshStoreIsSeededAndSaved)
{
    const UsageDate now = usageDateOf(desktop.scheduler().now());
    EXPECT_THAT(tracker().usageRecords(),
        ElementsAre(Pair(KeyAction::screenCapture, ActionUsageRecord{20, now - 180s}),
            Pair(KeyAction::toggleMicMute, ActionUsageRecord{16, now - 600s}),
            Pair(KeyAction::keyboardShortcut, ActionUsageRecord{13, now - 1800s}),
            Pair(KeyAction::textSnippet, ActionUsageRecord{8, now - 7200s}),
            Pair(KeyAction::snapWindowLeft, ActionUsageRecord{10, now - 3600s}),
            Pair(KeyAction::lockScreen, ActionUsageRecord{5, now - 86400s})));
    EXPECT_EQ(tracker().storageURL(), file);
    EXPECT_EQ(writes(), 1);
    EXPECT_EQ(stored().size(), 6);
    EXPECT_THAT(consoleLines(), IsEmpty());
}

TEST_F(ActionUsageTest, theFolderIsMadeBeforeTheFirstSave)
{
    static_cast<void>(tracker());
    settle();
    const std::vector<FileChanged> changes = desktop.effects().all<FileChanged>();
    ASSERT_EQ(changes.size(), 2);
    EXPECT_EQ(changes[0].step, FileStep::directoryCreated);
    EXPECT_EQ(changes[0].path, desktop.files().applicationSupportDirectory());
    EXPECT_EQ(changes[1].path, file);
}

TEST_F(ActionUsageTest, aSeparateStoreMakesNoFolder)
{
    desktop.files().createDirectory(u"/elsewhere"_qs);
    desktop.effects().clear();
    const ActionUsageTracker separate(
        desktop.files(), desktop.preferences(), desktop.console(), desktop.scheduler(), u"/elsewhere/usage.json"_qs);
    EXPECT_EQ(separate.storageURL(), u"/elsewhere/usage.json");
    settle();
    EXPECT_TRUE(desktop.files().exists(u"/elsewhere/usage.json"_qs));
    EXPECT_FALSE(desktop.files().exists(file));
    EXPECT_EQ(desktop.effects().all<FileChanged>().size(), 1);
}

TEST_F(ActionUsageTest, theFileHoldsPlainNumbersUnderStoredNames)
{
    stage(R"({"mute": {"useCount": 1, "lastUsed": 0}})");
    desktop.scheduler().setNow(Scheduler::WallClock(978307200s + 1234567500ms));
    tracker().recordUsage(KeyAction::mute);
    settle();
    EXPECT_EQ(desktop.files().content(file).value(), R"({
    "mute": {
        "lastUsed": 1234567.5,
        "useCount": 2
    }
}
)");
}

TEST_F(ActionUsageTest, aUseCountsAndIsSaved)
{
    static_cast<void>(tracker());
    desktop.scheduler().advance(10s);
    desktop.effects().clear();
    tracker().recordUsage(KeyAction::toggleMicMute);
    EXPECT_EQ(tracker().useCount(KeyAction::toggleMicMute), 17);
    EXPECT_EQ(tracker().lastUsed(KeyAction::toggleMicMute), usageDateOf(desktop.scheduler().now()));
    EXPECT_EQ(writes(), 1);
    EXPECT_EQ(stored()[u"toggle_mic_mute"][u"useCount"], 17);
}

TEST_F(ActionUsageTest, aUseDoesNotWaitForTheDisk)
{
    static_cast<void>(tracker());
    settle();
    desktop.effects().clear();
    tracker().recordUsage(KeyAction::paste);
    EXPECT_EQ(desktop.effects().count<FileChanged>(), 0);
    settle();
    EXPECT_EQ(desktop.effects().count<FileChanged>(), 1);
}

TEST_F(ActionUsageTest, usesInARowAreWrittenOnce)
{
    static_cast<void>(tracker());
    settle();
    desktop.effects().clear();
    for (int count = 0; count < 5; ++count)
        tracker().recordUsage(KeyAction::paste);
    EXPECT_EQ(writes(), 1);
    EXPECT_EQ(stored()[u"paste"][u"useCount"], 5);
}

TEST_F(ActionUsageTest, theEndOfTheProgramSavesWhatIsLeft)
{
    tracker().recordUsage(KeyAction::paste);
    quit();
    const auto content = QJsonDocument::fromJson(desktop.files().content(file).value_or(QByteArray()));
    EXPECT_EQ(content[u"paste"][u"useCount"], 1);
    desktop.effects().clear();
    settle();
    EXPECT_EQ(desktop.effects().count<FileChanged>(), 0) << "what was saved is not written again";
}

TEST_F(ActionUsageTest, savingAtOnceLeavesNothingToWriteLater)
{
    tracker().recordUsage(KeyAction::paste);
    tracker().flush();
    desktop.effects().clear();
    EXPECT_EQ(writes(), 0);
    tracker().recordUsage(KeyAction::paste);
    EXPECT_EQ(writes(), 1);
}

TEST_F(ActionUsageTest, theFirstUseOfAnActionCountsOne)
{
    EXPECT_EQ(tracker().useCount(KeyAction::paste), 0);
    EXPECT_EQ(tracker().lastUsed(KeyAction::paste), std::nullopt);
    tracker().recordUsage(KeyAction::paste);
    EXPECT_EQ(tracker().useCount(KeyAction::paste), 1);
    EXPECT_EQ(tracker().lastUsed(KeyAction::paste), usageDateOf(desktop.scheduler().now()));
}

TEST_F(ActionUsageTest, everyActionCountsEvenTheUnassignedOne)
{
    for (const KeyAction action : allKeyActions)
        tracker().recordUsage(action);
    EXPECT_EQ(tracker().useCount(KeyAction::unassigned), 1);
    EXPECT_EQ(tracker().useCount(KeyAction::nativeCapsLock), 1);
    EXPECT_EQ(tracker().usageRecords().size(), keyActionCount - 2) << "the retired screenshots have no record";
    quit();
    EXPECT_EQ(tracker().usageRecords().size(), keyActionCount - 2);
}

TEST_F(ActionUsageTest, theRetiredScreenshotsCountAsScreenCapture)
{
    tracker().recordUsage(KeyAction::screenshotArea);
    tracker().recordUsage(KeyAction::screenshotFull);
    EXPECT_EQ(tracker().useCount(KeyAction::screenCapture), 22);
    EXPECT_EQ(tracker().useCount(KeyAction::screenshotArea), 22);
    EXPECT_EQ(tracker().useCount(KeyAction::screenshotFull), 22);
    EXPECT_EQ(tracker().lastUsed(KeyAction::screenshotArea), usageDateOf(desktop.scheduler().now()));
    EXPECT_FALSE(tracker().usageRecords().contains(KeyAction::screenshotArea));
    EXPECT_FALSE(stored().contains(u"screenshot_area"_qs));
}

TEST_F(ActionUsageTest, aStoredScreenshotStaysARecordOfItsOwnAndIsListed)
{
    stage(R"({"screenshot_area": {"useCount": 3, "lastUsed": 5}})");
    EXPECT_THAT(frequent(2), ElementsAre(KeyAction::screenshotArea, KeyAction::screenCapture));
    EXPECT_EQ(tracker().useCount(KeyAction::screenshotArea), 0) << "it is asked for as screen capture";
    tracker().recordUsage(KeyAction::screenshotArea);
    EXPECT_EQ(stored()[u"screenshot_area"][u"useCount"], 3);
    EXPECT_EQ(stored()[u"screen_capture"][u"useCount"], 1);
}

TEST_F(ActionUsageTest, countsAndDatesSurviveALaunch)
{
    static_cast<void>(tracker());
    desktop.scheduler().advance(1234567us);
    tracker().recordUsage(KeyAction::paste);
    const ActionUsageRecords records = tracker().usageRecords();
    quit();
    desktop.effects().clear();
    EXPECT_EQ(tracker().usageRecords(), records);
    EXPECT_EQ(writes(), 0);
}

TEST_F(ActionUsageTest, frequentUseDecidesByCountAndThenByDate)
{
    stage(R"({"copy": {"useCount": 2, "lastUsed": 50}, "paste": {"useCount": 3, "lastUsed": 10},
              "mute": {"useCount": 2, "lastUsed": 60}, "undo": {"useCount": -1, "lastUsed": 99}})");
    EXPECT_THAT(frequent(4), ElementsAre(KeyAction::paste, KeyAction::mute, KeyAction::copy, KeyAction::undo));
}

TEST_F(ActionUsageTest, recentUseDecidesByDateAlone)
{
    stage(R"({"copy": {"useCount": 9, "lastUsed": 50}, "paste": {"useCount": 3, "lastUsed": 10.5},
              "mute": {"useCount": 2, "lastUsed": 60}, "undo": {"useCount": 1, "lastUsed": -1}})");
    EXPECT_THAT(recent(4), ElementsAre(KeyAction::mute, KeyAction::copy, KeyAction::paste, KeyAction::undo));
}

TEST_F(ActionUsageTest, betweenEqualsTheDeclaredOrderOfTheActionsDecides)
{
    // In the file the order of the names is another one.
    stage(R"({"undo": {"useCount": 2, "lastUsed": 5}, "copy": {"useCount": 2, "lastUsed": 5},
              "toggle_mic_mute": {"useCount": 2, "lastUsed": 5}, "back": {"useCount": 2, "lastUsed": 5}})");
    const auto declared = ElementsAre(KeyAction::toggleMicMute, KeyAction::back, KeyAction::copy, KeyAction::undo);
    EXPECT_THAT(frequent(4), declared);
    EXPECT_THAT(recent(4), declared);
}

TEST_F(ActionUsageTest, recentUseAtTheSameMomentIgnoresTheCount)
{
    stage(R"({"copy": {"useCount": 1, "lastUsed": 5}, "undo": {"useCount": 9, "lastUsed": 5}})");
    EXPECT_THAT(recent(2), ElementsAre(KeyAction::copy, KeyAction::undo));
    EXPECT_THAT(frequent(2), ElementsAre(KeyAction::undo, KeyAction::copy));
}

TEST_F(ActionUsageTest, aShortListIsFilledWithTheUsualActionsThatItLacks)
{
    stage(R"({"keyboard_shortcut": {"useCount": 1, "lastUsed": 5}, "unassigned": {"useCount": 2, "lastUsed": 5}})");
    EXPECT_THAT(frequent(5),
        ElementsAre(KeyAction::unassigned, KeyAction::keyboardShortcut, KeyAction::screenCapture,
            KeyAction::toggleMicMute, KeyAction::snapWindowLeft));
    EXPECT_THAT(frequent(100),
        ElementsAre(KeyAction::unassigned, KeyAction::keyboardShortcut, KeyAction::screenCapture,
            KeyAction::toggleMicMute, KeyAction::snapWindowLeft, KeyAction::textSnippet, KeyAction::lockScreen,
            KeyAction::calculator));
}

TEST_F(ActionUsageTest, theListIsCutAtItsLimit)
{
    EXPECT_THAT(frequent(1), ElementsAre(KeyAction::screenCapture));
    EXPECT_THAT(frequent(0), IsEmpty());
}

TEST_F(ActionUsageTest, aNegativeLimitGivesNothing)
{
    EXPECT_THAT(frequent(-1), IsEmpty());
    EXPECT_THAT(recent(std::numeric_limits<int>::min()), IsEmpty());
}

TEST_F(ActionUsageTest, aCountAtItsLimitStaysThere)
{
    stage(R"({"mute": {"useCount": 9223372036854775807, "lastUsed": 5}})");
    tracker().recordUsage(KeyAction::mute);
    EXPECT_EQ(tracker().useCount(KeyAction::mute), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(tracker().lastUsed(KeyAction::mute), usageDateOf(desktop.scheduler().now()));
    quit();
    EXPECT_EQ(tracker().useCount(KeyAction::mute), std::numeric_limits<std::int64_t>::max());
}

TEST_F(ActionUsageTest, anUnknownKeyInTheFileIsDroppedAndTheRestLoads)
{
    stage(R"({"of_a_later_version": {"useCount": 7, "lastUsed": 5}, "mute": {"useCount": 2, "lastUsed": 5}})");
    EXPECT_THAT(tracker().usageRecords(), ElementsAre(Pair(KeyAction::mute, ActionUsageRecord{2, UsageDate(5)})));
    EXPECT_EQ(writes(), 0);
    tracker().recordUsage(KeyAction::mute);
    EXPECT_EQ(stored().keys(), QStringList{u"mute"_qs});
}

TEST_F(ActionUsageTest, aFileOfUnknownKeysAloneIsSeededOver)
{
    stage(R"({"of_a_later_version": {"useCount": 7, "lastUsed": 5}})");
    EXPECT_EQ(tracker().usageRecords().size(), 6);
    EXPECT_TRUE(stored().contains(u"screen_capture"_qs));
    EXPECT_THAT(consoleLines(), IsEmpty());
}

TEST_F(ActionUsageTest, anEmptyObjectIsSeededOver)
{
    stage("{}");
    EXPECT_EQ(tracker().usageRecords().size(), 6);
    EXPECT_THAT(consoleLines(), IsEmpty());
}

TEST_F(ActionUsageTest, aDamagedFileIsPrintedAndSeededOver)
{
    for (const char* damage : {"", "not JSON", "[]", R"({"mute": 3})", R"({"mute": {"useCount": 2}})",
             R"({"mute": {"lastUsed": 2}})", R"({"mute": {"useCount": "2", "lastUsed": 5}})",
             R"({"mute": {"useCount": 2.5, "lastUsed": 5}})", R"({"mute": {"useCount": 1e30, "lastUsed": 5}})",
             R"({"mute": {"useCount": 2, "lastUsed": "5"}})", R"({"mute": {"useCount": 2, "lastUsed": null}})",
             R"({"mute": {"useCount": 2, "lastUsed": 5}, "unknown": []})"}) {
        quit();
        desktop.effects().clear();
        stage(damage);
        EXPECT_EQ(tracker().usageRecords().size(), 6) << damage;
        EXPECT_EQ(stored().size(), 6) << damage;
        ASSERT_EQ(consoleLines().size(), 1) << damage;
        EXPECT_TRUE(consoleLines().first().startsWith(u"[Tarvin] Failed to load action usage records: ")) << damage;
        EXPECT_GT(consoleLines().first().size(), 47) << "the error is told: " << damage;
    }
}

TEST_F(ActionUsageTest, anUnreadableFileIsPrintedWithItsError)
{
    stage(R"({"mute": {"useCount": 2, "lastUsed": 5}})");
    desktop.files().failOn(FileOperation::read, file, u"Input/output error"_qs);
    EXPECT_EQ(tracker().usageRecords().size(), 6);
    EXPECT_THAT(consoleLines(), ElementsAre(u"[Tarvin] Failed to load action usage records: Input/output error"_qs));
}

TEST_F(ActionUsageTest, afterAFailedSaveTheCountInMemoryStands)
{
    static_cast<void>(tracker());
    desktop.files().failOn(FileOperation::write, file, u"No space left on device"_qs);
    tracker().recordUsage(KeyAction::paste);
    EXPECT_THAT(
        consoleLines(), ElementsAre(u"[Tarvin] Failed to save action usage records: No space left on device"_qs));
    EXPECT_EQ(tracker().useCount(KeyAction::paste), 1);
    EXPECT_FALSE(stored().contains(u"paste"_qs));
}

TEST_F(ActionUsageTest, resettingBringsBackTheSeedsOfThatMoment)
{
    tracker().recordUsage(KeyAction::paste);
    desktop.scheduler().advance(1h);
    tracker().resetToDefaults();
    EXPECT_EQ(tracker().usageRecords().size(), 6);
    EXPECT_EQ(tracker().useCount(KeyAction::paste), 0);
    EXPECT_EQ(tracker().lastUsed(KeyAction::screenCapture), usageDateOf(desktop.scheduler().now()) - 180s);
    EXPECT_FALSE(stored().contains(u"paste"_qs));
}

TEST_F(ActionUsageTest, theFilterIsStoredAtEveryChangeAndReadAtTheNextLaunch)
{
    tracker().setCurrentFilter(ActionUsageFilter::recentlyUsed);
    quit();
    EXPECT_EQ(tracker().currentFilter(), ActionUsageFilter::recentlyUsed);
    tracker().setCurrentFilter(ActionUsageFilter::frequentlyUsed);
    EXPECT_THAT(desktop.effects().all<SettingStored>(),
        ElementsAre(SettingStored{u"com.tarvin.actionUsageFilter"_qs, u"Recent"_qs},
            SettingStored{u"com.tarvin.actionUsageFilter"_qs, u"Frequent"_qs}));
}

TEST_F(ActionUsageTest, anythingElseInTheSettingMeansFrequent)
{
    for (const char* value : {R"("Frequent")", R"("recent")", R"("")", "true", "1", R"(["Recent"])"}) {
        quit();
        desktop.preferences().stage(u"com.tarvin.actionUsageFilter"_qs, json(value));
        EXPECT_EQ(tracker().currentFilter(), ActionUsageFilter::frequentlyUsed) << value;
    }
}

TEST_F(ActionUsageTest, changesAreAnnounced)
{
    int records = 0;
    int filters = 0;
    QObject::connect(&tracker(), &ActionUsageTracker::usageRecordsChanged, &tracker(), [&] { ++records; });
    QObject::connect(&tracker(), &ActionUsageTracker::currentFilterChanged, &tracker(), [&] { ++filters; });
    tracker().recordUsage(KeyAction::paste);
    EXPECT_EQ(records, 1);
    tracker().resetToDefaults();
    EXPECT_EQ(records, 2);
    tracker().setCurrentFilter(ActionUsageFilter::frequentlyUsed);
    EXPECT_EQ(filters, 0);
    tracker().setCurrentFilter(ActionUsageFilter::recentlyUsed);
    EXPECT_EQ(filters, 1);
}

} // namespace

} // namespace tarvin
