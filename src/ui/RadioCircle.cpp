#include "ui/RadioCircle.h"

#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Shadows.h"

#include <algorithm>

namespace tarvin {

namespace {

constexpr double lineWidth = 1.8;
constexpr double discSize = 8;
constexpr double glow = 3;

QRectF around(const QPointF& centre, double size)
{
    return {centre.x() - size / 2, centre.y() - size / 2, size, size};
}

} // namespace

void drawRadioCircle(QPainter& painter, const QPointF& centre, double chosen)
{
    strokePlate(painter, around(centre, radioCircleSize), radioCircleSize / 2, lineWidth,
        mixed(palette::white.at(0.25), palette::mintTeal, chosen));
    if (chosen <= 0)
        return;
    const double size = discSize * std::min(chosen, 1.1);
    const QRectF disc = around(centre, size);
    const double opacity = std::min(chosen, 1.0);
    drawShadow(painter, disc, {.colour = palette::mintTeal.at(0.8 * opacity), .sigma = glow, .cornerRadius = size / 2});
    fillPlate(painter, disc, size / 2, palette::mintTeal.at(opacity));
}

} // namespace tarvin
