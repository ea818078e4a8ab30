#pragma once

#include <QRectF>

class QPainter;

namespace tarvin {

/// Marks what has the keyboard, just inside the box of the control.
void drawFocusRing(QPainter& painter, const QRectF& box, double radius);

} // namespace tarvin
