#include "studio/keyboard/KeyButton.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QKeyEvent>

namespace tarvin {

namespace {

/// A key is a button that can be pressed, and a live one can be selected as well.
class KeyButtonAccessible : public QAccessibleWidget
{
public:
    explicit KeyButtonAccessible(KeyButton* button)
        : QAccessibleWidget(button, QAccessible::Button)
        , m_button(button)
    { }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const bool isLive = m_button->kind() == KeyButtonKind::live;
        state.focusable = isLive;
        state.selectable = isLive;
        state.selected = m_button->isSelected();
        state.pressed = m_button->isDown();
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
    KeyButton* m_button;
};

QAccessibleInterface* makeAccessible(const QString& className, QObject* object)
{
    Q_UNUSED(className);
    auto* const button = qobject_cast<KeyButton*>(object);
    return button ? new KeyButtonAccessible(button) : nullptr;
}

} // namespace

KeyButton::KeyButton(KeyButtonKind kind, QWidget* parent)
    : QAbstractButton(parent)
    , m_kind(kind)
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(makeAccessible), true);
    setAttribute(Qt::WA_Hover);
    // One key at a time is reached by Tab, the others from there by the arrows; the keyboard sees to that.
    setFocusPolicy(Qt::NoFocus);
}

void KeyButton::setSelected(bool selected)
{
    if (m_isSelected == selected)
        return;
    m_isSelected = selected;
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void KeyButton::paintEvent(QPaintEvent* /*event*/) { }

bool KeyButton::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
        Q_EMIT hovered(true);
        break;
    case QEvent::HoverLeave:
        Q_EMIT hovered(false);
        break;
    case QEvent::FocusIn:
        Q_EMIT focused(true);
        break;
    case QEvent::FocusOut:
        Q_EMIT focused(false);
        break;
    default:
        break;
    }
    return QAbstractButton::event(event);
}

void KeyButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        Q_EMIT arrowPressed(static_cast<Qt::Key>(event->key()));
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        return;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

} // namespace tarvin
