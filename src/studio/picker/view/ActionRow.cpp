#include "studio/picker/view/ActionRow.h"

#include "studio/picker/view/PickerMetrics.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/RadioCircle.h"
#include "ui/Symbols.h"
#include "ui/TextLine.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;

constexpr double sidePadding = 8;
constexpr double spacing = 9;
constexpr int plainHeight = 28;
constexpr int detailedHeight = 41;
constexpr double radius = 8;

constexpr double symbolCell = 16;
constexpr double symbolSize = 12;
constexpr double symbolLeft = sidePadding + radioCircleSize + spacing;
constexpr double wordsLeft = symbolLeft + symbolCell + spacing;
constexpr double wordsRight = pickermetrics::rowWidth - sidePadding;
constexpr double lineSpacing = 1;

constexpr TextStyle subtitleText{.size = 10, .weight = TextWeight::regular, .face = TextFace::rounded};

constexpr TextStyle titleText(bool isSelected)
{
    return {.size = 13, .weight = isSelected ? TextWeight::bold : TextWeight::medium, .face = TextFace::rounded};
}

} // namespace

ActionRow::ActionRow(QWidget* parent)
    : PaintedButton(parent)
{
    resize(sizeHint());
}

void ActionRow::showAction(KeyAction action, const std::optional<Pill>& badge, RowDetail detail)
{
    m_action = action;
    m_badge = badge;
    m_detail = detail;
    const QString name = title(action).toString();
    const QString meaning = subtitle(action).toString();
    m_subtitle =
        detail == RowDetail::withSubtitle ? elidedText(meaning, subtitleText, wordsRight - wordsLeft) : QString();
    setText(name);
    setAccessibleName(name); // a text alone would be read without its ampersand
    setAccessibleDescription(badge ? QStringLiteral("%1, %2").arg(badge->text, meaning) : meaning);
    resize(sizeHint());
    update();
}

void ActionRow::showSelection(bool isSelected, double share)
{
    if (m_share != share) {
        m_share = share;
        update();
    }
    if (m_isSelected == isSelected)
        return;
    m_isSelected = isSelected;
    update();
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

QSize ActionRow::sizeHint() const
{
    return {pickermetrics::rowWidth, m_detail == RowDetail::withSubtitle ? detailedHeight : plainHeight};
}

void ActionRow::paintWords(QPainter& painter) const
{
    const TextStyle style = titleText(m_isSelected);
    const double titleHeight = lineHeight(style);
    const double block =
        titleHeight + (m_detail == RowDetail::withSubtitle ? lineSpacing + lineHeight(subtitleText) : 0);
    const double top = (height() - block) / 2;
    const QRectF line(wordsLeft, top, wordsRight - wordsLeft, titleHeight);
    drawText(painter, line, Qt::AlignLeft, text(), style, mixed(white.at(0.85), white, m_share));
    if (m_detail == RowDetail::withSubtitle) {
        drawText(painter, {wordsLeft, line.bottom() + lineSpacing, line.width(), lineHeight(subtitleText)},
            Qt::AlignLeft, m_subtitle, subtitleText, white.at(0.42));
    }
    if (m_badge) {
        const QSizeF size = m_badge->size();
        const double left = wordsLeft + textWidth(text(), style) + spacing;
        drawPill(painter, {left, line.center().y() - size.height() / 2}, *m_badge);
    }
}

void ActionRow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (hover() > 0)
        fillPlate(painter, rect(), radius, white.at(0.03 * hover()));
    drawRadioCircle(painter, {sidePadding + radioCircleSize / 2, height() / 2.0}, m_share);
    drawSymbol(painter, Symbol::namedOrPlaceholder(tarvin::icon(m_action)),
        {symbolLeft + symbolCell / 2, height() / 2.0}, symbolSize, mixed(white.at(0.45), mintTeal, m_share).toQColor());
    paintWords(painter);
    drawFocusRing(painter, rect(), radius);
}

void ActionRow::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        Q_EMIT movePressed(static_cast<Qt::Key>(event->key()));
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
        return;
    default:
        PaintedButton::keyPressEvent(event);
    }
}

void ActionRow::focusInEvent(QFocusEvent* event)
{
    PaintedButton::focusInEvent(event);
    Q_EMIT focused();
}

} // namespace tarvin
