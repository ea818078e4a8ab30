#include "studio/settings/view/StartupDockRow.h"

#include "studio/settings/view/SettingsColours.h"
#include "ui/Pill.h"
#include "ui/Plates.h"
#include "ui/Symbols.h"
#include "ui/TextBlock.h"
#include "ui/TextLine.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;

constexpr auto selectionMotion = Motion::spring(0.25, 0.8);
constexpr double padding = 12;
constexpr double radius = 10;
constexpr double circleSize = 18;
constexpr double discSize = 9;
constexpr double textLeft = padding + circleSize + 12;
constexpr double symbolSize = 12;
constexpr double symbolGap = 6;
constexpr double chipGap = 7;
constexpr double titleHeight = 15;
constexpr double rowGap = 4;
constexpr double lineGap = 1;
constexpr TextStyle titleStyle{.size = 12, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr TextStyle subtitleStyle{.size = 11, .weight = TextWeight::regular, .face = TextFace::rounded};

} // namespace

StartupDockRow::StartupDockRow(StartupDockMode mode, QWidget* parent)
    : PaintedButton(parent)
    , m_mode(mode)
    , m_lines(wrappedLines(subtitle(mode).toString(), subtitleStyle, rowWidth - textLeft - padding))
    , m_selection(0, [this] { update(); })
{
    setCheckable(true);
    setAutoExclusive(true);
    setText(title(mode).toString());
    setAccessibleDescription(QStringLiteral("%1. %2").arg(tag(mode), subtitle(mode)));
}

void StartupDockRow::setSelected(bool selected)
{
    setChecked(selected);
    // The chosen one is where Tab leads; the arrows lead from there to the others.
    setFocusPolicy(selected ? Qt::TabFocus : Qt::NoFocus);
    if (isVisible())
        m_selection.animateTo(selected ? 1 : 0, selectionMotion);
    else
        m_selection.jumpTo(selected ? 1 : 0);
}

QSize StartupDockRow::sizeHint() const
{
    const auto lines = static_cast<double>(m_lines.size());
    const double height = 2 * padding + titleHeight + rowGap + lines * (lineHeight(subtitleStyle) + lineGap) - lineGap;
    return {rowWidth, static_cast<int>(std::ceil(height))};
}

void StartupDockRow::paintRadio(QPainter& painter) const
{
    const double selection = std::clamp(m_selection.value(), 0.0, 1.0);
    const QRectF circle(padding, (height() - circleSize) / 2, circleSize, circleSize);
    strokePlate(painter, circle, circleSize / 2, 1.5, mixed(white.at(0.2), mintTeal, selection));
    const double side = discSize * selection;
    if (side > 0) {
        const QPointF middle = circle.center();
        fillPlate(painter, {middle.x() - side / 2, middle.y() - side / 2, side, side}, side / 2, mintTeal);
    }
}

void StartupDockRow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF box = rect();
    const double selection = m_selection.value();
    fillPlate(painter, box, radius, settingscolours::card);
    fillPlate(painter, box, radius, white.at(0.02 * hover()));
    strokePlate(painter, box, radius, isChecked() ? 1.5 : 1.0, mixed(white.at(0.06), mintTeal.at(0.5), selection));
    paintRadio(painter);

    double top = padding;
    const double symbolWidth = symbolSize * symbolBoxPerSize;
    drawSymbol(painter, Symbol::namedOrPlaceholder(tarvin::icon(m_mode)),
        {textLeft + symbolWidth / 2, top + titleHeight / 2}, symbolSize,
        mixed(white.at(0.7), mintTeal, selection).toQColor());
    const double titleLeft = textLeft + symbolWidth + symbolGap;
    drawText(painter, {titleLeft, top, box.width() - titleLeft, titleHeight}, Qt::AlignLeft, text(), titleStyle,
        mixed(white.at(0.85), white, selection));
    const Pill chip{.text = tag(m_mode).toString(),
        .style = {.size = 8, .weight = TextWeight::heavy, .face = TextFace::rounded},
        .textColour = mixed(white.at(0.5), mintTeal, selection),
        .fill = mixed(white.at(0.08), mintTeal.at(0.2), selection),
        .insetX = 5,
        .insetY = 1.5,
        .radius = 4};
    drawPill(painter,
        {titleLeft + textWidth(text(), titleStyle) + chipGap, top + (titleHeight - chip.size().height()) / 2}, chip);
    top += titleHeight + rowGap;
    for (const QString& line : m_lines) {
        drawText(painter, {textLeft, top, box.width() - textLeft, lineHeight(subtitleStyle)}, Qt::AlignLeft, line,
            subtitleStyle, white.at(0.55));
        top += lineHeight(subtitleStyle) + lineGap;
    }
    drawFocusRing(painter, box, radius);
}

} // namespace tarvin
