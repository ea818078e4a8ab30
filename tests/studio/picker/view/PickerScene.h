#pragma once

#include "studio/picker/PickerDesktop.h"
#include "studio/picker/view/ActionPickerView.h"
#include "studio/picker/view/ActionRow.h"
#include "studio/picker/view/EntryStack.h"
#include "studio/picker/view/PickerList.h"
#include "studio/picker/view/PickerSectionHeader.h"
#include "studio/picker/view/PickerSectionView.h"
#include "studio/picker/view/SearchResultsView.h"
#include "ui/ConfirmButton.h"
#include "ui/TextField.h"

#include <QAccessible>
#include <QLabel>
#include <QTest>

#include <memory>
#include <stdexcept>

namespace tarvin {

/// What a card opens in these tests: a line that can have the keyboard, of a height that can be set.
class CardBodyStandIn : public QLineEdit
{
public:
    CardBodyStandIn(ParameterCard forCard, QWidget* parent)
        : QLineEdit(parent)
        , card(forCard)
    { }
    [[nodiscard]] QSize sizeHint() const override { return {100, height}; }
    void setBodyHeight(int newHeight)
    {
        height = newHeight;
        updateGeometry();
    }

    ParameterCard card;
    int height = 40;
};

/// The pane for F5, shown in a window of its own.
class PickerScene : public PickerDesktop
{
protected:
    ActionPickerView& view(FKey key = FKey::f5)
    {
        if (!m_view) {
            m_view = std::make_unique<ActionPickerView>(
                picker(key), [this] { ++closings; },
                [this](ParameterCard card, QWidget* parent) {
                    cardsMade.push_back(card);
                    return new CardBodyStandIn(card, parent);
                });
            m_view->resize(330, 800);
            m_view->show();
            QTest::qWait(0);
        }
        return *m_view;
    }
    ~PickerScene() override { m_view.reset(); }

    PickerSectionView& section(PickerSection wanted)
    {
        return *view().list().sections()[static_cast<std::size_t>(wanted)];
    }
    EntryStack& results() { return view().list().results().stack(); }
    PickerEntry& entryIn(EntryStack& stack, KeyAction action)
    {
        for (PickerEntry* const entry : stack.entries()) {
            if (entry->row().action() == action)
                return *entry;
        }
        throw std::invalid_argument("no row for " + rawValue(action).toString().toStdString());
    }
    PickerEntry& entry(PickerSection wanted, KeyAction action) { return entryIn(section(wanted).stack(), action); }
    static QList<KeyAction> shown(const EntryStack& stack)
    {
        QList<KeyAction> actions;
        for (const PickerEntry* const each : stack.entries())
            actions.append(each->row().action());
        return actions;
    }
    void search(const QString& text) { view().searchField().setText(text); }
    /// Until everything stands where it stays.
    [[nodiscard]] static bool comesToRest(const PickerEntry& entry)
    {
        return QTest::qWaitFor([&entry] { return !entry.isMoving(); });
    }
    /// The texts in sight, without those of buttons.
    [[nodiscard]] QStringList texts()
    {
        QStringList found;
        const auto labels = view().findChildren<QLabel*>();
        for (const QLabel* const label : labels) {
            if (label->isVisible())
                found += label->text();
        }
        return found;
    }
    [[nodiscard]] QAbstractButton* button(const QString& name)
    {
        const auto buttons = view().findChildren<QAbstractButton*>();
        for (QAbstractButton* const candidate : buttons) {
            if (candidate->isVisible()
                && QAccessible::queryAccessibleInterface(candidate)->text(QAccessible::Name) == name)
                return candidate;
        }
        throw std::invalid_argument("no button " + name.toStdString());
    }
    [[nodiscard]] QColor colourAt(int x, int y) { return view().grab().toImage().pixelColor(x, y); }

    int closings = 0;
    std::vector<ParameterCard> cardsMade;

private:
    std::unique_ptr<ActionPickerView> m_view;
};

} // namespace tarvin
