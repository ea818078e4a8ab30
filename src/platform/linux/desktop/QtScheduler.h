#pragma once

#include "platform/ports/Scheduler.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <thread>

namespace tarvin::desktop {

/// The scheduler on the event loop of the thread that creates it, which is the main one.
///
/// Made after the application object; what is posted before the loop runs waits for it. All delays use precise timers:
/// the others of Qt may fire up to 5 % early, and keystrokes are timed in steps of 15 ms.
class QtScheduler : public Scheduler
{
public:
    QtScheduler();
    /// Ends the queues as `shutDown` does, however long that takes.
    ~QtScheduler() override;
    QtScheduler(const QtScheduler&) = delete;
    QtScheduler& operator=(const QtScheduler&) = delete;

    /// On CLOCK_BOOTTIME, which counts the time asleep too: a machine that slept through the night did not just start.
    [[nodiscard]] double uptime() const override;
    [[nodiscard]] WallClock now() const override;
    [[nodiscard]] bool isMainThread() const override;
    void post(Task task) override;
    void postAfter(Duration delay, Task task) override;
    [[nodiscard]] std::unique_ptr<Timer> startOneShot(Duration delay, Task task) override;
    [[nodiscard]] std::unique_ptr<Timer> startRepeating(Duration interval, Task task) override;
    void runInBackground(BackgroundQueue queue, Task task) override;

    /// The orderly end, after the event loop and before anything that a task may use is destroyed. Background work not
    /// yet begun is dropped, work at hand is waited for, and then the log queue writes all it still holds. Whatever is
    /// handed in afterwards is dropped. Main thread.
    /// @return false if work at hand outlived the grace; the log is drained all the same, and the caller must leave the
    /// process without destroying what that work may use
    [[nodiscard]] bool shutDown(Duration grace);

private:
    [[nodiscard]] QThreadPool& pool(BackgroundQueue queue);

    const std::thread::id m_mainThread;
    std::atomic<bool> m_takesWork = true;
    std::atomic<bool> m_takesLogLines = true;
    QThreadPool m_logPool; ///< one thread, so the order of the calls is kept
    QThreadPool m_userInitiatedPool;
    QThreadPool m_utilityPool;
    QObject m_mainContext; ///< receives what is posted; the last member, so nothing arrives after its end
};

} // namespace tarvin::desktop
