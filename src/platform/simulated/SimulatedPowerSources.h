#pragma once

#include "platform/ports/PowerSources.h"
#include "platform/simulated/EffectLog.h"

namespace tarvin::simulated {

/// The batteries of a laptop; a desktop computer without any at first. Reading is no effect.
class SimulatedPowerSources final : public PowerSources
{
public:
    explicit SimulatedPowerSources(EffectLog& log)
        : m_log(log)
    { }

    [[nodiscard]] std::optional<std::vector<PowerSource>> read() const override
    {
        m_log.expectMainThread("PowerSources::read");
        return m_sources;
    }

    /// Nothing stands for a system that does not tell.
    void setSources(std::optional<std::vector<PowerSource>> sources) { m_sources = std::move(sources); }

private:
    EffectLog& m_log;
    std::optional<std::vector<PowerSource>> m_sources = std::vector<PowerSource>();
};

} // namespace tarvin::simulated
