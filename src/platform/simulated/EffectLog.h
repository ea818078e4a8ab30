#pragma once

#include "platform/simulated/Effect.h"

#include <vector>

namespace tarvin::simulated {

class SimulatedScheduler;

/// Everything that happened, in order, with virtual times. Every simulated port writes here.
class EffectLog
{
public:
    explicit EffectLog(const SimulatedScheduler& scheduler);

    void record(EffectKind what);
    /// Records a misuse unless the main thread is at work.
    void expectMainThread(const char* call);
    /// Records a misuse if the main thread is at work.
    void expectBackgroundQueue(const char* call);

    [[nodiscard]] const std::vector<Effect>& effects() const { return m_effects; }
    void clear() { m_effects.clear(); }

    /// The effects of one kind, in order, without their times.
    template <typename Kind> [[nodiscard]] std::vector<Kind> all() const
    {
        std::vector<Kind> found;
        for (const Effect& effect : m_effects) {
            if (const Kind* kind = std::get_if<Kind>(&effect.what))
                found.push_back(*kind);
        }
        return found;
    }

    /// The times of the effects of one kind, in order.
    template <typename Kind> [[nodiscard]] std::vector<VirtualTime> timesOf() const
    {
        std::vector<VirtualTime> times;
        for (const Effect& effect : m_effects) {
            if (std::holds_alternative<Kind>(effect.what))
                times.push_back(effect.at);
        }
        return times;
    }

    template <typename Kind> [[nodiscard]] std::size_t count() const { return timesOf<Kind>().size(); }

private:
    const SimulatedScheduler& m_scheduler;
    std::vector<Effect> m_effects;
};

} // namespace tarvin::simulated
