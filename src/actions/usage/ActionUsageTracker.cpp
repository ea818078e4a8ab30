#include "actions/usage/ActionUsageTracker.h"

#include "platform/ports/Console.h"
#include "platform/ports/Files.h"
#include "platform/ports/Preferences.h"
#include "platform/ports/Scheduler.h"

#include <QStringBuilder>

#include <algorithm>
#include <array>
#include <chrono>
#include <limits>
#include <utility>
#include <vector>

namespace tarvin {

namespace {

using namespace std::chrono_literals;

constexpr QStringView filterKey = u"com.tarvin.actionUsageFilter";

struct SeedRow
{
    KeyAction action;
    std::int64_t useCount;
    std::chrono::seconds age; ///< how long ago it is said to have run
};

constexpr auto seedRows = std::to_array<SeedRow>({
    {KeyAction::screenCapture, 20, 180s},
    {KeyAction::toggleMicMute, 16, 600s},
    {KeyAction::keyboardShortcut, 13, 1800s},
    {KeyAction::snapWindowLeft, 10, 3600s},
    {KeyAction::textSnippet, 8, 7200s},
    {KeyAction::lockScreen, 5, 86400s},
});

/// What fills a list that the counts leave too short.
constexpr std::array usualActions = {KeyAction::screenCapture, KeyAction::toggleMicMute, KeyAction::keyboardShortcut,
    KeyAction::snapWindowLeft, KeyAction::textSnippet, KeyAction::lockScreen, KeyAction::calculator};

constexpr KeyAction normalised(KeyAction action)
{
    const bool isRetired = action == KeyAction::screenshotArea || action == KeyAction::screenshotFull;
    return isRetired ? KeyAction::screenCapture : action;
}

QString defaultStorageURL(Files& files)
{
    const QString directory = files.applicationSupportDirectory();
    files.createDirectory(directory);
    return directory % u"/action_usage.json";
}

using Entry = std::pair<KeyAction, ActionUsageRecord>;

bool ranMoreOften(const Entry& left, const Entry& right)
{
    return std::pair(left.second.useCount, left.second.lastUsed)
        > std::pair(right.second.useCount, right.second.lastUsed);
}

bool ranLater(const Entry& left, const Entry& right)
{
    return left.second.lastUsed > right.second.lastUsed;
}

} // namespace

ActionUsageTracker::ActionUsageTracker(Files& files, Preferences& preferences, Console& console, Scheduler& scheduler,
    const std::optional<QString>& customStorageURL)
    : m_files(files)
    , m_preferences(preferences)
    , m_console(console)
    , m_scheduler(scheduler)
    , m_storageURL(customStorageURL ? *customStorageURL : defaultStorageURL(files))
    , m_writer(files, console, scheduler, m_storageURL)
    , m_currentFilter(actionUsageFilterFromRawValue(preferences.value(filterKey.toString()).toString())
                          .value_or(ActionUsageFilter::frequentlyUsed))
    , m_usageRecords(load())
{
    if (m_usageRecords.empty())
        seedDefaults();
}

void ActionUsageTracker::setCurrentFilter(ActionUsageFilter filter)
{
    const bool differs = m_currentFilter != filter;
    m_currentFilter = filter;
    m_preferences.setValue(filterKey.toString(), rawValue(filter).toString());
    if (differs)
        Q_EMIT currentFilterChanged();
}

void ActionUsageTracker::recordUsage(KeyAction action)
{
    ActionUsageRecord& record = m_usageRecords[normalised(action)];
    // A count at its limit, which only a file written by hand can hold, stays there; a key press must not end the
    // program. This is our own decision.
    if (record.useCount < std::numeric_limits<std::int64_t>::max())
        ++record.useCount;
    record.lastUsed = usageDateOf(m_scheduler.now());
    Q_EMIT usageRecordsChanged();
    save();
}

std::int64_t ActionUsageTracker::useCount(KeyAction action) const
{
    const ActionUsageRecord* record = recordOf(action);
    return record != nullptr ? record->useCount : 0;
}

std::optional<UsageDate> ActionUsageTracker::lastUsed(KeyAction action) const
{
    const ActionUsageRecord* record = recordOf(action);
    return record != nullptr ? std::optional(record->lastUsed) : std::nullopt;
}

QList<KeyAction> ActionUsageTracker::actions(ActionUsageFilter filter, int limit) const
{
    std::vector<Entry> entries(m_usageRecords.begin(), m_usageRecords.end());
    std::ranges::stable_sort(entries, filter == ActionUsageFilter::frequentlyUsed ? ranMoreOften : ranLater);

    QList<KeyAction> actions;
    for (const Entry& entry : entries)
        actions.append(entry.first);
    for (const KeyAction usual : usualActions) {
        if (actions.size() < limit && !actions.contains(usual))
            actions.append(usual);
    }
    // A negative limit has no sense; our own decision is to give it none of the actions.
    return actions.first(std::clamp<qsizetype>(limit, 0, actions.size()));
}

void ActionUsageTracker::resetToDefaults()
{
    seedDefaults();
}

ActionUsageRecords ActionUsageTracker::load()
{
    if (!m_files.exists(m_storageURL))
        return {};
    const auto failed = [this](const FileError& error) {
        m_console.printLine(u"[Tarvin] Failed to load action usage records: " % error.text);
        return ActionUsageRecords();
    };
    const ReadResult content = m_files.read(m_storageURL);
    if (const FileError* error = std::get_if<FileError>(&content))
        return failed(*error);
    std::variant<ActionUsageRecords, FileError> records = decodeUsageRecords(std::get<QByteArray>(content));
    if (const FileError* error = std::get_if<FileError>(&records))
        return failed(*error);
    return std::get<ActionUsageRecords>(std::move(records));
}

void ActionUsageTracker::seedDefaults()
{
    const UsageDate now = usageDateOf(m_scheduler.now());
    m_usageRecords.clear();
    for (const SeedRow& row : seedRows)
        m_usageRecords.emplace(row.action, ActionUsageRecord{row.useCount, now - row.age});
    Q_EMIT usageRecordsChanged();
    save();
}

void ActionUsageTracker::save()
{
    m_writer.write(m_usageRecords);
}

const ActionUsageRecord* ActionUsageTracker::recordOf(KeyAction action) const
{
    const auto found = m_usageRecords.find(normalised(action));
    return found != m_usageRecords.end() ? &found->second : nullptr;
}

} // namespace tarvin
