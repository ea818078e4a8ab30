#pragma once

#include <linux/input.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tarvin::tapd {

/// Input events in the order in which they are to be written. Of fixed size, because nothing is allocated for an event.
class EventBuffer
{
public:
    /// Room for the release of every key there is and for several reads of a keyboard.
    static constexpr std::size_t capacity = 1024;

    [[nodiscard]] std::span<const input_event> events() const { return {m_events.data(), m_size}; }
    [[nodiscard]] bool isEmpty() const { return m_size == 0; }
    void clear() { m_size = 0; }

    void append(std::uint16_t type, std::uint16_t code, std::int32_t value)
    {
        if (m_size == capacity)
            return;
        input_event& event = m_events[m_size++];
        event = {};
        event.type = type;
        event.code = code;
        event.value = value;
    }
    void endReport() { append(EV_SYN, SYN_REPORT, 0); }

private:
    std::array<input_event, capacity> m_events{};
    std::size_t m_size = 0;
};

} // namespace tarvin::tapd
