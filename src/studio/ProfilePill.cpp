#include "studio/ProfilePill.h"

#include "ui/Palette.h"
#include "ui/Symbols.h"
#include "ui/TextLine.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace tarvin {

namespace {

constexpr double inset = 10;
constexpr double symbolSize = 11;
constexpr double spacing = 6;

TextStyle nameStyle(bool isCurrent)
{
    return {.size = 11, .weight = isCurrent ? TextWeight::bold : TextWeight::medium};
}

} // namespace

ProfilePill::ProfilePill(
    const AppProfile& profile, const QString& shownName, std::function<QRectF()> activePill, QWidget* parent)
    : PaintedButton(parent)
    , m_profile(profile)
    , m_activePill(std::move(activePill))
{
    setText(shownName);
    setAccessibleName(shownName); // a text alone would be read without its ampersand
    setCheckable(true);
    setAutoExclusive(true);
    setToolTip(shownName);
}

void ProfilePill::setCompact(bool compact)
{
    m_isCompact = compact;
    updateGeometry();
}

void ProfilePill::setCurrent(bool current)
{
    setChecked(current);
    updateGeometry();
}

QSize ProfilePill::sizeHint() const
{
    double width = 2 * inset + symbolSize * symbolBoxPerSize;
    if (showsName())
        width += spacing + textWidth(text(), nameStyle(isChecked()));
    return {static_cast<int>(std::ceil(width)), pillHeight};
}

void ProfilePill::paintContent(QPainter& painter, const QColor& colour) const
{
    const double symbolWidth = symbolSize * symbolBoxPerSize;
    drawSymbol(painter, Symbol::namedOrPlaceholder(m_profile.iconName), {inset + symbolWidth / 2, height() / 2.0},
        symbolSize, colour);
    if (!showsName())
        return;
    const double x = inset + symbolWidth + spacing;
    const Colour textColour{colour.redF(), colour.greenF(), colour.blueF(), colour.alphaF()};
    drawText(painter, {x, 0, width() - x, static_cast<double>(height())}, Qt::AlignLeft, text(), nameStyle(isChecked()),
        textColour);
}

void ProfilePill::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF active = m_activePill().translated(-pos());
    QPainterPath activePath;
    activePath.addRoundedRect(active, active.height() / 2, active.height() / 2);
    QPainterPath rest;
    rest.addRect(rect());
    painter.save();
    painter.setClipPath(rest.subtracted(activePath));
    paintContent(painter, palette::white.at(0.55 + 0.25 * hover()));
    painter.restore();
    painter.save();
    painter.setClipPath(activePath);
    paintContent(painter, palette::black);
    painter.restore();
    drawFocusRing(painter, rect(), height() / 2.0);
}

} // namespace tarvin
