#include "studio/keyboard/KeycapContentPainter.h"

#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Shadows.h"
#include "ui/TextLine.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace tarvin {

namespace {

/// Lines on a keycap stand closer than elsewhere, as high as the type is.
constexpr double lineHeightPerSize = 1.0;
constexpr double stackSpacing = 2;
constexpr double subLabelSpacing = 1;
constexpr double contentInset = 6;
constexpr double specialInset = 4;
/// Stacks with an icon stand a little lower than the middle, clear of the corner marker.
constexpr double iconStackShift = 0.8;
constexpr double markerSize = 4.5;
/// Of the size that a title on Caps Lock should have.
constexpr double smallestTitle = 0.8;

struct Line
{
    QString text;
    TextStyle style;
    Colour colour;
};

QRectF around(const QPointF& middle, double diameter)
{
    return {middle.x() - diameter / 2, middle.y() - diameter / 2, diameter, diameter};
}

Qt::Alignment horizontal(KeycapAlignment alignment)
{
    switch (alignment) {
    case KeycapAlignment::centre:
        return Qt::AlignHCenter;
    case KeycapAlignment::leading:
    case KeycapAlignment::topLeading:
        return Qt::AlignLeft;
    case KeycapAlignment::trailing:
        return Qt::AlignRight;
    }
    Q_UNREACHABLE();
}

/// A line around a height.
void drawLine(QPainter& painter, const QRectF& room, double middle, Qt::Alignment alignment, const Line& line)
{
    const double height = line.style.size * lineHeightPerSize;
    drawText(painter, {room.left(), middle - height / 2, room.width(), height}, alignment, line.text, line.style,
        line.colour);
}

/// The icon above the label, at one side or in the middle.
void drawIconStack(QPainter& painter, const QRectF& room, KeycapAlignment alignment, Symbol icon, double iconSize,
    const KeycapLook& look, const Line& label)
{
    const double iconHeight = iconSize * symbolBoxPerSize;
    const double labelHeight = label.style.size * lineHeightPerSize;
    const double top = room.center().y() - (iconHeight + stackSpacing + labelHeight) / 2 + iconStackShift;
    double x = room.center().x();
    if (horizontal(alignment) == Qt::AlignLeft)
        x = room.left() + iconHeight / 2;
    else if (horizontal(alignment) == Qt::AlignRight)
        x = room.right() - iconHeight / 2;
    const QPointF middle(x, top + iconHeight / 2);
    drawSymbolShadow(painter, icon, middle, iconSize, std::max(look.iconShadowRadius, 0.1), look.iconShadow);
    drawSymbol(painter, icon, middle, iconSize, look.icon);
    drawLine(painter, room, top + iconHeight + stackSpacing + labelHeight / 2, horizontal(alignment), label);
}

void paintPlainContent(QPainter& painter, const Keycap& keycap, const QRectF& face, const KeycapLook& look,
    const KeycapContent& content, double sideInset)
{
    const double h = face.height();
    const auto style = [](double size, TextWeight weight) { return TextStyle{.size = size, .weight = weight}; };
    if (!content.subLabel.isEmpty()) {
        const Line above{content.subLabel, style(std::max(h * 0.22, 8.0), TextWeight::regular), look.subLabel};
        const Line below{content.label, style(std::max(h * 0.28, 9.0), TextWeight::medium), look.label};
        const double aboveHeight = above.style.size * lineHeightPerSize;
        const double belowHeight = below.style.size * lineHeightPerSize;
        const double top = face.center().y() - (aboveHeight + subLabelSpacing + belowHeight) / 2;
        drawLine(painter, face, top + aboveHeight / 2, Qt::AlignHCenter, above);
        drawLine(painter, face, top + aboveHeight + subLabelSpacing + belowHeight / 2, Qt::AlignHCenter, below);
        return;
    }
    if (content.icon) {
        const Line label{content.label, style(std::max(h * 0.2, 7.5), TextWeight::medium), look.label};
        drawIconStack(painter, face.adjusted(sideInset, 0, -sideInset, 0), keycap.alignment, *content.icon,
            std::max(h * 0.26, 8.5), look, label);
        return;
    }
    // esc alone has a size of its own.
    const bool isAtTop = keycap.alignment == KeycapAlignment::topLeading;
    const Line label{content.label,
        style(isAtTop ? std::max(h * 0.25, 8.0) : std::max(h * 0.32, 9.5), TextWeight::medium), look.label};
    const double inset = keycap.alignment == KeycapAlignment::centre ? 0 : contentInset;
    const QRectF room = face.adjusted(inset, inset, -inset, -inset);
    const double middle = isAtTop ? room.top() + label.style.size * 1.2 / 2 : room.center().y();
    drawLine(painter, room, middle, horizontal(keycap.alignment), label);
}

void paintNub(QPainter& painter, const QRectF& face, const KeycapLook& look)
{
    const QPointF middle = face.center() + QPointF(0, face.height() * 0.24);
    const QRectF nub(middle.x() - 4, middle.y() - 0.75, 8, 1.5);
    drawShadow(painter, nub.translated(0, 1), {.colour = palette::black.at(0.8), .sigma = 1, .cornerRadius = 0.75});
    fillPlate(painter, nub, 0.75, look.nub);
}

void paintMarker(QPainter& painter, const QPointF& middle, const KeycapLook& look)
{
    const QRectF disc = around(middle, markerSize);
    drawShadow(painter, disc, {.colour = look.markerGlow, .sigma = 3.5, .cornerRadius = markerSize / 2});
    fillPlate(painter, disc, markerSize / 2, look.markerDisc);
    // The line is inset by half its width.
    strokePlate(painter, disc, markerSize / 2, 1, look.markerRing);
}

QPointF cornerMarker(const QRectF& face)
{
    return {face.right() - 5 - markerSize / 2, face.top() + 4.5 + markerSize / 2};
}

void paintFunctionContent(QPainter& painter, const QRectF& face, const KeycapLook& look, const KeycapContent& content)
{
    const double h = face.height();
    const Line label{content.label, {.size = std::max(h * 0.21, 7.5), .weight = TextWeight::bold}, look.label};
    if (content.icon)
        drawIconStack(painter, face, KeycapAlignment::centre, *content.icon, std::max(h * 0.28, 9.0), look, label);
    paintMarker(painter, face.center() + QPointF(face.width() * 0.3, h * -0.28), look);
}

void paintCapsLockContent(QPainter& painter, const QRectF& face, const KeycapLook& look, const KeycapContent& content)
{
    fillPlate(painter, {face.left() + 7, face.top() + 6, 4, 4}, 2, look.lamp);

    const double room = face.width() - 2 * contentInset;
    TextStyle style{.size = std::max(face.height() * 0.2, 7.0),
        .weight = content.isCustomized ? TextWeight::bold : TextWeight::medium};
    const double needed = textWidth(content.label, style);
    if (needed > room)
        style.size *= std::max(room / needed, smallestTitle);
    const QRectF line(
        face.left() + contentInset, face.bottom() - contentInset - style.size * 1.2, room, style.size * 1.2);
    drawText(painter, line, Qt::AlignLeft, elidedText(content.label, style, room), style, look.label);

    if (content.isCustomized && content.icon) {
        constexpr double iconSize = 8.5;
        constexpr double half = iconSize * symbolBoxPerSize / 2;
        drawSymbol(painter, *content.icon, {face.right() - 6.5 - half, face.top() + 5.5 + half}, iconSize, look.icon);
    } else {
        paintMarker(painter, cornerMarker(face), look);
    }
}

void paintTouchIDContent(QPainter& painter, const QRectF& face)
{
    const double h = face.height();
    const QRectF ring = around(face.center(), std::max(h * 0.45, 14.0));
    QLinearGradient light(ring.topLeft(), ring.bottomRight());
    light.setColorAt(0, palette::white.at(0.4));
    light.setColorAt(1, palette::white.at(0.12));
    const QRectF disc = around(face.center(), std::max(h * 0.36, 11.0));
    fillPlate(painter, disc, disc.width() / 2, palette::panelBackground);
    strokePlate(painter, ring, ring.width() / 2, 1.3, QBrush(light));
}

} // namespace

void paintKeycapContent(
    QPainter& painter, const Keycap& keycap, const QRectF& face, const KeycapLook& look, const KeycapContent& content)
{
    switch (keycap.kind) {
    case KeycapKind::standard:
        paintPlainContent(painter, keycap, face, look, content, contentInset);
        if (hasTactileNub(keycap))
            paintNub(painter, face, look);
        return;
    case KeycapKind::special:
        paintPlainContent(painter, keycap, face, look, content, specialInset);
        paintMarker(painter, cornerMarker(face), look);
        return;
    case KeycapKind::heroFunction:
        paintFunctionContent(painter, face, look, content);
        return;
    case KeycapKind::capsLock:
        paintCapsLockContent(painter, face, look, content);
        return;
    case KeycapKind::arrow:
        drawSymbol(painter, *content.icon, face.center(), std::max(face.height() * 0.44, 8.0), look.icon);
        return;
    case KeycapKind::touchID:
        paintTouchIDContent(painter, face);
        return;
    case KeycapKind::spacebar:
        return;
    }
    Q_UNREACHABLE();
}

} // namespace tarvin
