#pragma once

#include "actions/usage/ActionUsageFile.h"
#include "actions/usage/ActionUsageFilter.h"
#include "actions/usage/UsageFileWriter.h"

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace tarvin {

class Console;
class Preferences;
class Scheduler;

/// Counts how often and how lately each action ran, for the first section of the picker. Main thread only.
///
/// A fresh store, and one whose file cannot be read, starts with counts that make the section useful at once.
class ActionUsageTracker : public QObject
{
    Q_OBJECT
    Q_PROPERTY(tarvin::ActionUsageRecords usageRecords READ usageRecords NOTIFY usageRecordsChanged)
    Q_PROPERTY(
        tarvin::ActionUsageFilter currentFilter READ currentFilter WRITE setCurrentFilter NOTIFY currentFilterChanged)

public:
    /// @param customStorageURL absolute path of the file, for a separate store; absent: the default place, whose folder
    /// is made
    ActionUsageTracker(Files& files, Preferences& preferences, Console& console, Scheduler& scheduler,
        const std::optional<QString>& customStorageURL = std::nullopt);

    [[nodiscard]] const ActionUsageRecords& usageRecords() const { return m_usageRecords; }
    /// Absolute path of the file.
    [[nodiscard]] const QString& storageURL() const { return m_storageURL; }
    [[nodiscard]] ActionUsageFilter currentFilter() const { return m_currentFilter; }
    void setCurrentFilter(ActionUsageFilter filter);

    // The two retired screenshot actions count as `screenCapture` in the next three.

    /// Counts one use, now. The file follows in the background; a failure to write it goes to the console.
    void recordUsage(KeyAction action);
    [[nodiscard]] std::int64_t useCount(KeyAction action) const;
    /// Absent for an action that never ran.
    [[nodiscard]] std::optional<UsageDate> lastUsed(KeyAction action) const;

    /// The first @p limit actions under the filter, filled up with the usual ones; fewer where all are used up. May
    /// hold actions that the picker does not offer otherwise.
    [[nodiscard]] QList<KeyAction> actions(ActionUsageFilter filter, int limit) const;
    /// Replaces all counts by those of a fresh store.
    void resetToDefaults();

    /// Returns when all counts are in the file; for the end of the program. The destructor does the same.
    void flush() { m_writer.flush(); }

Q_SIGNALS:
    void usageRecordsChanged();
    void currentFilterChanged();

private:
    [[nodiscard]] ActionUsageRecords load();
    void seedDefaults();
    /// The only place that has the file written.
    void save();
    [[nodiscard]] const ActionUsageRecord* recordOf(KeyAction action) const;

    Files& m_files;
    Preferences& m_preferences;
    Console& m_console;
    Scheduler& m_scheduler;
    QString m_storageURL;
    UsageFileWriter m_writer;
    ActionUsageFilter m_currentFilter;
    ActionUsageRecords m_usageRecords;
};

} // namespace tarvin
