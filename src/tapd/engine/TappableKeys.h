#pragma once

#include "model/FKeyOrder.h"
#include "platform/keycodes/KeyCodeTable.h"

#include <linux/input-event-codes.h>

#include <array>
#include <cstdint>
#include <optional>

namespace tarvin::tapd {

namespace detail {

inline constexpr std::uint8_t notTappable = 0xFF;

/// The table laid out by key code, because every key event is looked up.
inline constexpr auto tappableKeyByCode = [] {
    std::array<std::uint8_t, KEY_CNT> byCode{};
    byCode.fill(notTappable);
    for (const KeyCodeRow& row : keyCodeTable) {
        if (const auto key = fKeyOf(row))
            byCode[row.evdevCode] = static_cast<std::uint8_t>(*key);
    }
    return byCode;
}();

} // namespace detail

/// The order of the customisable key with this key code. Other keys are never taken and nobody is told of them.
[[nodiscard]] constexpr std::optional<std::uint8_t> tappableKey(std::uint16_t code) noexcept
{
    if (code >= detail::tappableKeyByCode.size() || detail::tappableKeyByCode[code] == detail::notTappable)
        return std::nullopt;
    return detail::tappableKeyByCode[code];
}

/// The key of the summon shortcut. It is taken only while Option and Command are held.
inline constexpr std::uint16_t summonCode = KEY_K;
static_assert(keyRowOfEvdevCode(summonCode)->code == 40);
static_assert(!tappableKey(summonCode));

} // namespace tarvin::tapd
