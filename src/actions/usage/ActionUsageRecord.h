#pragma once

#include "platform/ports/Scheduler.h"

#include <chrono>
#include <cstdint>

namespace tarvin {

/// An instant in the form in which it is stored and compared: seconds since 2001-01-01 00:00:00 UTC.
using UsageDate = std::chrono::duration<double>;

[[nodiscard]] constexpr UsageDate usageDateOf(Scheduler::WallClock instant) noexcept
{
    using namespace std::chrono;
    return instant - sys_days(2001y / January / 1);
}

/// How often and how lately one action ran.
struct ActionUsageRecord
{
    std::int64_t useCount = 0;
    UsageDate lastUsed{};

    bool operator==(const ActionUsageRecord&) const = default;
};

} // namespace tarvin
