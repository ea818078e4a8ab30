#pragma once

#include "studio/keyboard/KeyboardGeometry.h"

class QPainter;

namespace tarvin {

/// The case that the keys stand in, with its shadow.
/// @param backlight level from 0 to 1
void paintChassis(QPainter& painter, const KeyboardGeometry& geometry, double backlight);

inline constexpr double chassisShadowRadius = 26;
inline constexpr double chassisShadowShift = 14;

} // namespace tarvin
