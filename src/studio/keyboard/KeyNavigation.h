#pragma once

#include "studio/keyboard/KeyboardGeometry.h"

#include <Qt>

namespace tarvin {

/// The live key that an arrow leads to from another one: the nearest in that direction, rows before distances. Where
/// there is none, the key itself.
/// @param from an index of `keycaps`
[[nodiscard]] std::size_t liveKeyTowards(const KeyboardGeometry& geometry, std::size_t from, Qt::Key arrow);

} // namespace tarvin
