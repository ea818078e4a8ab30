#pragma once

class QPainter;
class QPointF;

namespace tarvin {

/// The marker of what can be chosen, one of several: a ring, with a shining disc in it while it is chosen.
inline constexpr double radioCircleSize = 16;

/// @param chosen from 0, a ring, to 1, chosen; between them on the way
void drawRadioCircle(QPainter& painter, const QPointF& centre, double chosen);

} // namespace tarvin
