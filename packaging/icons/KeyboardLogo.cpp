// The mark of a build without the drawn one: a key with the accent colour's light on it.

#include "Logo.h"

#include <QLinearGradient>
#include <QPainter>

namespace tarvin {

void drawLogo(QPainter& painter, const QRectF& square)
{
    const qreal unit = square.width() / 24.0;
    const QRectF plate = square.adjusted(unit, unit, -unit, -unit);
    QLinearGradient dark(plate.topLeft(), plate.bottomLeft());
    dark.setColorAt(0.0, QColor(44, 46, 50));
    dark.setColorAt(1.0, QColor(20, 20, 23));
    painter.setPen(QPen(QColor::fromRgbF(0.0F, 0.94F, 0.71F, 0.55F), 0.5 * unit));
    painter.setBrush(dark);
    painter.drawRoundedRect(plate, 5.0 * unit, 5.0 * unit);
    painter.setPen(QPen(QColor::fromRgbF(0.0F, 0.94F, 0.71F), 2.4 * unit, Qt::SolidLine, Qt::RoundCap));
    const QPointF centre = square.center();
    painter.drawLine(centre + QPointF(-5.0, -4.5) * unit, centre + QPointF(5.0, -4.5) * unit);
    painter.drawLine(centre + QPointF(0.0, -4.5) * unit, centre + QPointF(0.0, 5.5) * unit);
}

} // namespace tarvin
