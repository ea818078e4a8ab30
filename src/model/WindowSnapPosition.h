#pragma once

#include <cstdint>

namespace tarvin {

/// Where a window is put on its screen: in one half of it, or over all of it.
enum class WindowSnapPosition : std::uint8_t { left, right, maximize };

} // namespace tarvin
