#include "platform/simulated/SimulatedScheduler.h"

#include <algorithm>

namespace tarvin::simulated {

class SimulatedScheduler::TimerHandle final : public Timer
{
public:
    TimerHandle(SimulatedScheduler& scheduler, std::shared_ptr<Job> job)
        : m_scheduler(scheduler)
        , m_job(std::move(job))
    {
        ++m_scheduler.m_liveTimers;
    }
    ~TimerHandle() override
    {
        --m_scheduler.m_liveTimers;
        std::erase_if(m_scheduler.m_jobs, [this](const auto& entry) { return entry.second == m_job; });
    }

private:
    SimulatedScheduler& m_scheduler;
    std::shared_ptr<Job> m_job;
};

SimulatedScheduler::~SimulatedScheduler() = default;

double SimulatedScheduler::uptime() const
{
    return m_uptimeAtStart + std::chrono::duration<double>(m_time).count();
}

Scheduler::WallClock SimulatedScheduler::now() const
{
    return m_nowAtStart + std::chrono::duration_cast<WallClock::duration>(m_time);
}

void SimulatedScheduler::setUptime(double seconds)
{
    m_uptimeAtStart = seconds - std::chrono::duration<double>(m_time).count();
}

void SimulatedScheduler::setNow(WallClock now)
{
    m_nowAtStart = now - std::chrono::duration_cast<WallClock::duration>(m_time);
}

void SimulatedScheduler::post(Task task)
{
    schedule(m_time, {std::move(task), std::nullopt});
}

void SimulatedScheduler::postAfter(Duration delay, Task task)
{
    callAfter(delay, std::move(task));
}

std::unique_ptr<Timer> SimulatedScheduler::startOneShot(Duration delay, Task task)
{
    return startTimer(delay, {std::move(task), std::nullopt});
}

std::unique_ptr<Timer> SimulatedScheduler::startRepeating(Duration interval, Task task)
{
    return startTimer(interval, {std::move(task), std::max(interval, Duration(1))});
}

void SimulatedScheduler::runInBackground(BackgroundQueue, Task task)
{
    m_background.push_back(std::move(task));
}

void SimulatedScheduler::runPosted()
{
    runBackground();
    while (runNextDueBy(m_time))
        runBackground();
}

void SimulatedScheduler::advance(VirtualTime duration)
{
    advanceTo(m_time + duration);
}

void SimulatedScheduler::advanceTo(VirtualTime moment)
{
    runBackground();
    while (runNextDueBy(moment))
        runBackground();
    m_time = std::max(m_time, moment);
}

std::optional<VirtualTime> SimulatedScheduler::nextDue() const
{
    return m_jobs.empty() ? std::nullopt : std::optional(m_jobs.begin()->first.first);
}

std::optional<VirtualTime> SimulatedScheduler::nextDueOnce() const
{
    const auto once = std::ranges::find_if(m_jobs, [](const auto& entry) { return !entry.second->interval; });
    return once == m_jobs.end() ? std::nullopt : std::optional(once->first.first);
}

void SimulatedScheduler::callAfter(VirtualTime delay, Task task)
{
    schedule(m_time + std::max(delay, VirtualTime::zero()), {std::move(task), std::nullopt});
}

void SimulatedScheduler::callOffMain(const Task& task)
{
    const bool before = std::exchange(m_isMainThread, false);
    task();
    m_isMainThread = before;
}

std::shared_ptr<SimulatedScheduler::Job> SimulatedScheduler::schedule(VirtualTime due, Job job)
{
    auto shared = std::make_shared<Job>(std::move(job));
    m_jobs.emplace(Moment{due, m_nextOrder++}, shared);
    return shared;
}

std::unique_ptr<Timer> SimulatedScheduler::startTimer(Duration delay, Job job)
{
    return std::make_unique<TimerHandle>(*this, schedule(m_time + std::max(delay, Duration::zero()), std::move(job)));
}

void SimulatedScheduler::runBackground()
{
    while (!m_background.empty()) {
        const Task task = std::move(m_background.front());
        m_background.pop_front();
        callOffMain(task);
    }
}

bool SimulatedScheduler::runNextDueBy(VirtualTime limit)
{
    if (m_jobs.empty() || m_jobs.begin()->first.first > limit)
        return false;
    const VirtualTime due = m_jobs.begin()->first.first;
    const std::shared_ptr<Job> job = m_jobs.begin()->second;
    m_jobs.erase(m_jobs.begin());
    m_time = std::max(m_time, due);
    // The next round is entered first, so that a task which destroys its own timer takes it out again.
    if (job->interval)
        m_jobs.emplace(Moment{due + *job->interval, m_nextOrder++}, job);
    const Task task = job->task;
    task();
    return true;
}

} // namespace tarvin::simulated
