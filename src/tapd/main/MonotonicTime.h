#pragma once

#include "tapd/engine/WayOutDetector.h"

#include <ctime>

namespace tarvin::tapd {

/// Now, on the clock that stamps the events. Costs no system call.
[[nodiscard]] inline EventTime monotonicNow()
{
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return std::chrono::seconds(now.tv_sec)
        + std::chrono::duration_cast<EventTime>(std::chrono::nanoseconds(now.tv_nsec));
}

} // namespace tarvin::tapd
