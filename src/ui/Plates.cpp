#include "ui/Plates.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <array>

namespace tarvin {

namespace {

/// How far along its sides a corner of radius 1 reaches, and the three cubic curves that it is made of, from one side
/// to the other: two handles and an end each, measured from the corner. The middle one is nearly an arc.
constexpr double cornerReach = 1.5287;
struct CornerPoint
{
    double along;
    double across;
};
constexpr auto corner = std::to_array<CornerPoint>({
    {1.0885, 0.0},
    {0.8684, 0.0},
    {0.6315, 0.0749},
    {0.3728, 0.1691},
    {0.1691, 0.3728},
    {0.0749, 0.6315},
    {0.0, 0.8684},
    {0.0, 1.0885},
    {0.0, 1.5287},
});

/// @param along the direction back along the side that leads to the corner
/// @param across the direction of the side that leaves it
void addCorner(QPainterPath& path, const QPointF& at, const QPointF& along, const QPointF& across, double radius)
{
    const auto place = [&](const CornerPoint& point) {
        return at + along * (point.along * radius) + across * (point.across * radius);
    };
    path.lineTo(at + along * (cornerReach * radius));
    for (std::size_t curve = 0; curve < corner.size(); curve += 3)
        path.cubicTo(place(corner[curve]), place(corner[curve + 1]), place(corner[curve + 2]));
}

} // namespace

QPainterPath continuousRectangle(const QRectF& box, double radius)
{
    radius = std::min(radius, std::min(box.width(), box.height()) / 2 / cornerReach);
    const QPointF right(1, 0);
    const QPointF down(0, 1);
    QPainterPath path;
    path.moveTo(box.left() + cornerReach * radius, box.top());
    addCorner(path, box.topRight(), -right, down, radius);
    addCorner(path, box.bottomRight(), -down, -right, radius);
    addCorner(path, box.bottomLeft(), right, -down, radius);
    addCorner(path, box.topLeft(), down, right, radius);
    path.closeSubpath();
    return path;
}

QBrush verticalBrush(const QRectF& box, const Gradient& gradient)
{
    QLinearGradient brush(box.topLeft(), box.bottomLeft());
    brush.setColorAt(0, gradient.top);
    brush.setColorAt(1, gradient.bottom);
    return brush;
}

void fillPlate(QPainter& painter, const QRectF& box, double radius, const QBrush& brush)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(box, radius, radius);
}

void fillPlate(QPainter& painter, const QRectF& box, double radius, const Colour& colour)
{
    fillPlate(painter, box, radius, QBrush(colour.toQColor()));
}

void strokePlate(QPainter& painter, const QRectF& box, double radius, double lineWidth, const QBrush& brush)
{
    const double inset = lineWidth / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(brush, lineWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
}

void strokePlate(QPainter& painter, const QRectF& box, double radius, double lineWidth, const Colour& colour)
{
    strokePlate(painter, box, radius, lineWidth, QBrush(colour.toQColor()));
}

void fillContinuous(QPainter& painter, const QRectF& box, double radius, const Colour& colour)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(continuousRectangle(box, radius), colour.toQColor());
}

void strokeContinuous(QPainter& painter, const QRectF& box, double radius, double lineWidth, const Colour& colour)
{
    const double inset = lineWidth / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(continuousRectangle(box.adjusted(inset, inset, -inset, -inset), radius - inset),
        QPen(colour.toQColor(), lineWidth));
}

void drawHairline(QPainter& painter, double left, double right, double y, const Colour& colour)
{
    painter.fillRect(QRectF(left, y, right - left, 1), colour.toQColor());
}

} // namespace tarvin
