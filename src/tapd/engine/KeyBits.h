#pragma once

#include <linux/input-event-codes.h>

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tarvin::tapd {

/// One bit per key code of the kernel.
using KeyBits = std::bitset<KEY_CNT>;

/// The bits as the kernel hands them out: eight keys to the byte, the first the least significant.
[[nodiscard]] inline KeyBits keyBitsFromBytes(std::span<const std::uint8_t> bytes)
{
    constexpr std::size_t bitsPerByte = 8;
    KeyBits bits;
    for (std::size_t code = 0; code < bits.size() && code / bitsPerByte < bytes.size(); ++code)
        bits[code] = (bytes[code / bitsPerByte] >> (code % bitsPerByte) & 1U) != 0;
    return bits;
}

} // namespace tarvin::tapd
