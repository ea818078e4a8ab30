#include "ui/OutlinedButton.h"

#include "ui/Plates.h"
#include "ui/TextLine.h"

#include <QPainter>

#include <cmath>

namespace tarvin {

OutlinedButton::OutlinedButton(const ButtonLook& look, QWidget* parent)
    : PaintedButton(parent)
    , m_look(look)
{ }

void OutlinedButton::setSymbol(std::optional<Symbol> symbol)
{
    if (m_symbol == symbol)
        return;
    m_symbol = symbol;
    updateGeometry();
    update();
}

void OutlinedButton::setLook(const ButtonLook& look)
{
    if (m_look == look)
        return;
    m_look = look;
    updateGeometry();
    update();
}

void OutlinedButton::setCompact(bool compact)
{
    m_isCompact = compact;
    updateGeometry();
    update();
}

bool OutlinedButton::showsText() const
{
    return !text().isEmpty() && !m_isCompact;
}

QSize OutlinedButton::sizeHint() const
{
    double width = 2 * m_look.inset;
    if (m_symbol)
        width += m_look.symbolSize * symbolBoxPerSize;
    if (showsText())
        width += textWidth(text(), m_look.text) + (m_symbol ? m_look.spacing : 0);
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(m_look.height))};
}

void OutlinedButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF box = rect();
    if (!isEnabled())
        painter.setOpacity(m_look.disabledOpacity);
    fillPlate(painter, box, m_look.radius, mixed(m_look.fill, m_look.hoveredFill, isDown() ? 1.5 * hover() : hover()));
    strokePlate(painter, box, m_look.radius, 1, m_look.stroke);
    const double symbolWidth = m_symbol ? m_look.symbolSize * symbolBoxPerSize : 0;
    const double wordsWidth = showsText() ? textWidth(text(), m_look.text) : 0;
    const double gap = m_symbol && showsText() ? m_look.spacing : 0;
    double x = box.center().x() - (symbolWidth + gap + wordsWidth) / 2;
    if (m_symbol)
        drawSymbol(painter, *m_symbol, {x + symbolWidth / 2, box.center().y()}, m_look.symbolSize, m_look.symbolColour);
    x += symbolWidth + gap;
    if (showsText())
        drawText(
            painter, {x, box.top(), wordsWidth, box.height()}, Qt::AlignLeft, text(), m_look.text, m_look.textColour);
    drawFocusRing(painter, box, m_look.radius);
}

} // namespace tarvin
