#pragma once

#include "model/WindowSnapPosition.h"
#include "platform/ports/Geometry.h"

namespace tarvin {

class Screens;

/// The part of the window's screen that windows may fill. Its screen is the one with its centre, else the one with its
/// top left corner, else the main one, else the first. An empty rectangle where there is no screen at all.
[[nodiscard]] Rect visibleFrameFor(const Screens& screens, const Rect& window);

/// What the position makes of the visible frame.
[[nodiscard]] Rect snapFrame(WindowSnapPosition position, const Rect& visibleFrame) noexcept;

/// Whether the window fills the visible frame so closely that nobody would see a difference: less than 16 points in
/// each of its four values.
[[nodiscard]] bool fills(const Rect& window, const Rect& visibleFrame) noexcept;

} // namespace tarvin
