#pragma once

#include "platform/ports/Scheduler.h"

namespace tarvin::macos {

/// The scheduler on the main dispatch queue and the main run loop. Delayed calls and timers run in the common modes, so
/// that they also run while a menu is open, and the system does not nap the program while this object lives. Made, shut
/// down and destroyed on the main thread.
class MacScheduler final : public Scheduler
{
public:
    MacScheduler();
    /// Ends the queues as `shutDown` does, however long that takes. What was posted and has not run is dropped.
    ~MacScheduler() override;
    MacScheduler(const MacScheduler&) = delete;
    MacScheduler& operator=(const MacScheduler&) = delete;

    /// Without the time that the machine was asleep.
    [[nodiscard]] double uptime() const override;
    [[nodiscard]] WallClock now() const override;
    [[nodiscard]] bool isMainThread() const override;
    void post(Task task) override;
    void postAfter(Duration delay, Task task) override;
    [[nodiscard]] std::unique_ptr<Timer> startOneShot(Duration delay, Task task) override;
    [[nodiscard]] std::unique_ptr<Timer> startRepeating(Duration interval, Task task) override;
    void runInBackground(BackgroundQueue queue, Task task) override;

    /// The orderly end. Background work not yet begun is dropped, work at hand is waited for, and then the log queue
    /// writes all it still holds. Whatever is handed in afterwards is dropped.
    /// @param grace negative waits for ever
    /// @return false if work at hand outlived the grace; the log is drained all the same, and the caller must leave the
    /// process without destroying what that work may use
    [[nodiscard]] bool shutDown(Duration grace);

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace tarvin::macos
