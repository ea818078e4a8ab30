#pragma once

#include "model/FKeyOrder.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace tarvin {

namespace detail {

/// One raw number by which a key press can reach the program, and the key it means.
struct RawKeyRow
{
    std::uint32_t number;
    FKey key;
};

/// Every accepted virtual key code. A key has several where keyboards of different years report
/// its top-row function under a code of its own.
inline constexpr auto keyCodeRows = std::to_array<RawKeyRow>({
    {122, FKey::f1},
    {145, FKey::f1},
    {120, FKey::f2},
    {144, FKey::f2},
    {99, FKey::f3},
    {160, FKey::f3},
    {118, FKey::f4},
    {131, FKey::f4},
    {177, FKey::f4},
    {96, FKey::f5},
    {127, FKey::f5},
    {178, FKey::f5},
    {97, FKey::f6},
    {180, FKey::f6},
    {98, FKey::f7},
    {130, FKey::f7},
    {100, FKey::f8},
    {133, FKey::f8},
    {101, FKey::f9},
    {132, FKey::f9},
    {109, FKey::f10},
    {146, FKey::f10},
    {103, FKey::f11},
    {147, FKey::f11},
    {111, FKey::f12},
    {148, FKey::f12},
    {57, FKey::capsLock},
    {61, FKey::rightOption},
    {54, FKey::rightCommand},
    {63, FKey::fnGlobe},
    {179, FKey::fnGlobe},
    {10, FKey::section},
    {105, FKey::f13},
    {107, FKey::f14},
    {113, FKey::f15},
    {106, FKey::f16},
    {64, FKey::f17},
    {79, FKey::f18},
    {80, FKey::f19},
});

/// The NX key types of system-defined events, each with the key that carries the function on the top row.
inline constexpr auto systemKeyTypeRows = std::to_array<RawKeyRow>({
    {0, FKey::f12}, // sound up
    {1, FKey::f11}, // sound down
    {2, FKey::f2}, // brightness up
    {3, FKey::f1}, // brightness down
    {7, FKey::f10}, // mute
    {16, FKey::f8}, // play
    {17, FKey::f9}, // next
    {18, FKey::f7}, // previous
    {21, FKey::f6}, // keyboard illumination up
    {22, FKey::f5}, // keyboard illumination down
});

/// HID usages whatever their page. The Globe key is 3 on the vendor pages and 669 on the consumer page.
inline constexpr auto hidUsageRows = std::to_array<RawKeyRow>({
    {3, FKey::fnGlobe},
    {50, FKey::section},
    {57, FKey::capsLock},
    {58, FKey::f1},
    {59, FKey::f2},
    {60, FKey::f3},
    {61, FKey::f4},
    {62, FKey::f5},
    {63, FKey::f6},
    {64, FKey::f7},
    {65, FKey::f8},
    {66, FKey::f9},
    {67, FKey::f10},
    {68, FKey::f11},
    {69, FKey::f12},
    {100, FKey::section},
    {104, FKey::f13},
    {105, FKey::f14},
    {106, FKey::f15},
    {107, FKey::f16},
    {108, FKey::f17},
    {109, FKey::f18},
    {110, FKey::f19},
    {230, FKey::rightOption},
    {231, FKey::rightCommand},
    {669, FKey::fnGlobe},
});

inline constexpr std::uint32_t vendorTopRowPage = 0xFF01;
inline constexpr auto vendorTopRowRows = std::to_array<RawKeyRow>({
    {3, FKey::fnGlobe},
    {4, FKey::f3},
    {16, FKey::f3},
    {32, FKey::f3},
    {33, FKey::f4},
    {48, FKey::f4},
    {49, FKey::f5},
    {207, FKey::f5},
    {47, FKey::f6},
    {50, FKey::f6},
});

inline constexpr std::uint32_t consumerPage = 0x0C;
inline constexpr auto consumerRows = std::to_array<RawKeyRow>({
    {111, FKey::f1},
    {112, FKey::f2},
    {182, FKey::f7},
    {176, FKey::f8},
    {205, FKey::f8},
    {181, FKey::f9},
    {226, FKey::f10},
    {234, FKey::f11},
    {233, FKey::f12},
    {669, FKey::fnGlobe},
});

[[nodiscard]] constexpr std::optional<FKey> findByNumber(const auto& rows, std::uint32_t number) noexcept
{
    for (const RawKeyRow& row : rows) {
        if (row.number == number)
            return row.key;
    }
    return std::nullopt;
}

[[nodiscard]] constexpr bool numbersAreUnique(const auto& rows) noexcept
{
    for (auto first = rows.begin(); first != rows.end(); ++first) {
        for (auto second = first + 1; second != rows.end(); ++second) {
            if (first->number == second->number)
                return false;
        }
    }
    return true;
}
static_assert(numbersAreUnique(keyCodeRows));
static_assert(numbersAreUnique(systemKeyTypeRows));
static_assert(numbersAreUnique(hidUsageRows));
static_assert(numbersAreUnique(vendorTopRowRows));
static_assert(numbersAreUnique(consumerRows));

inline constexpr std::size_t keyCodeTableSize = 256;

inline constexpr auto noFKey = static_cast<FKey>(fKeyCount);

/// keyCodeRows laid out by code, because every keystroke of the session is looked up. Plain keys instead of optional
/// ones, which gcc 12 can't read when another table is made from this one.
inline constexpr auto fKeyByKeyCode = [] {
    std::array<FKey, keyCodeTableSize> table{};
    table.fill(noFKey);
    for (const RawKeyRow& row : keyCodeRows)
        table[row.number] = row.key;
    return table;
}();

} // namespace detail

/// The key that the virtual key code of a key or flags-changed event means. The left-hand
/// modifiers are not keys of this vocabulary.
[[nodiscard]] constexpr std::optional<FKey> fromKeyCode(std::uint16_t keyCode) noexcept
{
    if (keyCode >= detail::keyCodeTableSize || detail::fKeyByKeyCode[keyCode] == detail::noFKey)
        return std::nullopt;
    return detail::fKeyByKeyCode[keyCode];
}

/// The key that carries the function of a system-defined media key event on the top row.
/// @param keyType the NX key type of the event
[[nodiscard]] constexpr std::optional<FKey> fromSystemKeyType(int keyType) noexcept
{
    return detail::findByNumber(detail::systemKeyTypeRows, static_cast<std::uint32_t>(keyType));
}

/// The key that a HID usage means when its page is not looked at.
[[nodiscard]] constexpr std::optional<FKey> fromHidUsage(std::uint32_t usage) noexcept
{
    return detail::findByNumber(detail::hidUsageRows, usage);
}

/// The key that a HID usage means on its page. A usage that the vendor's and the consumer page do
/// not name, and every usage of another page, is decided by its number alone.
[[nodiscard]] constexpr std::optional<FKey> fromPageUsage(std::uint32_t page, std::uint32_t usage) noexcept
{
    std::optional<FKey> key;
    if (page == detail::vendorTopRowPage)
        key = detail::findByNumber(detail::vendorTopRowRows, usage);
    else if (page == detail::consumerPage)
        key = detail::findByNumber(detail::consumerRows, usage);
    return key ? key : fromHidUsage(usage);
}

} // namespace tarvin
