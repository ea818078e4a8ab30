#include "ui/TextField.h"

#include "ui/OutlinedButton.h"
#include "ui/Plates.h"

#include <QPainter>

#include <cmath>

namespace tarvin {

namespace {

constexpr Colour clear = palette::white.at(0);

ButtonLook clearButtonLook(const FieldLook& look)
{
    constexpr double height = 18;
    return {.height = height,
        .radius = height / 2,
        .inset = (height - look.clearSymbolSize * symbolBoxPerSize) / 2,
        .symbolSize = look.clearSymbolSize,
        .spacing = 0,
        .text = {},
        .symbolColour = look.clearSymbolColour,
        .textColour = clear,
        .fill = clear,
        .hoveredFill = palette::white.at(0.08),
        .stroke = clear};
}

} // namespace

TextField::TextField(const QString& name, std::optional<Symbol> symbol, const FieldLook& look, QWidget* parent)
    : QLineEdit(parent)
    , m_look(look)
    , m_symbol(symbol)
{
    setFrame(false);
    setAccessibleName(name);
    setPlaceholderText(name);
    setFont(fontOf(look.text));
    QPalette colours = palette();
    colours.setColor(QPalette::Base, Qt::transparent);
    colours.setColor(QPalette::Text, look.textColour);
    colours.setColor(QPalette::PlaceholderText, palette::white.at(0.35));
    colours.setColor(QPalette::Highlight, palette::mintTeal.at(0.35));
    colours.setColor(QPalette::HighlightedText, palette::white);
    setPalette(colours);

    auto* const button = new OutlinedButton(clearButtonLook(look), this);
    button->setSymbol(Symbol(u"xmark.circle.fill"));
    button->setTip(tr("Clear"));
    button->setCursor(Qt::ArrowCursor);
    button->setFocusPolicy(Qt::NoFocus);
    button->hide();
    connect(button, &QAbstractButton::clicked, this, &QLineEdit::clear);
    connect(
        this, &QLineEdit::textChanged, button, [button](const QString& text) { button->setVisible(!text.isEmpty()); });
    m_clearButton = button;

    const double front = look.inset + (symbol ? look.symbolSize * symbolBoxPerSize + look.symbolGap : 0);
    setTextMargins(static_cast<int>(front) - 2, 0, static_cast<int>(look.inset) + button->sizeHint().width(), 0);
}

void TextField::setLook(const FieldLook& look)
{
    m_look = look;
    update();
}

QSize TextField::sizeHint() const
{
    return {160, static_cast<int>(std::ceil(m_look.height))};
}

QSize TextField::minimumSizeHint() const
{
    return {60, sizeHint().height()};
}

void TextField::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    const QSize size = m_clearButton->sizeHint();
    m_clearButton->setGeometry(QRect(
        QPoint(width() - size.width() - static_cast<int>(m_look.inset) + 3, (height() - size.height()) / 2), size));
}

void TextField::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        fillPlate(painter, rect(), m_look.radius, m_look.fill);
        strokePlate(painter, rect(), m_look.radius, 1, hasFocus() ? m_look.focusedStroke : m_look.stroke);
        if (m_symbol) {
            const Colour colour = text().isEmpty() ? m_look.symbolColour : m_look.filledSymbolColour;
            drawSymbol(painter, *m_symbol, {m_look.inset + m_look.symbolSize * symbolBoxPerSize / 2, height() / 2.0},
                m_look.symbolSize, colour);
        }
    }
    QLineEdit::paintEvent(event);
}

} // namespace tarvin
