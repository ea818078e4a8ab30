#pragma once

#include <cstddef>
#include <cstdint>

// The keys without their names: what may be known where there is no Qt.

namespace tarvin {

/// The physical keys that can be customised, in the order that files and lists rely on.
enum class FKey : std::uint8_t {
    f1,
    f2,
    f3,
    f4,
    f5,
    f6,
    f7,
    f8,
    f9,
    f10,
    f11,
    f12,
    capsLock,
    rightOption,
    rightCommand,
    fnGlobe,
    section,
    f13,
    f14,
    f15,
    f16,
    f17,
    f18,
    f19,
};

inline constexpr std::size_t fKeyCount = 24;

/// The position of @p key in the enumeration, from 0.
[[nodiscard]] constexpr std::size_t orderOf(FKey key) noexcept
{
    return static_cast<std::size_t>(key);
}

} // namespace tarvin
