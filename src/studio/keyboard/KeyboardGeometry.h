#pragma once

#include "studio/keyboard/Keycaps.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <array>

namespace tarvin {

// Where everything of the drawn keyboard lies, as functions of one number: the width of its container. All in logical
// pixels from the top left corner of the container.

inline constexpr double interKeyGap = 4.5;
inline constexpr double initialContainerWidth = 740;

/// The width of a key of one unit, gaps not included.
[[nodiscard]] double keyUnit(double containerWidth);
/// As wide as that many single keys and the gaps between them.
[[nodiscard]] double keyWidth(double keyUnit, double units);
[[nodiscard]] double keyHeight(double keyUnit);

/// The width to draw with once the container has reported a new one. Widths that are hardly different, or too small to
/// be meant, change nothing.
[[nodiscard]] double followedContainerWidth(double containerWidth, double reported);

struct KeyboardGeometry
{
    double keyUnit = 0;
    double keyHeight = 0;
    QRectF chassis; ///< wider than the container where the keys are at their smallest
    QRectF headerDot;
    QRectF speakerSlot;
    QPointF headerMark; ///< the middle of the symbol
    QRectF well;
    std::array<QRectF, keycapCount> keycaps;
};

[[nodiscard]] KeyboardGeometry keyboardGeometry(double containerWidth);

} // namespace tarvin
