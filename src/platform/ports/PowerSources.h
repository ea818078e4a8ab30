#pragma once

#include <optional>
#include <vector>

namespace tarvin {

/// What is known of one battery or other source of power.
struct PowerSource
{
    std::optional<int> currentCapacity; ///< percent of the full charge
    std::optional<bool> isCharging;
};

/// The machine's batteries. Main thread only.
class PowerSources
{
public:
    virtual ~PowerSources() = default;
    /// In the system's order, as last heard; nothing where the system does not tell.
    [[nodiscard]] virtual std::optional<std::vector<PowerSource>> read() const = 0;
};

} // namespace tarvin
