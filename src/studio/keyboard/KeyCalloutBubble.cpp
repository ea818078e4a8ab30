#include "studio/keyboard/KeyCalloutBubble.h"

#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Shadows.h"
#include "ui/Symbols.h"
#include "ui/TextLine.h"

#include <QPainter>

#include <algorithm>

namespace tarvin {

namespace {

constexpr TextStyle text{.size = 10, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr double lineStep = 12.8;
constexpr double dotSize = 4;
constexpr double dotSpacing = 5;
constexpr double insetX = 10;
constexpr double insetY = 6;
constexpr double radius = 7;
constexpr double glowRadius = 4;
constexpr double pointerSize = 8;
/// The outline of the pointer has no room above and below.
constexpr double pointerHeight = 5.6;
constexpr double pointerGap = 0.6;

} // namespace

QRectF KeyCalloutBubble::bubble(const QRectF& key) const
{
    double width = 0;
    for (const QString& line : lines)
        width = std::max(width, textWidth(line, text));
    const QSizeF size(
        dotSize + dotSpacing + width + 2 * insetX, static_cast<double>(lines.size()) * lineStep + 2 * insetY);
    return {QPointF(key.center().x() - size.width() / 2, key.top() - pointerGap - pointerHeight - size.height()), size};
}

QRectF KeyCalloutBubble::reach(const QRectF& key) const
{
    const double glow = blurReach(glowRadius);
    return bubble(key).adjusted(-glow, -glow, glow, glow + pointerHeight);
}

void KeyCalloutBubble::paint(QPainter& painter, const QRectF& key, double opacity) const
{
    const QRectF box = bubble(key);
    painter.save();
    painter.setOpacity(std::clamp(opacity, 0.0, 1.0));
    drawShadow(painter, box, {.colour = palette::mintTeal.at(0.5), .sigma = glowRadius, .cornerRadius = radius});
    drawSymbol(painter, Symbol(u"arrowtriangle.down.fill"), {box.center().x(), box.bottom() + pointerHeight / 2 - 0.3},
        pointerSize, palette::mintTeal.toQColor());
    fillPlate(painter, box, radius, palette::mintTeal);
    double middle = box.top() + insetY + lineStep / 2;
    for (const QString& line : lines) {
        fillPlate(painter, {box.left() + insetX, middle - dotSize / 2, dotSize, dotSize}, dotSize / 2, palette::black);
        drawText(painter, {box.left() + insetX + dotSize + dotSpacing, middle - lineStep / 2, box.width(), lineStep},
            Qt::AlignLeft, line, text, palette::black);
        middle += lineStep;
    }
    painter.restore();
}

} // namespace tarvin
