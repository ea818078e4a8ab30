#pragma once

#include "tapd/engine/WayOutDetector.h"

#include <algorithm>
#include <chrono>
#include <optional>

namespace tarvin::tapd {

/// Finds out within a second that the application does not answer any more.
///
///     off       nothing is taken from the system, so it does not matter         no pings
///     answered  the application has answered what it was asked                  the next ping at its time
///     asked     a ping waits for its answer, since a time                       pings go on; too long: silent
///     silent    nothing may be taken until something comes from the application  no pings
class Heartbeat
{
public:
    static constexpr EventTime pingInterval = std::chrono::milliseconds(300);
    static constexpr EventTime patience = std::chrono::milliseconds(700);

    void turnOn(EventTime now)
    {
        if (!m_nextPing)
            m_nextPing = now + pingInterval;
    }
    void turnOff() { *this = {}; }

    void noteAnswer() { m_askedSince.reset(); }
    [[nodiscard]] bool isPingDue(EventTime now) const { return m_nextPing && !isSilent(now) && now >= *m_nextPing; }
    void notePing(EventTime now)
    {
        m_nextPing = now + pingInterval;
        if (!m_askedSince)
            m_askedSince = now;
    }
    [[nodiscard]] bool isSilent(EventTime now) const { return m_askedSince && now >= *m_askedSince + patience; }
    /// When to look again; empty where nothing changes by itself.
    [[nodiscard]] std::optional<EventTime> deadline(EventTime now) const
    {
        if (!m_nextPing || isSilent(now))
            return std::nullopt;
        return m_askedSince ? std::min(*m_nextPing, *m_askedSince + patience) : *m_nextPing;
    }

private:
    std::optional<EventTime> m_nextPing;
    std::optional<EventTime> m_askedSince;
};

} // namespace tarvin::tapd
