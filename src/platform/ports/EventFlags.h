#pragma once

#include <cstdint>

namespace tarvin {

/// The modifier state that a keyboard event carries, in the bit positions of the macOS event flags, which are the
/// program's own on every platform. Right and left modifiers are not told apart here.
enum class EventFlags : std::uint64_t {
    none = 0,
    shift = 0x20000,
    control = 0x40000,
    option = 0x80000,
    command = 0x100000,
    function = 0x800000, ///< the fn key
};

[[nodiscard]] constexpr EventFlags operator|(EventFlags a, EventFlags b) noexcept
{
    return static_cast<EventFlags>(static_cast<std::uint64_t>(a) | static_cast<std::uint64_t>(b));
}

[[nodiscard]] constexpr EventFlags operator&(EventFlags a, EventFlags b) noexcept
{
    return static_cast<EventFlags>(static_cast<std::uint64_t>(a) & static_cast<std::uint64_t>(b));
}

constexpr EventFlags& operator|=(EventFlags& a, EventFlags b) noexcept
{
    return a = a | b;
}

/// Whether every bit of `wanted` is set in `flags`.
[[nodiscard]] constexpr bool containsAll(EventFlags flags, EventFlags wanted) noexcept
{
    return (flags & wanted) == wanted;
}

/// Whether at least one bit of `wanted` is set in `flags`.
[[nodiscard]] constexpr bool containsAny(EventFlags flags, EventFlags wanted) noexcept
{
    return (flags & wanted) != EventFlags::none;
}

} // namespace tarvin
