#include "studio/LabelledSwitch.h"

#include "ui/Plates.h"
#include "ui/Shadows.h"
#include "ui/SwitchControl.h"
#include "ui/TextLine.h"

#include <QPainter>

#include <cmath>

namespace tarvin {

namespace {

constexpr Motion changeMotion = Motion::easeInOut(std::chrono::milliseconds(200));
constexpr double insetLeft = 10;
constexpr double insetRight = 8;
constexpr double spacing = 7;
constexpr double symbolSize = 11;
constexpr double dotSize = 7;
constexpr double dotGlow = 3.5;

} // namespace

LabelledSwitch::LabelledSwitch(const QString& name, const TextStyle& style, double radius, QWidget* parent)
    : QWidget(parent)
    , m_style(style)
    , m_radius(radius)
    , m_change(1, [this] { update(); })
    , m_control(new SwitchControl(name, SwitchControl::smallSize, this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void LabelledSwitch::setLook(const LabelledSwitchLook& look)
{
    if (m_look == look)
        return;
    m_lookBefore = isVisible() ? m_look : look;
    m_look = look;
    m_change.jumpTo(isVisible() ? 0 : 1);
    m_change.animateTo(1, changeMotion);
    updateGeometry();
    update();
}

void LabelledSwitch::setTip(const QString& tip)
{
    setToolTip(tip);
    m_control->setToolTip(tip);
    m_control->setAccessibleDescription(tip);
}

double LabelledSwitch::signWidth() const
{
    return m_look.dot ? dotSize : symbolSize * symbolBoxPerSize;
}

QSize LabelledSwitch::sizeHint() const
{
    const double width = insetLeft + signWidth() + spacing + textWidth(m_look.label, m_style) + spacing
        + SwitchControl::smallSize.width() + insetRight;
    return {static_cast<int>(std::ceil(width)), plateHeight};
}

void LabelledSwitch::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const QSize size = m_control->sizeHint();
    // The control has some room around its track.
    const int right = static_cast<int>(insetRight) - (size.width() - SwitchControl::smallSize.toSize().width()) / 2;
    m_control->setGeometry(QRect(QPoint(width() - right - size.width(), (height() - size.height()) / 2), size));
}

void LabelledSwitch::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF box = rect();
    const auto now = [this](
                         const Colour& before, const Colour& after) { return mixed(before, after, m_change.value()); };
    fillPlate(painter, box, m_radius, now(m_lookBefore.fill, m_look.fill));
    strokePlate(painter, box, m_radius, 1, now(m_lookBefore.stroke, m_look.stroke));
    const QPointF sign(insetLeft + signWidth() / 2, box.center().y());
    if (m_look.dot) {
        const QRectF dot(sign.x() - dotSize / 2, sign.y() - dotSize / 2, dotSize, dotSize);
        if (m_look.isDotShining)
            drawShadow(painter, dot, {.colour = m_look.dot->at(0.7), .sigma = dotGlow, .cornerRadius = dotSize / 2});
        fillPlate(painter, dot, dotSize / 2, now(m_lookBefore.dot.value_or(*m_look.dot), *m_look.dot));
    } else if (m_look.symbol) {
        drawSymbol(
            painter, *m_look.symbol, sign, symbolSize, now(m_lookBefore.symbolColour, m_look.symbolColour).toQColor());
    }
    const double x = insetLeft + signWidth() + spacing;
    drawText(painter, {x, 0, box.width() - x, box.height()}, Qt::AlignLeft, m_look.label, m_style,
        now(m_lookBefore.labelColour, m_look.labelColour));
}

} // namespace tarvin
