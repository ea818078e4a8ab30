#include "actions/usage/UsageFileWriter.h"

#include "platform/ports/Console.h"
#include "platform/ports/Scheduler.h"

#include <QStringBuilder>

#include <mutex>
#include <optional>
#include <utility>

namespace tarvin {

struct UsageFileWriter::State
{
    /// Any thread. Whoever gets here later finds the newer records, or none if they have been written meanwhile.
    void writePending()
    {
        const std::scoped_lock fileLock(fileMutex);
        const std::optional<ActionUsageRecords> records = takePending();
        if (!records)
            return;
        if (const std::optional<FileError> error = files.writeAtomically(path, encodeUsageRecords(*records)))
            console.printLine(u"[Tarvin] Failed to save action usage records: " % error->text);
    }

    /// @return whether nothing was pending before
    [[nodiscard]] bool setPending(const ActionUsageRecords& records)
    {
        const std::scoped_lock lock(pendingMutex);
        return !std::exchange(pending, records).has_value();
    }

    [[nodiscard]] std::optional<ActionUsageRecords> takePending()
    {
        const std::scoped_lock lock(pendingMutex);
        return std::exchange(pending, std::nullopt);
    }

    Files& files;
    Console& console;
    const QString path;
    std::mutex fileMutex; ///< held while the file is written
    std::mutex pendingMutex;
    std::optional<ActionUsageRecords> pending; ///< guarded by its mutex
};

UsageFileWriter::UsageFileWriter(Files& files, Console& console, Scheduler& scheduler, const QString& path)
    : m_scheduler(scheduler)
    , m_state(new State{.files = files, .console = console, .path = path, .fileMutex{}, .pendingMutex{}, .pending{}})
{ }

UsageFileWriter::~UsageFileWriter()
{
    flush();
}

void UsageFileWriter::write(const ActionUsageRecords& records)
{
    if (m_state->setPending(records))
        m_scheduler.runInBackground(BackgroundQueue::utility, [state = m_state] { state->writePending(); });
}

void UsageFileWriter::flush()
{
    m_state->writePending();
}

} // namespace tarvin
