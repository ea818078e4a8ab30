#include "ui/SwitchControl.h"

#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Shadows.h"

#include <QPainter>

namespace tarvin {

namespace {

constexpr auto slide = Motion::easeInOut(std::chrono::milliseconds(200));
constexpr double knobInset = 1.5;
constexpr double ringRoom = 2; // around the track, for the focus ring

} // namespace

SwitchControl::SwitchControl(const QString& name, QSizeF size, QWidget* parent)
    : PaintedButton(parent)
    , m_size(size)
    , m_position(0, [this] { update(); })
{
    setCheckable(true);
    setAccessibleName(name);
    connect(this, &QAbstractButton::toggled, this, [this](bool isOn) {
        if (isVisible())
            m_position.animateTo(isOn ? 1 : 0, slide);
        else
            m_position.jumpTo(isOn ? 1 : 0);
    });
}

void SwitchControl::setOpacity(double opacity)
{
    m_opacity = opacity;
    update();
}

QSize SwitchControl::sizeHint() const
{
    return (m_size + QSizeF(2 * ringRoom, 2 * ringRoom)).toSize();
}

void SwitchControl::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setOpacity(m_opacity);
    QRectF track(QPointF(), m_size);
    track.moveCenter(QRectF(rect()).center());
    const double radius = track.height() / 2;
    const double position = m_position.value();
    fillPlate(painter, track, radius, palette::white.at(0.16 + 0.04 * hover()));
    fillPlate(painter, track, radius, palette::mintTeal.at(position));
    const double diameter = track.height() - 2 * knobInset;
    const QRectF knob(track.left() + knobInset + position * (track.width() - track.height()), track.top() + knobInset,
        diameter, diameter);
    drawShadow(painter, knob.translated(0, 0.5),
        {.colour = palette::black.at(0.3), .sigma = 0.8, .cornerRadius = diameter / 2});
    fillPlate(painter, knob, diameter / 2, palette::white.at(isEnabled() ? 0.83 + 0.14 * position : 0.5));
    drawFocusRing(painter, track.adjusted(-ringRoom, -ringRoom, ringRoom, ringRoom), radius + ringRoom);
}

} // namespace tarvin
