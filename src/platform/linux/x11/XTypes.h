#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>

namespace tarvin::x11 {

/// The number of an input device within one server's life; the server gives it again after the device has gone.
using DeviceId = std::uint16_t;

/// An X keycode. Everything from 8 up is a key.
using Keycode = std::uint8_t;
inline constexpr std::size_t keycodeCount = 256;
using KeycodeSet = std::bitset<keycodeCount>;

/// Milliseconds of the server's clock; wraps after 49 days.
using ServerTime = std::uint32_t;

/// The number of a request on our connection; events carry that of the last request before them.
using RequestSequence = std::uint32_t;

/// One or more of the eight real modifiers, in the bits of the X protocol.
using ModifierMask = std::uint8_t;

/// Names one press that was taken from the applications; never given twice, 0 names none.
using PressId = std::uint64_t;

/// One key of one keyboard.
struct PhysicalKey
{
    DeviceId device = 0;
    Keycode keycode = 0;
    friend bool operator==(const PhysicalKey&, const PhysicalKey&) = default;
    friend bool operator<(const PhysicalKey& a, const PhysicalKey& b)
    {
        return a.device != b.device ? a.device < b.device : a.keycode < b.keycode;
    }
};

/// A key event to make with the server's test extension.
enum class FakeMotion : std::uint8_t { press, release };
struct FakeKey
{
    Keycode keycode = 0;
    FakeMotion motion = FakeMotion::press;
    friend bool operator==(const FakeKey&, const FakeKey&) = default;
};

} // namespace tarvin::x11
