#include "studio/keyboard/ChassisPainter.h"

#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Shadows.h"

#include <QLinearGradient>
#include <QPainter>

namespace tarvin {

namespace {

using palette::black;
using palette::white;

constexpr double chassisRadius = 18;
constexpr double wellRadius = 14;
constexpr double wellShadeHeight = 7;
constexpr Colour wellFill{0.05, 0.05, 0.06};

QBrush threeStops(const QRectF& box, const Colour& top, const Colour& middle, const Colour& bottom)
{
    QLinearGradient brush(box.topLeft(), box.bottomLeft());
    brush.setColorAt(0, top);
    brush.setColorAt(0.5, middle);
    brush.setColorAt(1, bottom);
    return brush;
}

void paintHeader(QPainter& painter, const KeyboardGeometry& geometry)
{
    fillPlate(painter, geometry.headerDot, geometry.headerDot.height() / 2, white.at(0.12));
    const QRectF& slot = geometry.speakerSlot;
    fillPlate(painter, slot, slot.height() / 2, black.at(0.65));
    strokePlate(painter, slot, slot.height() / 2, 0.6, verticalBrush(slot, {white.at(0.12), white.at(0.03)}));
    drawSymbol(painter, Symbol(u"applelogo"), geometry.headerMark, 11, white.at(0.28).toQColor());
}

void paintWell(QPainter& painter, const QRectF& well, double backlight)
{
    fillPlate(painter, well, wellRadius, wellFill);
    if (backlight > 0.05)
        fillPlate(painter, well, wellRadius, white.at(backlight * 0.028));
    painter.save();
    QPainterPath outline;
    outline.addRoundedRect(well, wellRadius, wellRadius);
    painter.setClipPath(outline, Qt::IntersectClip);
    const QRectF shade(well.left(), well.top(), well.width(), wellShadeHeight);
    painter.fillRect(shade, verticalBrush(shade, {black.at(0.75), black.at(0)}));
    painter.restore();
    strokePlate(painter, well, wellRadius, 1.5, threeStops(well, black.at(0.92), black.at(0.5), white.at(0.05)));
}

} // namespace

void paintChassis(QPainter& painter, const KeyboardGeometry& geometry, double backlight)
{
    const QRectF& chassis = geometry.chassis;
    drawShadow(painter, chassis.translated(0, chassisShadowShift),
        {.colour = black.at(0.65), .sigma = chassisShadowRadius, .cornerRadius = chassisRadius});
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(continuousRectangle(chassis, chassisRadius),
        threeStops(chassis, {0.16, 0.17, 0.19}, {0.11, 0.12, 0.14}, {0.09, 0.10, 0.11}));
    painter.setPen(QPen(threeStops(chassis, white.at(0.24), white.at(0.08), white.at(0.02)), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(continuousRectangle(chassis.adjusted(0.5, 0.5, -0.5, -0.5), chassisRadius - 0.5));
    paintHeader(painter, geometry);
    paintWell(painter, geometry.well, backlight);
}

} // namespace tarvin
