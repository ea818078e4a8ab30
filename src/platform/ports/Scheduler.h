#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace tarvin {

/// A scheduled call; destroying it cancels the call.
class Timer
{
public:
    virtual ~Timer() = default;
};

/// The queues beside the main one.
enum class BackgroundQueue {
    log, ///< serial, in the order of the calls
    userInitiated, ///< concurrent: scripts, processes and Apple events of actions
    utility, ///< concurrent: work nobody waits for
};

/// Time and turns. The only source of clocks and timers for everything outside the platforms.
///
/// Calls run on the main thread unless told otherwise; `post`, `postAfter` and `runInBackground` may be called from any
/// thread.
class Scheduler
{
public:
    using Task = std::function<void()>;
    using Duration = std::chrono::milliseconds;
    using WallClock = std::chrono::system_clock::time_point;

    virtual ~Scheduler() = default;

    /// Seconds since the system started, on a clock that never steps.
    [[nodiscard]] virtual double uptime() const = 0;
    [[nodiscard]] virtual WallClock now() const = 0;
    [[nodiscard]] virtual bool isMainThread() const = 0;

    /// Runs the task on a later turn of the main queue, after everything posted before it.
    virtual void post(Task task) = 0;
    /// The same, not before the delay has passed; cannot be taken back.
    virtual void postAfter(Duration delay, Task task) = 0;
    /// Runs the task once after the delay, unless the result is destroyed before. Main thread only.
    [[nodiscard]] virtual std::unique_ptr<Timer> startOneShot(Duration delay, Task task) = 0;
    /// Runs the task again and again until the result is destroyed, which the task itself may do. Main thread only.
    [[nodiscard]] virtual std::unique_ptr<Timer> startRepeating(Duration interval, Task task) = 0;
    /// Runs the task off the main thread.
    virtual void runInBackground(BackgroundQueue queue, Task task) = 0;
};

} // namespace tarvin
