#include "endtoend/support/MainQueue.h"

#include <algorithm>
#include <utility>

namespace tarvin::endtoend {

namespace {

/// A timer whose call looks at the flag first.
class FlagTimer final : public Timer
{
public:
    explicit FlagTimer(std::shared_ptr<bool> isAlive)
        : m_isAlive(std::move(isAlive))
    { }
    ~FlagTimer() override { *m_isAlive = false; }
    FlagTimer(const FlagTimer&) = delete;
    FlagTimer& operator=(const FlagTimer&) = delete;
    FlagTimer(FlagTimer&&) = delete;
    FlagTimer& operator=(FlagTimer&&) = delete;

private:
    std::shared_ptr<bool> m_isAlive;
};

/// How long a condition that no task changes may have changed without being looked at.
constexpr std::chrono::milliseconds lookInterval{1};

} // namespace

double MainQueue::uptime() const
{
    return std::chrono::duration<double>(Clock::now().time_since_epoch()).count();
}

void MainQueue::post(Task task)
{
    add(Clock::now(), std::move(task));
}

void MainQueue::postAfter(Duration delay, Task task)
{
    add(Clock::now() + delay, std::move(task));
}

std::unique_ptr<Timer> MainQueue::startOneShot(Duration delay, Task task)
{
    auto isAlive = std::make_shared<bool>(true);
    postAfter(delay, [isAlive, task = std::move(task)] {
        if (*isAlive)
            task();
    });
    return std::make_unique<FlagTimer>(isAlive);
}

std::unique_ptr<Timer> MainQueue::startRepeating(Duration interval, Task task)
{
    auto isAlive = std::make_shared<bool>(true);
    auto again = std::make_shared<std::function<void()>>();
    *again = [this, interval, isAlive, task = std::move(task), weak = std::weak_ptr(again)] {
        if (!*isAlive)
            return;
        task();
        if (const auto next = weak.lock())
            postAfter(interval, [next] { (*next)(); });
    };
    postAfter(interval, [again] { (*again)(); });
    return std::make_unique<FlagTimer>(isAlive);
}

void MainQueue::runInBackground(BackgroundQueue, Task task)
{
    std::thread(std::move(task)).detach();
}

bool MainQueue::runUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit)
{
    const auto deadline = Clock::now() + limit;
    while (!condition()) {
        if (const Task task = takeDue())
            task();
        else if (Clock::now() >= deadline)
            return false;
        else
            waitForWork(std::min(deadline, Clock::now() + lookInterval));
    }
    return true;
}

void MainQueue::runFor(std::chrono::milliseconds duration)
{
    static_cast<void>(runUntil([] { return false; }, duration));
}

void MainQueue::runPosted()
{
    bool isDone = false;
    post([&isDone] { isDone = true; });
    static_cast<void>(runUntil([&isDone] { return isDone; }));
}

void MainQueue::add(Clock::time_point due, Task task)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_tasks.emplace(due, std::move(task));
    }
    m_workArrived.notify_one();
}

Scheduler::Task MainQueue::takeDue()
{
    const std::scoped_lock lock(m_mutex);
    if (m_tasks.empty() || m_tasks.begin()->first > Clock::now())
        return {};
    return std::move(m_tasks.extract(m_tasks.begin()).mapped());
}

void MainQueue::waitForWork(Clock::time_point until)
{
    std::unique_lock lock(m_mutex);
    m_workArrived.wait_until(
        lock, until, [this] { return !m_tasks.empty() && m_tasks.begin()->first <= Clock::now(); });
}

} // namespace tarvin::endtoend
