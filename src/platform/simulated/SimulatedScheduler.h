#pragma once

#include "platform/ports/Scheduler.h"
#include "platform/simulated/Effect.h"

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <utility>

namespace tarvin::simulated {

/// A clock that moves only when told, and the queues that follow it.
///
/// Everything runs on the calling thread. A main turn is what the test does itself or one posted task; background tasks
/// run after the turn that asked for them, at the same virtual time and in the order of the calls, and see
/// `isMainThread()` false.
class SimulatedScheduler final : public Scheduler
{
public:
    /// Long after the system's start, so that nothing takes the launch for one at login.
    static constexpr double defaultUptime = 1000.0;
    /// 2026-01-01T00:00:00Z.
    static constexpr WallClock defaultStart{std::chrono::seconds(1767225600)};

    ~SimulatedScheduler() override;

    [[nodiscard]] double uptime() const override;
    [[nodiscard]] WallClock now() const override;
    [[nodiscard]] bool isMainThread() const override { return m_isMainThread; }
    void post(Task task) override;
    void postAfter(Duration delay, Task task) override;
    [[nodiscard]] std::unique_ptr<Timer> startOneShot(Duration delay, Task task) override;
    [[nodiscard]] std::unique_ptr<Timer> startRepeating(Duration interval, Task task) override;
    void runInBackground(BackgroundQueue queue, Task task) override;

    [[nodiscard]] VirtualTime virtualTime() const { return m_time; }
    /// The uptime of the system at this moment.
    void setUptime(double seconds);
    /// The wall clock at this moment.
    void setNow(WallClock now);

    /// Runs what is due by now, background tasks included, until nothing is left.
    void runPosted();
    /// Lets time pass: every task runs at its own moment.
    void advance(VirtualTime duration);
    void advanceTo(VirtualTime moment);
    /// Lets time pass while something else holds up the main loop: what becomes due waits for the next turn.
    void holdUp(VirtualTime duration) { m_time += duration; }
    /// When the next task is due; absent if nothing waits.
    [[nodiscard]] std::optional<VirtualTime> nextDue() const;
    /// The same without repeating timers, which never come to an end.
    [[nodiscard]] std::optional<VirtualTime> nextDueOnce() const;
    [[nodiscard]] std::size_t runningTimers() const { return m_liveTimers; }

    /// As `postAfter`, to the microsecond; for what the outside world does.
    void callAfter(VirtualTime delay, Task task);
    /// Calls the task at once, as another thread would: `isMainThread()` is false meanwhile.
    void callOffMain(const Task& task);

private:
    class TimerHandle;
    struct Job
    {
        Task task;
        std::optional<VirtualTime> interval{};
    };
    /// Due time, then the order of the calls.
    using Moment = std::pair<VirtualTime, std::uint64_t>;

    std::shared_ptr<Job> schedule(VirtualTime due, Job job);
    std::unique_ptr<Timer> startTimer(Duration delay, Job job);
    void runBackground();
    bool runNextDueBy(VirtualTime limit);

    VirtualTime m_time{};
    double m_uptimeAtStart = defaultUptime;
    WallClock m_nowAtStart = defaultStart;
    bool m_isMainThread = true;
    std::uint64_t m_nextOrder = 0;
    std::map<Moment, std::shared_ptr<Job>> m_jobs;
    std::deque<Task> m_background;
    std::size_t m_liveTimers = 0;
};

} // namespace tarvin::simulated
