#pragma once

#include "actions/usage/ActionUsageFile.h"

#include <QString>

#include <memory>

namespace tarvin {

class Console;
class Scheduler;

/// Writes the counts to their file away from the main thread, so that no key press waits for the disk. Several changes
/// in a row become one writing of the last; an older state never overwrites a newer one. Main thread only.
class UsageFileWriter
{
public:
    /// @param path absolute
    UsageFileWriter(Files& files, Console& console, Scheduler& scheduler, const QString& path);
    /// Writes what has not been written yet.
    ~UsageFileWriter();
    UsageFileWriter(const UsageFileWriter&) = delete;
    UsageFileWriter& operator=(const UsageFileWriter&) = delete;

    /// Returns before the file is written. A failure goes to the console and changes nothing else.
    void write(const ActionUsageRecords& records);
    /// Returns when everything is in the file. For the end of the program, when background queues serve no more.
    void flush();

private:
    struct State;

    Scheduler& m_scheduler;
    std::shared_ptr<State> m_state; ///< also held by the background task
};

} // namespace tarvin
