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
        if (held != combination())
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
    [[nodiscard]] static const KeyBits& combination()
    {
        static const KeyBits keys = KeyBits().set(KEY_BACKSPACE).set(KEY_ESC).set(KEY_ENTER);
        return keys;
    }

    std::optional<EventTime> m_heldSince;
};

} // namespace tarvin::tapd
