#include "ui/ConfirmButton.h"

#include "ui/Plates.h"
#include "ui/TextLine.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvin {

ConfirmButton::ConfirmButton(const ButtonLook& look, const Motions& motions, QWidget* parent)
    : PaintedButton(parent)
    , m_look(look)
    , m_motions(motions)
    , m_share(0, [this] { update(); })
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ConfirmButton::showText(const QString& text, Says says)
{
    setText(text);
    (says == Says::offer ? m_offer : m_confirmation) = text;
    update();
    if (m_says == says)
        return;
    m_says = says;
    const double share = says == Says::confirmation ? 1 : 0;
    if (isVisible())
        m_share.animateTo(share, says == Says::confirmation ? m_motions.confirming : m_motions.returning);
    else
        m_share.jumpTo(share);
}

QSize ConfirmButton::sizeHint() const
{
    const double width =
        2 * m_look.inset + m_look.symbolSize * symbolBoxPerSize + m_look.spacing + textWidth(text(), m_look.text);
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(m_look.height))};
}

void ConfirmButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillPlate(painter, rect(), m_look.radius, mixed(m_look.fill, m_look.hoveredFill, hover()));
    strokePlate(painter, rect(), m_look.radius, 1, m_look.stroke);
    const double share = std::clamp(m_share.value(), 0.0, 1.0);
    painter.setOpacity(1 - share);
    paintContent(painter, Symbol(u"play.fill"), m_offer);
    painter.setOpacity(share);
    paintContent(painter, Symbol(u"checkmark.circle.fill"), m_confirmation);
    painter.setOpacity(1);
    drawFocusRing(painter, rect(), m_look.radius);
}

void ConfirmButton::paintContent(QPainter& painter, Symbol symbol, const QString& text) const
{
    if (painter.opacity() == 0)
        return;
    const QRectF box = rect();
    const double symbolWidth = m_look.symbolSize * symbolBoxPerSize;
    const double wordsWidth = textWidth(text, m_look.text);
    const double left = box.center().x() - (symbolWidth + m_look.spacing + wordsWidth) / 2;
    drawSymbol(
        painter, symbol, {left + symbolWidth / 2, box.center().y()}, m_look.symbolSize, m_look.symbolColour.toQColor());
    drawText(painter, {left + symbolWidth + m_look.spacing, box.top(), wordsWidth, box.height()}, Qt::AlignLeft, text,
        m_look.text, m_look.textColour);
}

} // namespace tarvin
