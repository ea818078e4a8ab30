#include "studio/picker/view/PickerAccessibility.h"

#include "studio/picker/view/EntryStack.h"
#include "studio/picker/view/PickerSectionHeader.h"

#include <QAccessibleWidget>

namespace tarvin {

namespace {

/// A control that is pressed, whatever else it is.
class PressedAccessible : public QAccessibleWidget
{
public:
    PressedAccessible(QAbstractButton* button, QAccessible::Role role)
        : QAccessibleWidget(button, role)
        , m_button(button)
    { }

    [[nodiscard]] QStringList actionNames() const override { return {QAccessibleActionInterface::pressAction()}; }
    void doAction(const QString& actionName) override
    {
        if (actionName == QAccessibleActionInterface::pressAction())
            m_button->click();
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*actionName*/) const override { return {}; }

private:
    QAbstractButton* m_button;
};

class RowAccessible : public PressedAccessible
{
public:
    explicit RowAccessible(ActionRow* row)
        : PressedAccessible(row, QAccessible::RadioButton)
        , m_row(row)
    { }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = PressedAccessible::state();
        state.checkable = true;
        state.checked = m_row->isSelected();
        state.focusable = true;
        return state;
    }

private:
    ActionRow* m_row;
};

class SectionHeaderAccessible : public PressedAccessible
{
public:
    explicit SectionHeaderAccessible(PickerSectionHeader* header)
        : PressedAccessible(header, QAccessible::Button)
        , m_header(header)
    { }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = PressedAccessible::state();
        state.expandable = true;
        state.expanded = m_header->isExpanded();
        state.collapsed = !m_header->isExpanded();
        return state;
    }

private:
    PickerSectionHeader* m_header;
};

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object)
{
    if (auto* const row = qobject_cast<ActionRow*>(object))
        return new RowAccessible(row);
    if (auto* const header = qobject_cast<PickerSectionHeader*>(object))
        return new SectionHeaderAccessible(header);
    if (auto* const stack = qobject_cast<EntryStack*>(object))
        return new QAccessibleWidget(stack, QAccessible::List);
    if (auto* const entry = qobject_cast<PickerEntry*>(object))
        return new QAccessibleWidget(entry, QAccessible::ListItem);
    return nullptr;
}

} // namespace

void installPickerAccessibility()
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(makeAccessible), true);
}

} // namespace tarvin
