#include "studio/keyboard/KeyNavigation.h"

#include <cmath>
#include <limits>

namespace tarvin {

std::size_t liveKeyTowards(const KeyboardGeometry& geometry, std::size_t from, Qt::Key arrow)
{
    const QPointF start = geometry.keycaps[from].center();
    const bool isVertical = arrow == Qt::Key_Up || arrow == Qt::Key_Down;
    const double sign = arrow == Qt::Key_Down || arrow == Qt::Key_Right ? 1 : -1;
    std::size_t best = from;
    double bestDistance = std::numeric_limits<double>::max();
    for (std::size_t index = 0; index < keycapCount; ++index) {
        if (!keycaps[index].key || index == from)
            continue;
        const QPointF way = geometry.keycaps[index].center() - start;
        const bool isSameRow = keycaps[index].row == keycaps[from].row;
        const double forward = sign * (isVertical ? way.y() : way.x());
        if (forward <= 0 || isSameRow == isVertical)
            continue;
        // Going up or down, the next row counts more than a key straight above or below.
        const double distance = isVertical ? forward * 1000 + std::abs(way.x()) : forward;
        if (distance < bestDistance) {
            best = index;
            bestDistance = distance;
        }
    }
    return best;
}

} // namespace tarvin
