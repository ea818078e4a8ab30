#pragma once

#include "studio/picker/PickerRow.h"
#include "studio/picker/view/ActionRow.h"
#include "ui/AnimatedValue.h"

#include <QWidget>

#include <functional>

namespace tarvin {

class ActionPickerModel;
class ConfirmButton;

/// Makes what a card opens while it is selected. It follows what it shows by itself, and asks for another height as
/// every widget does. Null for a card that opens nothing.
using MakeCardBody = std::function<QWidget*(ParameterCard card, QWidget* parent)>;

/// One action in the list with its plate and what opens under the row while it is selected: the body of a card, which
/// is made only then, and the button that tries the action.
class PickerEntry : public QWidget
{
    Q_OBJECT

public:
    /// Both outlive the entry.
    PickerEntry(ActionPickerModel& model, const MakeCardBody& makeCardBody, QWidget* parent);

    /// Stands for that action from now on, at rest.
    void showRow(const PickerRow& row, RowDetail detail);
    /// Brings everything shown in line with the model; while it is in sight a change of the selection moves there.
    void follow();

    [[nodiscard]] const PickerRow& pickerRow() const { return m_pickerRow; }
    [[nodiscard]] ActionRow& row() const { return *m_row; }
    /// Null while the entry is closed, and for a plain row.
    [[nodiscard]] QWidget* body() const { return m_body; }
    /// Null while the entry is closed.
    [[nodiscard]] ConfirmButton* testButton() const { return m_testButton; }
    /// At this moment of the movement.
    [[nodiscard]] int currentHeight() const;
    [[nodiscard]] bool isMoving() const { return m_selection.state() == QAbstractAnimation::Running; }

Q_SIGNALS:
    void heightChanged();
    /// What can have the keyboard came or went.
    void controlsChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void select(bool isSelected);
    void followTest();
    void step();
    void open();
    void close();
    void layOut();
    [[nodiscard]] int openHeight() const;

    ActionPickerModel& m_model;
    const MakeCardBody& m_makeCardBody;
    PickerRow m_pickerRow;
    RowDetail m_detail = RowDetail::titleOnly;
    ActionRow* m_row;
    QWidget* m_opened; ///< cuts off what has not opened yet
    QWidget* m_body = nullptr;
    ConfirmButton* m_testButton = nullptr;
    AnimatedValue m_selection; ///< from 0 to 1
};

} // namespace tarvin
