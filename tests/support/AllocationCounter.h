#pragma once

#include <cstdint>

namespace tarvin {

/// How many blocks of memory the calling thread has asked for so far, by whatever road: Qt's containers take theirs
/// from malloc, not from operator new. Linking this replaces the program's malloc, which no sanitizer bears.
[[nodiscard]] std::uint64_t allocationCount() noexcept;

} // namespace tarvin
