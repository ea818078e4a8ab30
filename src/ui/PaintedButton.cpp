#include "ui/PaintedButton.h"

#include "ui/FocusRing.h"

#include <QEvent>
#include <QKeyEvent>

namespace tarvin {

namespace {

constexpr auto hoverMotion = Motion::easeInOut(std::chrono::milliseconds(120));

} // namespace

PaintedButton::PaintedButton(QWidget* parent)
    : QAbstractButton(parent)
    , m_hover(0, [this] { update(); })
{
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PaintedButton::setTip(const QString& tip)
{
    setToolTip(tip);
    if (text().isEmpty())
        setAccessibleName(tip);
}

void PaintedButton::drawFocusRing(QPainter& painter, const QRectF& box, double radius) const
{
    if (hasFocus())
        tarvin::drawFocusRing(painter, box, radius);
}

bool PaintedButton::event(QEvent* event)
{
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave)
        m_hover.animateTo(event->type() == QEvent::HoverEnter ? 1 : 0, hoverMotion);
    return QAbstractButton::event(event);
}

void PaintedButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

} // namespace tarvin
