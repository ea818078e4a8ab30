#include "ui/Pill.h"

#include "ui/Plates.h"
#include "ui/TextLine.h"

namespace tarvin {

namespace {

double width(const Pill& pill)
{
    double sum = 0;
    for (const QChar character : pill.text)
        sum += textWidth(character, pill.style) + pill.letterSpacing;
    return pill.letterSpacing == 0 ? textWidth(pill.text, pill.style) : sum - pill.letterSpacing;
}

} // namespace

QSizeF Pill::size() const
{
    return {width(*this) + 2 * insetX, lineHeight(style) + 2 * insetY};
}

void drawPill(QPainter& painter, const QPointF& topLeft, const Pill& pill)
{
    const QRectF box(topLeft, pill.size());
    fillPlate(painter, box, pill.radius, pill.fill);
    if (pill.letterSpacing == 0) {
        drawText(painter, box, Qt::AlignHCenter, pill.text, pill.style, pill.textColour);
        return;
    }
    double x = box.left() + pill.insetX;
    for (const QChar character : pill.text) {
        drawText(
            painter, {x, box.top(), box.width(), box.height()}, Qt::AlignLeft, character, pill.style, pill.textColour);
        x += textWidth(character, pill.style) + pill.letterSpacing;
    }
}

} // namespace tarvin
