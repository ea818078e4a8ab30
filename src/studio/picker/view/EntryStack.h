#pragma once

#include "studio/picker/view/PickerEntry.h"

#include <QList>
#include <QWidget>

#include <vector>

namespace tarvin {

/// Actions one below the other. Of its rows one is reached by Tab, the others from there by the arrows.
class EntryStack : public QWidget
{
    Q_OBJECT

public:
    EntryStack(ActionPickerModel& model, const MakeCardBody& makeCardBody, QWidget* parent);

    /// Shows these rows. An action that was there already keeps its entry, and with it what the user is doing in it.
    void showRows(const QList<PickerRow>& rows, RowDetail detail);
    /// From top to bottom.
    [[nodiscard]] const std::vector<PickerEntry*>& entries() const { return m_entries; }
    [[nodiscard]] int currentHeight() const;
    void layOut();

Q_SIGNALS:
    void heightChanged();
    void controlsChanged();
    void movePressed(tarvin::ActionRow* from, Qt::Key key);
    /// The user chose a row here.
    void chosen(tarvin::PickerEntry* entry);

private:
    [[nodiscard]] PickerEntry* takeEntry(std::vector<PickerEntry*>& from, const PickerRow& row);
    [[nodiscard]] PickerEntry* makeEntry();
    /// @param row the row that Tab reaches; null for the one that has the keyboard, else the selected one or the first
    void setTabStop(const ActionRow* row);

    ActionPickerModel& m_model;
    const MakeCardBody& m_makeCardBody;
    RowDetail m_detail = RowDetail::titleOnly;
    std::vector<PickerEntry*> m_entries;
    std::vector<PickerEntry*> m_spare; ///< hidden
};

} // namespace tarvin
