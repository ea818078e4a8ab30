#pragma once

#include "studio/picker/view/EntryStack.h"

#include <QWidget>

namespace tarvin {

class Chip;
class NoResultsView;
class PickerHeading;

/// What takes the place of the sections during a search: the rows that were found, or that there are none.
class SearchResultsView : public QWidget
{
    Q_OBJECT

public:
    SearchResultsView(ActionPickerModel& model, const MakeCardBody& makeCardBody, QWidget* parent);

    void follow();
    [[nodiscard]] EntryStack& stack() const { return *m_stack; }
    [[nodiscard]] NoResultsView& noResults() const { return *m_noResults; }
    [[nodiscard]] Chip& count() const { return *m_count; }
    void layOut();

Q_SIGNALS:
    void heightChanged();

private:
    ActionPickerModel& m_model;
    PickerHeading* m_heading;
    Chip* m_count;
    EntryStack* m_stack;
    NoResultsView* m_noResults;
};

} // namespace tarvin
