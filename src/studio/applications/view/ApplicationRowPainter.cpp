#include "studio/applications/view/ApplicationRowPainter.h"

#include "ui/FocusRing.h"
#include "ui/Plates.h"
#include "ui/TextLine.h"

#include <QPainter>

namespace tarvin {

namespace {

constexpr double lineGap = 2; // between name and detail

void paintIcon(QPainter& painter, const QRectF& box, const ApplicationRowLook& look, const QPixmap& icon)
{
    if (icon.isNull()) {
        fillPlate(painter, box, look.iconRadius, palette::white.at(0.06));
        drawSymbol(painter, Symbol(u"app.fill"), box.center(), look.iconSize * 0.45, palette::white.at(0.2).toQColor());
        return;
    }
    // As a brush, because only what is filled has smooth corners.
    QBrush brush(icon);
    brush.setTransform(QTransform::fromTranslate(box.left(), box.top()));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    fillPlate(painter, box, look.iconRadius, brush);
}

void paintTexts(QPainter& painter, const QRectF& room, const ApplicationRowLook& look, const ApplicationRowState& row)
{
    const auto line = [&](double top, const QString& text, const TextStyle& style, const Colour& colour) {
        drawText(painter, {room.left(), top, room.width(), lineHeight(style)}, Qt::AlignLeft,
            elidedText(text, style, room.width()), style, colour);
    };
    const double nameHeight = lineHeight(look.name);
    if (!look.detail) {
        line(room.center().y() - nameHeight / 2, row.name, look.name, look.nameColour);
        return;
    }
    const double height = nameHeight + lineGap + lineHeight(*look.detail);
    const double top = room.center().y() - height / 2;
    line(top, row.name, look.name, look.nameColour);
    line(top + nameHeight + lineGap, row.detail, *look.detail, look.detailColour);
}

} // namespace

void paintApplicationRow(
    QPainter& painter, const QRectF& box, const ApplicationRowLook& look, const ApplicationRowState& row)
{
    const Colour fill = row.isChosen ? look.chosenFill : look.fill;
    fillPlate(painter, box, look.radius, row.isMarked ? look.markedFill : fill);
    const double iconSize = look.iconSize;
    const QRectF icon(box.left() + look.inset, box.center().y() - iconSize / 2, iconSize, iconSize);
    paintIcon(painter, icon, look, row.icon);

    double right = box.right() - look.inset;
    const auto sign = row.isChosen && look.chosenSign ? look.chosenSign : look.sign;
    if (sign) {
        const double width = look.signSize * symbolBoxPerSize;
        const Colour colour = row.isMarked || row.isChosen ? look.markedSignColour : look.signColour;
        drawSymbol(painter, *sign, {right - width / 2, box.center().y()}, look.signSize, colour.toQColor());
        right -= width + look.inset;
    }
    const double left = icon.right() + look.iconGap;
    paintTexts(painter, {left, box.top(), right - left, box.height()}, look, row);
    if (row.hasFocus)
        drawFocusRing(painter, box, look.radius);
}

} // namespace tarvin
