#include "studio/picker/view/Chip.h"

#include "ui/Plates.h"
#include "ui/TextLabel.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvin {

Chip::Chip(const Pill& look, QWidget* parent)
    : QWidget(parent)
    , m_look(look)
    , m_label(new TextLabel(look.text, look.style, look.textColour, this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Chip::setSymbol(Symbol symbol, double size, double spacing)
{
    m_label->setSymbol(symbol, size, m_look.textColour);
    m_label->setSpacing(spacing);
    updateGeometry();
}

void Chip::setText(const QString& text)
{
    m_label->setText(text);
    updateGeometry();
}

void Chip::setTip(const QString& tip)
{
    setToolTip(tip);
    m_label->setAccessibleDescription(tip);
}

void Chip::setElided()
{
    m_label->setElided(true);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize Chip::around(const QSize& label) const
{
    return {static_cast<int>(std::ceil(label.width() + 2 * m_look.insetX)),
        static_cast<int>(std::lround(label.height() + 2 * m_look.insetY))};
}

QSize Chip::sizeHint() const
{
    return around(m_label->sizeHint());
}

QSize Chip::minimumSizeHint() const
{
    return around(m_label->minimumSizeHint());
}

void Chip::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillPlate(painter, rect(), m_look.radius, m_look.fill);
}

void Chip::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int room = static_cast<int>(std::floor(width() - 2 * m_look.insetX));
    const QSize label(std::min(m_label->sizeHint().width(), std::max(room, 0)), m_label->sizeHint().height());
    m_label->setGeometry(QRect(QPoint((width() - label.width()) / 2, (height() - label.height()) / 2), label));
}

} // namespace tarvin
