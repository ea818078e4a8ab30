#pragma once

#include "platform/ports/PowerSources.h"

#include <cstdint>
#include <optional>

namespace tarvin::macos {

/// What the description of a power source says, as far as it could be read.
struct PowerRecord
{
    std::optional<std::int64_t> currentCapacity{}; ///< percent
    std::optional<bool> isCharging{};
};

/// The keys of a description.
inline constexpr const char* powerCapacityKey = "Current Capacity";
inline constexpr const char* powerChargingKey = "Is Charging";

[[nodiscard]] constexpr PowerSource powerSourceOf(const PowerRecord& record) noexcept
{
    PowerSource source{.currentCapacity = {}, .isCharging = record.isCharging};
    if (record.currentCapacity)
        source.currentCapacity = static_cast<int>(*record.currentCapacity);
    return source;
}

} // namespace tarvin::macos
