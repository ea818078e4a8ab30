#pragma once

#include "studio/picker/view/PickerEntry.h"

#include <QPointer>
#include <QScrollArea>

#include <vector>

namespace tarvin {

class EntryStack;
class PickerSectionView;
class SearchResultsView;

/// What scrolls in the picker: the five sections, or during a search what was found. A row that is chosen stays under
/// the pointer while others open and close.
class PickerList : public QScrollArea
{
    Q_OBJECT

public:
    PickerList(ActionPickerModel& model, MakeCardBody makeCardBody, QWidget* parent);
    ~PickerList() override;

    void follow();
    void scrollToTop();
    /// Gives the keyboard to the first row that is shown.
    void focusFirstRow();

    [[nodiscard]] const std::vector<PickerSectionView*>& sections() const { return m_sections; }
    [[nodiscard]] SearchResultsView& results() const { return *m_results; }
    /// Everything that can have the keyboard, from top to bottom.
    [[nodiscard]] std::vector<QWidget*> controlsInOrder() const;

Q_SIGNALS:
    void controlsChanged();
    /// The keyboard leaves the list at its upper end.
    void leftAtTop();

private:
    void addStack(EntryStack& stack);
    void moveFocus(QWidget* from, Qt::Key key);
    /// The headings and rows that the arrows lead through.
    [[nodiscard]] std::vector<QWidget*> stops() const;
    void layOut();

    ActionPickerModel& m_model;
    MakeCardBody m_makeCardBody;
    QWidget* m_content;
    std::vector<PickerSectionView*> m_sections;
    SearchResultsView* m_results;
    QPointer<PickerEntry> m_anchor; ///< keeps its place on the screen
};

} // namespace tarvin
