#pragma once

#include "platform/ports/Geometry.h"

#include <optional>

namespace tarvin::macos {

// The system counts points from the bottom left of the primary screen, the ports from its top left. Both ways are the
// same sum, so each function turns a value over and, used again, back.

/// @param primaryHeight of the primary screen's frame
[[nodiscard]] Point flipped(Point point, double primaryHeight) noexcept;
[[nodiscard]] Rect flipped(const Rect& rect, double primaryHeight) noexcept;

/// By what height a pointer position is turned over where the main screen is not known.
inline constexpr double heightWithoutScreen = 1080;

/// The pointer is turned over by the main screen alone, which is the one with the keyboard and need not be the primary.
[[nodiscard]] Point pointerPosition(Point fromBottom, std::optional<double> mainScreenHeight) noexcept;

} // namespace tarvin::macos
