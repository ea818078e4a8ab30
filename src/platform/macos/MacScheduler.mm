#include "platform/macos/MacScheduler.h"

#import <Foundation/Foundation.h>

#include <atomic>
#include <utility>

namespace tarvin::macos {

namespace {

/// What the queues may still take. Shared with everything that waits in them, which outlives the scheduler.
struct Admission
{
    std::atomic<bool> main = true;
    std::atomic<bool> work = true;
    std::atomic<bool> logLines = true;
};

dispatch_time_t after(Scheduler::Duration duration)
{
    if (duration.count() < 0)
        return DISPATCH_TIME_FOREVER;
    return dispatch_time(DISPATCH_TIME_NOW, std::chrono::nanoseconds(duration).count());
}

class RunLoopTimer final : public Timer
{
public:
    RunLoopTimer(Scheduler::Duration interval, bool repeats, Scheduler::Task task)
    {
        const auto shared = std::make_shared<Scheduler::Task>(std::move(task));
        const std::chrono::duration<double> seconds = interval;
        m_timer = [NSTimer timerWithTimeInterval:seconds.count()
                                         repeats:repeats
                                           block:^(NSTimer*) {
                                               // The task may destroy the timer, and with it the block.
                                               const auto alive = shared;
                                               (*alive)();
                                           }];
        [NSRunLoop.mainRunLoop addTimer:m_timer forMode:NSRunLoopCommonModes];
    }
    RunLoopTimer(const RunLoopTimer&) = delete;
    RunLoopTimer& operator=(const RunLoopTimer&) = delete;
    ~RunLoopTimer() override { [m_timer invalidate]; }

private:
    NSTimer* m_timer; ///< the run loop retains it too, until it is invalid
};

} // namespace

struct MacScheduler::Native
{
    Native() = default;
    ~Native() { [NSProcessInfo.processInfo endActivity:activity]; }
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;

    /// Without it the system naps a program that shows no window: it delays its timers, and a key would stay pressed
    /// for as long as the timer that releases it is late. The machine may sleep all the same.
    id<NSObject> activity =
        [NSProcessInfo.processInfo beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                                                     reason:@"Keys are answered in time"];
    std::shared_ptr<Admission> admission = std::make_shared<Admission>();
    dispatch_group_t work = dispatch_group_create();
    dispatch_queue_t log = dispatch_queue_create(
        "com.tarvin.logger", dispatch_queue_attr_make_with_qos_class(DISPATCH_QUEUE_SERIAL, QOS_CLASS_UTILITY, 0));
};

MacScheduler::MacScheduler()
    : m_native(std::make_unique<Native>())
{ }

MacScheduler::~MacScheduler()
{
    constexpr Duration forEver(-1);
    (void)shutDown(forEver);
    m_native->admission->main = false;
}

double MacScheduler::uptime() const
{
    return NSProcessInfo.processInfo.systemUptime;
}

Scheduler::WallClock MacScheduler::now() const
{
    return std::chrono::system_clock::now();
}

bool MacScheduler::isMainThread() const
{
    return NSThread.isMainThread;
}

void MacScheduler::post(Task task)
{
    const auto admission = m_native->admission;
    dispatch_async(dispatch_get_main_queue(), ^{
        if (admission->main)
            task();
    });
}

void MacScheduler::postAfter(Duration delay, Task task)
{
    const auto admission = m_native->admission;
    dispatch_after(after(std::max(delay, Duration(0))), dispatch_get_main_queue(), ^{
        if (admission->main)
            task();
    });
}

std::unique_ptr<Timer> MacScheduler::startOneShot(Duration delay, Task task)
{
    return std::make_unique<RunLoopTimer>(delay, false, std::move(task));
}

std::unique_ptr<Timer> MacScheduler::startRepeating(Duration interval, Task task)
{
    return std::make_unique<RunLoopTimer>(interval, true, std::move(task));
}

void MacScheduler::runInBackground(BackgroundQueue queue, Task task)
{
    const auto admission = m_native->admission;
    if (queue == BackgroundQueue::log) {
        if (!admission->logLines)
            return;
        dispatch_async(m_native->log, ^{
            @autoreleasepool {
                task();
            }
        });
        return;
    }
    const dispatch_qos_class_t quality =
        queue == BackgroundQueue::userInitiated ? QOS_CLASS_USER_INITIATED : QOS_CLASS_UTILITY;
    dispatch_group_async(m_native->work, dispatch_get_global_queue(quality, 0), ^{
        // Asked when its turn comes: what has not begun at the end of the program never begins.
        if (!admission->work)
            return;
        @autoreleasepool {
            task();
        }
    });
}

bool MacScheduler::shutDown(Duration grace)
{
    m_native->admission->work = false;
    const bool areAllDone = dispatch_group_wait(m_native->work, after(grace)) == 0;
    // Only now: the work that was waited for may have logged.
    m_native->admission->logLines = false;
    dispatch_sync(m_native->log, ^{});
    return areAllDone;
}

} // namespace tarvin::macos
