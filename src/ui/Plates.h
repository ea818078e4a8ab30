#pragma once

#include "ui/Colour.h"

#include <QBrush>
#include <QPainterPath>
#include <QRectF>

class QPainter;

namespace tarvin {

/// A rounded rectangle whose corners begin gently: the curvature grows and falls instead of jumping. Where the sides
/// are too short for that, the corners get tighter.
[[nodiscard]] QPainterPath continuousRectangle(const QRectF& box, double radius);

/// A gradient over the height of the box.
[[nodiscard]] QBrush verticalBrush(const QRectF& box, const Gradient& gradient);

// Rounded rectangles, smooth at the edge whatever the painter is set to.

void fillPlate(QPainter& painter, const QRectF& box, double radius, const QBrush& brush);
void fillPlate(QPainter& painter, const QRectF& box, double radius, const Colour& colour);
/// The stroke lies wholly within the box.
void strokePlate(QPainter& painter, const QRectF& box, double radius, double lineWidth, const QBrush& brush);
void strokePlate(QPainter& painter, const QRectF& box, double radius, double lineWidth, const Colour& colour);

// The same with corners that begin gently.

void fillContinuous(QPainter& painter, const QRectF& box, double radius, const Colour& colour);
/// The stroke lies wholly within the box.
void strokeContinuous(QPainter& painter, const QRectF& box, double radius, double lineWidth, const Colour& colour);

/// Height 1, from left to right.
void drawHairline(QPainter& painter, double left, double right, double y, const Colour& colour);

} // namespace tarvin
