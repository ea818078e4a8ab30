#include "studio/picker/view/Chip.h"

#include "ui/Plates.h"
#include "ui/TextLabel.h"

#include <QPainter>

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

QSize Chip::sizeHint() const
{
    const QSize label = m_label->sizeHint();
    return {static_cast<int>(std::ceil(label.width() + 2 * m_look.insetX)),
        static_cast<int>(std::lround(label.height() + 2 * m_look.insetY))};
}

void Chip::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillPlate(painter, rect(), m_look.radius, m_look.fill);
}

void Chip::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const QSize label = m_label->sizeHint();
    m_label->setGeometry((width() - label.width()) / 2, (height() - label.height()) / 2, label.width(), label.height());
}

} // namespace tarvin
