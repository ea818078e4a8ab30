#pragma once

#include "endtoend/support/Patience.h"
#include "platform/ports/Scheduler.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

namespace tarvin::endtoend {

/// A main queue in real time that runs only while a test waits. The thread that makes it is the main thread.
class MainQueue final : public Scheduler
{
public:
    [[nodiscard]] double uptime() const override;
    [[nodiscard]] WallClock now() const override { return std::chrono::system_clock::now(); }
    [[nodiscard]] bool isMainThread() const override { return std::this_thread::get_id() == m_mainThread; }

    void post(Task task) override;
    void postAfter(Duration delay, Task task) override;
    [[nodiscard]] std::unique_ptr<Timer> startOneShot(Duration delay, Task task) override;
    [[nodiscard]] std::unique_ptr<Timer> startRepeating(Duration interval, Task task) override;
    /// On a thread of its own, which nobody waits for.
    void runInBackground(BackgroundQueue queue, Task task) override;

    /// Runs what is due until the condition holds.
    /// @return whether it held within the limit
    [[nodiscard]] bool runUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit = patience);
    /// Runs what is due, for so long.
    void runFor(std::chrono::milliseconds duration);
    /// Runs what has been posted so far.
    void runPosted();

private:
    using Clock = std::chrono::steady_clock;

    void add(Clock::time_point due, Task task);
    [[nodiscard]] Task takeDue();
    void waitForWork(Clock::time_point until);

    std::thread::id m_mainThread = std::this_thread::get_id();
    std::mutex m_mutex;
    std::condition_variable m_workArrived;
    std::multimap<Clock::time_point, Task> m_tasks; ///< guarded by the mutex
};

} // namespace tarvin::endtoend
