#include "studio/settings/view/SettingsCard.h"

#include "studio/settings/view/SettingsColours.h"
#include "ui/Plates.h"
#include "ui/SwitchControl.h"
#include "ui/TextBlock.h"
#include "ui/TextLine.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;

constexpr auto changeMotion = Motion::easeInOut(std::chrono::milliseconds(200));
constexpr double radius = 12;
constexpr double tileRadius = 11;
constexpr int gap = 14; // between tile, texts and switch
constexpr double rowGap = 3; // between the title and the description
constexpr double chipGap = 8;
constexpr double lineGap = 1; // below each line of the description
constexpr TextStyle descriptionStyle{.size = 11, .weight = TextWeight::regular, .face = TextFace::rounded};
constexpr double chipHeight = 13.2; // the title's row is as high with a chip as without

int switchWidth()
{
    return static_cast<int>(SwitchControl::largeSize.width());
}

double descriptionWidth(const SettingsCardLook& look)
{
    return SettingsCard::cardWidth - 2 * look.padding - look.tileSize - 2 * gap - switchWidth();
}

TextStyle titleStyle(const SettingsCardLook& look)
{
    return {.size = look.titleSize, .weight = TextWeight::bold, .face = TextFace::rounded};
}

} // namespace

SettingsCard::SettingsCard(const SettingsCardLook& look, QWidget* parent)
    : QWidget(parent)
    , m_look(look)
    , m_lines(wrappedLines(look.description, descriptionStyle, descriptionWidth(look)))
    , m_activity(0, [this] { update(); })
    , m_control(new SwitchControl(look.title, SwitchControl::largeSize, this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Not at each click: assistive technology toggles without one. What the switch only follows is no wish of the user.
    connect(m_control, &QAbstractButton::toggled, this, [this](bool isOn) {
        if (isOn != m_state.isOn)
            Q_EMIT switched(isOn);
    });
}

void SettingsCard::show(const SettingsCardState& state)
{
    m_state = state;
    m_control->setEnabled(state.isEnabled);
    m_control->setOpacity(state.opacity);
    m_control->setChecked(state.isOn);
    QStringList words;
    for (const Pill& chip : state.chips)
        words += chip.text;
    words += m_look.description;
    m_control->setAccessibleDescription(words.join(QStringLiteral(". ")));
    if (isVisible())
        m_activity.animateTo(state.isActive ? 1 : 0, changeMotion);
    else
        m_activity.jumpTo(state.isActive ? 1 : 0);
    update();
}

int SettingsCard::textLeft() const
{
    return m_look.padding + m_look.tileSize + gap;
}

double SettingsCard::titleRowHeight() const
{
    return std::max(lineHeight(titleStyle(m_look)), chipHeight);
}

QSize SettingsCard::sizeHint() const
{
    const auto lines = static_cast<double>(m_lines.size());
    const double texts = titleRowHeight() + rowGap + lines * (lineHeight(descriptionStyle) + lineGap);
    return {cardWidth, static_cast<int>(std::ceil(std::max<double>(m_look.tileSize, texts))) + 2 * m_look.padding};
}

void SettingsCard::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const QSize size = m_control->sizeHint();
    // The control has some room around its track.
    const int room = (size.width() - switchWidth()) / 2;
    m_control->setGeometry(
        QRect(QPoint(width() - m_look.padding + room - size.width(), (height() - size.height()) / 2), size));
}

void SettingsCard::paintTexts(QPainter& painter) const
{
    const auto lines = static_cast<double>(m_lines.size());
    const double rowHeight = titleRowHeight();
    const double lineStep = lineHeight(descriptionStyle) + lineGap;
    const double left = textLeft();
    double top = (height() - (rowHeight + rowGap + lines * lineStep)) / 2;
    const TextStyle style = titleStyle(m_look);
    drawText(painter, {left, top, static_cast<double>(width()), rowHeight}, Qt::AlignLeft, m_look.title, style, white);
    double x = left + textWidth(m_look.title, style) + chipGap;
    for (const Pill& chip : m_state.chips) {
        const QSizeF size = chip.size();
        drawPill(painter, {x, top + (rowHeight - size.height()) / 2}, chip);
        x += size.width() + chipGap;
    }
    top += rowHeight + rowGap;
    for (const QString& line : m_lines) {
        drawText(painter, {left, top, descriptionWidth(m_look), lineHeight(descriptionStyle)}, Qt::AlignLeft, line,
            descriptionStyle, white.at(0.6));
        top += lineStep;
    }
}

void SettingsCard::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setOpacity(m_state.opacity);
    const double activity = m_activity.value();
    const QRectF box = rect();
    fillContinuous(painter, box, radius, settingscolours::card);
    strokeContinuous(painter, box, radius, 1, mixed(white.at(0.08), mintTeal.at(0.35), activity));
    const double side = m_look.tileSize;
    const QRectF tile(m_look.padding, (height() - side) / 2, side, side);
    fillContinuous(painter, tile, tileRadius, mixed(white.at(0.05), mintTeal.at(0.18), activity));
    drawSymbol(
        painter, m_state.symbol, tile.center(), m_look.symbolSize, mixed(white.at(0.4), mintTeal, activity).toQColor());
    paintTexts(painter);
}

} // namespace tarvin
