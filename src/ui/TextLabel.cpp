#include "ui/TextLabel.h"

#include "ui/TextLine.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvin {

TextLabel::TextLabel(const QString& text, const TextStyle& style, const Colour& colour, QWidget* parent)
    : QLabel(text, parent)
    , m_style(style)
    , m_colour(colour)
{
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void TextLabel::setColour(const Colour& colour)
{
    m_colour = colour;
    update();
}

void TextLabel::setSymbol(Symbol symbol, double size, const Colour& colour)
{
    m_symbol = symbol;
    m_symbolSize = size;
    m_symbolColour = colour;
    updateGeometry();
    update();
}

void TextLabel::setElided(bool elided)
{
    m_isElided = elided;
    setSizePolicy(elided ? QSizePolicy::Preferred : QSizePolicy::Fixed, QSizePolicy::Fixed);
}

double TextLabel::symbolWidth() const
{
    return m_symbol ? m_symbolSize * symbolBoxPerSize : 0;
}

QSize TextLabel::sizeHint() const
{
    double width = symbolWidth();
    if (!text().isEmpty())
        width += textWidth(text(), m_style) + (m_symbol ? m_spacing : 0);
    const double height = std::max(symbolWidth(), lineHeight(m_style));
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(height))};
}

QSize TextLabel::minimumSizeHint() const
{
    const QSize size = sizeHint();
    return m_isElided ? QSize(static_cast<int>(std::ceil(symbolWidth())), size.height()) : size;
}

void TextLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    double x = 0;
    if (m_symbol) {
        drawSymbol(painter, *m_symbol, {symbolWidth() / 2, height() / 2.0}, m_symbolSize, m_symbolColour.toQColor());
        x = symbolWidth() + m_spacing;
    }
    const QRectF room(x, 0, width() - x, height());
    drawText(
        painter, room, alignment(), m_isElided ? elidedText(text(), m_style, room.width()) : text(), m_style, m_colour);
}

} // namespace tarvin
