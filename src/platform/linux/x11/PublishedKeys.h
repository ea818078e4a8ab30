#pragma once

#include "model/FKeySet.h"
#include "platform/ports/InputTaps.h"

#include <atomic>
#include <cstdint>

namespace tarvin::x11 {

/// What the application last said is to be consumed.
struct PublishedKeys
{
    FKeySet keys;
    SummonShortcut summon = SummonShortcut::released;
    friend bool operator==(const PublishedKeys&, const PublishedKeys&) = default;
};

/// The same, handed from the main thread to the input thread without a lock.
class PublishedKeysCell
{
public:
    void store(const PublishedKeys& published) noexcept
    {
        const std::uint32_t summon = published.summon == SummonShortcut::taken ? summonBit : 0;
        m_word.store(published.keys.bits() | summon, std::memory_order_release);
    }

    [[nodiscard]] PublishedKeys load() const noexcept
    {
        const std::uint32_t word = m_word.load(std::memory_order_acquire);
        return {.keys = FKeySet::fromBits(word & ~summonBit),
            .summon = (word & summonBit) != 0 ? SummonShortcut::taken : SummonShortcut::released};
    }

private:
    static constexpr std::uint32_t summonBit = std::uint32_t{1} << 31;
    static_assert(fKeyCount < 31);

    std::atomic<std::uint32_t> m_word = 0;
};

} // namespace tarvin::x11
