#pragma once

#include "platform/ports/Scheduler.h"

#include <memory>
#include <utility>

namespace tarvin {

/// Brings calls of one owner to the main thread. A call that arrives after the owner has gone does nothing.
class MainThread
{
public:
    explicit MainThread(Scheduler& scheduler)
        : m_scheduler(scheduler)
    { }

    /// Calls at once on the main thread, and on a later turn of it from any other thread.
    template <typename Task> void run(Task task)
    {
        if (m_scheduler.isMainThread())
            task();
        else
            m_scheduler.post(whileAlive(std::move(task)));
    }

    /// The task, turned into one that does nothing once this object has been destroyed.
    template <typename Task> [[nodiscard]] Scheduler::Task whileAlive(Task task) const
    {
        return [alive = std::weak_ptr(m_alive), task = std::move(task)] {
            if (!alive.expired())
                task();
        };
    }

private:
    struct Token
    { };

    Scheduler& m_scheduler;
    std::shared_ptr<const Token> m_alive = std::make_shared<const Token>();
};

} // namespace tarvin
