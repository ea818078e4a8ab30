#pragma once

#include "tapd/engine/KeyBits.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>

namespace tarvin::tapd {

/// What is held on one re-emitting device. Several keyboards speak through it, and a key that is held on two of them is
/// down until both let go.
class OutputKeys
{
public:
    /// @return whether the system is to be told
    bool press(std::uint16_t code) { return ++m_holders[code] == 1; }
    /// @return whether the system is to be told
    bool release(std::uint16_t code) { return m_holders[code] > 0 && --m_holders[code] == 0; }
    [[nodiscard]] bool isAnyDown(std::initializer_list<std::uint16_t> codes) const
    {
        return std::ranges::any_of(codes, [this](std::uint16_t code) { return m_holders[code] > 0; });
    }

private:
    std::array<std::uint16_t, KEY_CNT> m_holders{};
};

} // namespace tarvin::tapd
