#pragma once

#include "platform/linux/pasteboard/SelectionEngine.h"

#include <QByteArray>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace tarvin::pasteboard {

/// The thread that serves the clipboard: neither a long text nor a bad owner can delay the main thread, and a busy main
/// thread delays nobody who pastes what we have copied. All members are for the main thread.
class SelectionThread
{
public:
    /// Returns once each later change of the clipboard is counted.
    /// @param display as in DISPLAY; empty for the environment's
    explicit SelectionThread(const QByteArray& display);
    ~SelectionThread();
    SelectionThread(const SelectionThread&) = delete;
    SelectionThread& operator=(const SelectionThread&) = delete;

    [[nodiscard]] std::int64_t changeCount() const { return m_changeCount; }
    /// @param done called on the thread, with nothing where there is no server
    void read(SelectionEngine::Done done);
    /// Counts as a change at once.
    void set(const PasteboardText& content);

private:
    using Task = std::function<void(SelectionEngine* engine)>; ///< the engine is null while there is no server

    void run(std::unique_ptr<SelectionEngine> engine);
    void enqueue(Task task);
    void wake() const;
    /// @return whether the thread is to go on
    [[nodiscard]] bool runTasks(SelectionEngine* engine);

    std::atomic<std::int64_t> m_changeCount = 0;
    std::mutex m_mutex;
    std::vector<Task> m_tasks; ///< guarded by the mutex
    bool m_isEnding = false; ///< guarded by the mutex
    int m_wakeDescriptor = -1;
    std::thread m_thread;
};

} // namespace tarvin::pasteboard
