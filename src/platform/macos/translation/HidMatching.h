#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace tarvin::macos {

/// Which devices the hardware observer listens to: one row for each dictionary that the manager is given.
struct HidMatch
{
    std::int32_t usagePage = 0;
    std::optional<std::int32_t> usage{}; ///< absent where any usage of the page will do
};

inline constexpr const char* hidUsagePageKey = "DeviceUsagePage";
inline constexpr const char* hidUsageKey = "DeviceUsage";

inline constexpr auto hidMatches = std::to_array<HidMatch>({
    {.usagePage = 1, .usage = 6}, // keyboards
    {.usagePage = 12}, // consumer controls
    {.usagePage = 0xFF01}, // the vendor page with the printed functions of the top row
});

} // namespace tarvin::macos
