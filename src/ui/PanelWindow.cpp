#include "ui/PanelWindow.h"

#include "ui/Plates.h"
#include "ui/Shadows.h"

#include <QPainter>
#include <QRegion>

#include <cmath>

namespace tarvin {

namespace {

Qt::WindowFlags flagsFor(PanelFocus focus)
{
    const Qt::WindowFlags flags =
        Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint;
    return focus == PanelFocus::refuses ? flags | Qt::WindowDoesNotAcceptFocus : flags;
}

} // namespace

PanelWindow::PanelWindow(
    const QSize& plateSize, const PanelLook& look, PanelFocus focus, std::function<bool()> hasCompositor)
    : QWidget(nullptr, flagsFor(focus))
    , m_plateSize(plateSize)
    , m_look(look)
    , m_hasCompositor(std::move(hasCompositor))
    , m_opacity(0, [this] {
        setWindowOpacity(m_opacity.value());
        if (m_opacity.value() == 0 && m_opacity.target() == 0 && isVisible()) {
            hide();
            Q_EMIT fadedOut();
        }
    })
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating, focus == PanelFocus::refuses);
    setWindowOpacity(0);
    followCompositor();
}

int PanelWindow::shadowMargin() const
{
    return m_isComposited ? static_cast<int>(std::ceil(blurReach(m_look.shadowSigma) + std::abs(m_look.shadowOffsetY)))
                          : 0;
}

QRect PanelWindow::plate() const
{
    return {QPoint(shadowMargin(), shadowMargin()), m_plateSize};
}

void PanelWindow::movePlate(const QPoint& topLeft)
{
    move(topLeft - plate().topLeft());
}

void PanelWindow::centrePlateIn(const QRectF& frame)
{
    movePlate({static_cast<int>(std::lround(frame.x() + (frame.width() - m_plateSize.width()) / 2)),
        static_cast<int>(std::lround(frame.y() + (frame.height() - m_plateSize.height()) / 2))});
}

void PanelWindow::setPlateSize(const QSize& size)
{
    m_plateSize = size;
    followCompositor();
}

void PanelWindow::followCompositor()
{
    m_isComposited = m_hasCompositor();
    const int margin = shadowMargin();
    setContentsMargins(margin, margin, margin, margin);
    setFixedSize(m_plateSize + QSize(2 * margin, 2 * margin));
}

void PanelWindow::fadeIn(std::chrono::milliseconds duration)
{
    const QPoint corner = pos() + plate().topLeft();
    followCompositor();
    movePlate(corner);
    show();
    raise();
    m_opacity.animateTo(1, Motion::easeInOut(duration));
}

void PanelWindow::fadeOut(std::chrono::milliseconds duration)
{
    m_opacity.animateTo(0, Motion::easeInOut(duration));
}

void PanelWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_isComposited) {
        clearMask();
        return;
    }
    setMask(plateRegion());
}

QRegion PanelWindow::plateRegion() const
{
    QPainterPath path;
    path.addRoundedRect(plate(), m_look.radius, m_look.radius);
    return QRegion(path.toFillPolygon().toPolygon());
}

void PanelWindow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), m_isComposited ? QColor(Qt::transparent) : m_look.fill.at(1).toQColor());
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const QRectF box = plate();
    if (m_isComposited && m_look.shadowSigma > 0) {
        drawShadow(painter, box.translated(0, m_look.shadowOffsetY),
            {.colour = m_look.shadow, .sigma = m_look.shadowSigma, .cornerRadius = m_look.radius});
    }
    fillPlate(painter, box, m_look.radius, m_look.fill);
    strokePlate(painter, box, m_look.radius, m_look.strokeWidth, m_look.stroke);
}

} // namespace tarvin
