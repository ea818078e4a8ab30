#include "studio/settings/view/SettingsTabButton.h"

#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Symbols.h"
#include "ui/TextLine.h"

#include <QAccessibleWidget>
#include <QPainter>

#include <cmath>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;

constexpr auto selectionMotion = Motion::spring(0.28, 0.8);
constexpr double insetX = 14;
constexpr double insetY = 6;
constexpr double radius = 8;
constexpr double symbolSize = 11;
constexpr double titleSize = 12;
constexpr double spacing = 6;

/// A tab that can be pressed.
class TabAccessible : public QAccessibleWidget
{
public:
    explicit TabAccessible(SettingsTabButton* button)
        : QAccessibleWidget(button, QAccessible::PageTab)
        , m_button(button)
    { }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_button->accessibleName() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = m_button->isChecked();
        return state;
    }
    [[nodiscard]] QStringList actionNames() const override { return {QAccessibleActionInterface::pressAction()}; }
    void doAction(const QString& actionName) override
    {
        if (actionName == QAccessibleActionInterface::pressAction())
            m_button->click();
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*actionName*/) const override { return {}; }

private:
    SettingsTabButton* m_button;
};

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object)
{
    auto* const button = qobject_cast<SettingsTabButton*>(object);
    return button ? new TabAccessible(button) : nullptr;
}

} // namespace

SettingsTabButton::SettingsTabButton(SettingsTab tab, QWidget* parent)
    : PaintedButton(parent)
    , m_row(rowOf(tab))
    , m_selection(0, [this] { update(); })
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(makeAccessible), true);
    setCheckable(true);
    setAutoExclusive(true);
    setText(m_row.title.toString());
    setAccessibleName(text()); // a text alone would be read without its ampersand
}

void SettingsTabButton::setSelected(bool selected)
{
    if (selected != isChecked()) {
        setChecked(selected);
        QAccessible::State changed;
        changed.selected = true;
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
    }
    // The chosen one is where Tab leads; the arrows lead from there to the others.
    setFocusPolicy(selected ? Qt::TabFocus : Qt::NoFocus);
    if (isVisible())
        m_selection.animateTo(selected ? 1 : 0, selectionMotion);
    else
        m_selection.jumpTo(selected ? 1 : 0);
    updateGeometry();
}

TextStyle SettingsTabButton::titleStyle() const
{
    return {
        .size = titleSize, .weight = isChecked() ? TextWeight::bold : TextWeight::medium, .face = TextFace::rounded};
}

QSize SettingsTabButton::sizeHint() const
{
    const double width = 2 * insetX + symbolSize * symbolBoxPerSize + spacing + textWidth(text(), titleStyle());
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(2 * insetY + lineHeight(titleStyle())))};
}

void SettingsTabButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF box = rect();
    const double selection = m_selection.value();
    fillContinuous(painter, box, radius, mixed(white.at(0.05 + 0.04 * hover()), mintTeal, selection));
    const Colour colour = mixed(white.at(0.7), palette::black, selection);
    const double symbolWidth = symbolSize * symbolBoxPerSize;
    drawSymbol(painter, Symbol::namedOrPlaceholder(m_row.icon), {insetX + symbolWidth / 2, box.center().y()},
        symbolSize, colour.toQColor());
    const double left = insetX + symbolWidth + spacing;
    drawText(painter, {left, 0, box.width() - left, box.height()}, Qt::AlignLeft, text(), titleStyle(), colour);
    drawFocusRing(painter, box, radius);
}

} // namespace tarvin
