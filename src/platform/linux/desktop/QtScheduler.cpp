#include "platform/linux/desktop/QtScheduler.h"

#include <QMetaObject>
#include <QTimer>

#include <algorithm>
#include <ctime>

namespace tarvin::desktop {

namespace {

using namespace std::chrono_literals;

/// How long a thread without work stays. Threads that went give their stack and their heap back.
constexpr auto idleThreadLife = 5s;
/// Scripts and processes block their thread, so there are more of these than processors.
constexpr int userInitiatedThreads = 8;
constexpr int utilityThreads = 2;

class QtTimer : public Timer
{
public:
    QtTimer(std::chrono::milliseconds interval, bool isSingleShot, Scheduler::Task task)
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setSingleShot(isSingleShot);
        // The connection keeps the task alive while it runs, even when the task destroys this object.
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, std::move(task));
        m_timer.start(interval);
    }

private:
    QTimer m_timer;
};

void setUp(QThreadPool& pool, int threadCount)
{
    pool.setMaxThreadCount(threadCount);
    pool.setExpiryTimeout(static_cast<int>(std::chrono::milliseconds(idleThreadLife).count()));
}

} // namespace

QtScheduler::QtScheduler()
    : m_mainThread(std::this_thread::get_id())
{
    setUp(m_logPool, 1);
    setUp(m_userInitiatedPool, userInitiatedThreads);
    setUp(m_utilityPool, utilityThreads);
}

QtScheduler::~QtScheduler()
{
    constexpr Duration forEver(-1);
    (void)shutDown(forEver);
}

double QtScheduler::uptime() const
{
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

Scheduler::WallClock QtScheduler::now() const
{
    return std::chrono::system_clock::now();
}

bool QtScheduler::isMainThread() const
{
    return std::this_thread::get_id() == m_mainThread;
}

void QtScheduler::post(Task task)
{
    QMetaObject::invokeMethod(&m_mainContext, std::move(task), Qt::QueuedConnection);
}

void QtScheduler::postAfter(Duration delay, Task task)
{
    if (isMainThread()) {
        QTimer::singleShot(delay, Qt::PreciseTimer, &m_mainContext, std::move(task));
        return;
    }
    // Only the main thread can start the timer; the way there counts as part of the delay.
    const auto due = std::chrono::steady_clock::now() + delay;
    post([this, due, task = std::move(task)]() mutable {
        const auto rest = std::chrono::ceil<Duration>(due - std::chrono::steady_clock::now());
        QTimer::singleShot(std::max(rest, Duration(0)), Qt::PreciseTimer, &m_mainContext, std::move(task));
    });
}

std::unique_ptr<Timer> QtScheduler::startOneShot(Duration delay, Task task)
{
    return std::make_unique<QtTimer>(delay, true, std::move(task));
}

std::unique_ptr<Timer> QtScheduler::startRepeating(Duration interval, Task task)
{
    return std::make_unique<QtTimer>(interval, false, std::move(task));
}

void QtScheduler::runInBackground(BackgroundQueue queue, Task task)
{
    const bool isTaken = queue == BackgroundQueue::log ? m_takesLogLines : m_takesWork;
    if (isTaken)
        pool(queue).start(std::move(task));
}

bool QtScheduler::shutDown(Duration grace)
{
    m_takesWork = false;
    QThreadPool* const workers[] = {&m_userInitiatedPool, &m_utilityPool};
    for (QThreadPool* worker : workers)
        worker->clear();
    const int milliseconds = static_cast<int>(grace.count());
    bool areAllDone = true;
    for (QThreadPool* worker : workers)
        areAllDone = worker->waitForDone(milliseconds) && areAllDone;
    // Only now: the work that was waited for may have logged.
    m_takesLogLines = false;
    return m_logPool.waitForDone() && areAllDone;
}

QThreadPool& QtScheduler::pool(BackgroundQueue queue)
{
    switch (queue) {
    case BackgroundQueue::log:
        return m_logPool;
    case BackgroundQueue::userInitiated:
        return m_userInitiatedPool;
    case BackgroundQueue::utility:
        return m_utilityPool;
    }
    Q_UNREACHABLE();
}

} // namespace tarvin::desktop
