#include "studio/TarvinLogoView.h"

#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Shadows.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvin {

namespace {

using palette::electricCyan;
using palette::mintTeal;
using palette::white;

// All as parts of the side, unless told otherwise.
constexpr double plateRadius = 0.26;
constexpr double innerPlateInset = 0.085;
constexpr double innerPlateRadius = 0.2;
constexpr double hairline = 0.8; // points
constexpr double glyphSide = 0.5;
constexpr double glyphShift = 0.012; // down, so that letter and diamond together stand in the middle
constexpr double diamondMiddle = 0.3; // from the top, in the notch above the bar
constexpr double nodeRadius = 0.033;
constexpr double nodeInset = 0.2;
constexpr double glowRadius = 0.28;
constexpr double glowBlur = 0.22;

QLinearGradient diagonal(const QRectF& box)
{
    return {box.topLeft(), box.bottomRight()};
}

void paintPlates(QPainter& painter, const QRectF& square, double side)
{
    QLinearGradient plate = diagonal(square);
    plate.setColorAt(0, Colour{0.14, 0.16, 0.20});
    plate.setColorAt(1, Colour{0.06, 0.07, 0.09});
    painter.fillPath(continuousRectangle(square, side * plateRadius), plate);

    const double rimWidth = std::max(side * 0.035, 1.0);
    QLinearGradient rim = diagonal(square);
    rim.setColorAt(0, mintTeal.at(0.85));
    rim.setColorAt(0.5, electricCyan.at(0.4));
    rim.setColorAt(1, palette::cyberViolet.at(0.3));
    const double half = rimWidth / 2;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QBrush(rim), rimWidth));
    painter.drawPath(continuousRectangle(square.adjusted(half, half, -half, -half), side * plateRadius - half));

    const double inset = side * innerPlateInset;
    const QRectF inner = square.adjusted(inset, inset, -inset, -inset);
    fillPlate(painter, inner, side * innerPlateRadius, Colour{0.05, 0.05, 0.08, 0.92});
    strokePlate(painter, inner, side * innerPlateRadius, hairline, white.at(0.08));
}

void paintGlyph(QPainter& painter, const QRectF& square, double side)
{
    QRectF box(0, 0, side * glyphSide, side * glyphSide);
    box.moveCenter(square.center() + QPointF(0, side * glyphShift));
    QLinearGradient ink = diagonal(box);
    ink.setColorAt(0, mintTeal);
    ink.setColorAt(1, electricCyan);
    QPainterPathStroker stroker;
    stroker.setWidth(std::max(side * 0.075, 1.6));
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    // Filled as one shape, so that no pinhole stays where strokes meet.
    QPainterPath outline = stroker.createStroke(quantumCommandGlyph(box)).simplified();
    outline.setFillRule(Qt::WindingFill);
    painter.fillPath(outline, ink);
}

void paintDiamond(QPainter& painter, const QRectF& square, double side)
{
    QRectF box(0, 0, std::max(side * 0.11, 2.5), std::max(side * 0.14, 3.5));
    box.moveCenter({square.center().x(), square.top() + side * diamondMiddle});
    painter.fillPath(polygonDiamond(box), verticalBrush(box, {white, {0.72, 0.95, 1.0}}));
}

/// The rings in the corners.
void paintCircuitCornerNodes(QPainter& painter, const QRectF& square, double side, const Colour& colour)
{
    const double inset = side * nodeInset;
    const double radius = side * nodeRadius;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour.at(0.65).toQColor(), std::max(side * 0.025, 0.8)));
    for (const double x : {square.left() + inset, square.right() - inset}) {
        for (const double y : {square.top() + inset, square.bottom() - inset})
            painter.drawEllipse(QPointF(x, y), radius, radius);
    }
}

} // namespace

QPainterPath polygonDiamond(const QRectF& box)
{
    QPainterPath path;
    path.moveTo(box.center().x(), box.top());
    path.lineTo(box.right(), box.center().y());
    path.lineTo(box.center().x(), box.bottom());
    path.lineTo(box.left(), box.center().y());
    path.closeSubpath();
    return path;
}

QPainterPath quantumCommandGlyph(const QRectF& box)
{
    const double w = box.width();
    const double h = box.height();
    QPainterPath path;
    path.moveTo(box.left() + 0.14 * w, box.bottom() - 0.04 * h);
    path.lineTo(box.left() + 0.14 * w, box.top() + 0.04 * h);
    path.lineTo(box.center().x(), box.center().y() + 0.1 * h);
    path.lineTo(box.right() - 0.14 * w, box.top() + 0.04 * h);
    path.lineTo(box.right() - 0.14 * w, box.bottom() - 0.04 * h);
    path.moveTo(box.left(), box.top() + 0.38 * h);
    path.lineTo(box.right(), box.top() + 0.38 * h);
    return path;
}

void paintTarvinLogo(QPainter& painter, const QRectF& square, LogoGlow glow)
{
    const double side = square.width();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (glow == LogoGlow::shining) {
        drawShadow(painter, square,
            {.colour = mintTeal.at(0.35), .sigma = side * glowBlur, .cornerRadius = side * glowRadius});
    }
    paintPlates(painter, square, side);
    paintGlyph(painter, square, side);
    paintDiamond(painter, square, side);
    paintCircuitCornerNodes(painter, square, side, electricCyan);
    painter.restore();
}

TarvinLogoView::TarvinLogoView(double size, LogoGlow glow, QWidget* parent)
    : QWidget(parent)
    , m_size(size)
    , m_glow(glow)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

int TarvinLogoView::margin() const
{
    return m_glow == LogoGlow::shining ? static_cast<int>(std::ceil(blurReach(m_size * glowBlur))) : 0;
}

QSize TarvinLogoView::sizeHint() const
{
    const int side = static_cast<int>(std::ceil(m_size)) + 2 * margin();
    return {side, side};
}

void TarvinLogoView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paintTarvinLogo(painter, {static_cast<double>(margin()), static_cast<double>(margin()), m_size, m_size}, m_glow);
}

} // namespace tarvin
