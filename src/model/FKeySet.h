#pragma once

#include "model/FKey.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>

namespace tarvin {

/// A set of keys, held in one word so that it can be published between threads as an atomic.
/// Iteration goes in enumeration order.
class FKeySet
{
public:
    class Iterator
    {
    public:
        using value_type = FKey;
        using difference_type = std::ptrdiff_t;
        using iterator_category = std::forward_iterator_tag;
        using pointer = void;
        using reference = FKey;

        constexpr Iterator() noexcept = default;
        constexpr explicit Iterator(std::uint32_t remaining) noexcept
            : m_remaining(remaining)
        { }

        constexpr FKey operator*() const noexcept { return static_cast<FKey>(std::countr_zero(m_remaining)); }
        constexpr Iterator& operator++() noexcept
        {
            m_remaining &= m_remaining - 1;
            return *this;
        }
        constexpr Iterator operator++(int) noexcept
        {
            const Iterator before = *this;
            ++*this;
            return before;
        }
        constexpr bool operator==(const Iterator&) const noexcept = default;

    private:
        std::uint32_t m_remaining = 0;
    };
    using const_iterator = Iterator;
    using value_type = FKey;

    constexpr FKeySet() noexcept = default;
    constexpr FKeySet(std::initializer_list<FKey> keys) noexcept
    {
        for (const FKey key : keys)
            insert(key);
    }

    /// The set with the given word; bits that stand for no key are dropped.
    [[nodiscard]] static constexpr FKeySet fromBits(std::uint32_t bits) noexcept
    {
        FKeySet set;
        set.m_bits = bits & allBits;
        return set;
    }
    [[nodiscard]] static constexpr FKeySet all() noexcept { return fromBits(allBits); }

    /// Bit n stands for the key of order n.
    [[nodiscard]] constexpr std::uint32_t bits() const noexcept { return m_bits; }
    [[nodiscard]] constexpr bool contains(FKey key) const noexcept { return (m_bits & bit(key)) != 0; }
    [[nodiscard]] constexpr bool empty() const noexcept { return m_bits == 0; }
    [[nodiscard]] constexpr std::size_t size() const noexcept
    {
        return static_cast<std::size_t>(std::popcount(m_bits));
    }

    constexpr void insert(FKey key) noexcept { m_bits |= bit(key); }
    constexpr void remove(FKey key) noexcept { m_bits &= ~bit(key); }

    [[nodiscard]] constexpr Iterator begin() const noexcept { return Iterator(m_bits); }
    [[nodiscard]] constexpr Iterator end() const noexcept { return Iterator(); }

    constexpr bool operator==(const FKeySet&) const noexcept = default;

private:
    static constexpr std::uint32_t allBits = (std::uint32_t{1} << fKeyCount) - 1;
    static constexpr std::uint32_t bit(FKey key) noexcept { return std::uint32_t{1} << orderOf(key); }

    std::uint32_t m_bits = 0;
};
static_assert(fKeyCount <= 32);

} // namespace tarvin
