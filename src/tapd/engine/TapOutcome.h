#pragma once

#include "tapd/engine/EventBuffer.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tarvin::tapd {

/// A key event that was taken from the system, for the application.
struct TakenKey
{
    enum class Subject : std::uint8_t { customisedKey, summonShortcut };

    Subject subject = Subject::customisedKey;
    std::uint8_t key = 0; ///< the order of the customised key
    std::uint16_t code = 0;
    std::int32_t value = 0; ///< 0 release, 1 press, 2 repeat
    std::uint32_t scan = 0; ///< what the keyboard called the key; 0 where it did not say
    friend bool operator==(const TakenKey&, const TakenKey&) = default;
};

/// What becomes of the events of one keyboard. Reused from one read to the next.
class TapOutcome
{
public:
    /// A read has no more events than this.
    static constexpr std::size_t mostTakenKeys = 64;

    EventBuffer emitted; ///< to be written to the output of the keyboard, all at once

    [[nodiscard]] std::span<const TakenKey> takenKeys() const { return {m_taken.data(), m_takenCount}; }
    void take(const TakenKey& key)
    {
        if (m_takenCount < m_taken.size())
            m_taken[m_takenCount++] = key;
    }
    void clear()
    {
        emitted.clear();
        m_takenCount = 0;
    }

private:
    std::array<TakenKey, mostTakenKeys> m_taken{};
    std::size_t m_takenCount = 0;
};

} // namespace tarvin::tapd
