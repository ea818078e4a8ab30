#pragma once

#include "tapd/engine/KeyBits.h"

#include <chrono>
#include <optional>

namespace tarvin::tapd {

/// Time on the clock that stamps the events (CLOCK_MONOTONIC).
using EventTime = std::chrono::microseconds;

/// Notices when Backspace, Escape and Enter, and nothing else, are held together on one keyboard for half a second.
///
///     waiting   any other keys are held                 the three alone: holding
///     holding   the three alone are held, since a time  any change: waiting; half a second: due
class WayOutDetector
{
public:
    static constexpr EventTime holdTime = std::chrono::milliseconds(500);

    void noteKeys(const KeyBits& held, EventTime time)
    {
        // At nearly every event none of the three is down.
        if (!held[KEY_BACKSPACE] || !held[KEY_ESC] || !held[KEY_ENTER] || held.count() != keysOfCombination)
            m_heldSince.reset();
        else if (!m_heldSince)
            m_heldSince = time;
    }

    /// When to ask `isDue`; empty while the keys are not held.
    [[nodiscard]] std::optional<EventTime> deadline() const
    {
        return m_heldSince ? std::optional(*m_heldSince + holdTime) : std::nullopt;
    }
    [[nodiscard]] bool isDue(EventTime now) const { return m_heldSince && now >= *m_heldSince + holdTime; }

private:
    static constexpr std::size_t keysOfCombination = 3;

    std::optional<EventTime> m_heldSince;
};

} // namespace tarvin::tapd
