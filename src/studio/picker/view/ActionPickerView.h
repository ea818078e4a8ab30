#pragma once

#include "studio/picker/view/PickerEntry.h"

#include <QWidget>

#include <functional>

namespace tarvin {

class OutlinedButton;
class PickerHeader;
class PickerList;
class StatusBannerView;
class TextField;

/// The pane in which the user chooses what a key does. Every choice is stored at once; there is nothing to confirm.
///
/// Esc clears the search, and without one closes the pane. The arrows lead through the list and from the search into
/// it.
class ActionPickerView : public QWidget
{
    Q_OBJECT

public:
    /// @param model outlives the view
    /// @param onClose asks the owner to take the pane away
    ActionPickerView(
        ActionPickerModel& model, std::function<void()> onClose, MakeCardBody makeCardBody, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] PickerHeader& header() const { return *m_header; }
    [[nodiscard]] StatusBannerView& banner() const { return *m_banner; }
    [[nodiscard]] TextField& searchField() const { return *m_search; }
    [[nodiscard]] PickerList& list() const { return *m_list; }
    [[nodiscard]] OutlinedButton& resetButton() const { return *m_reset; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void follow();
    void followSearch();
    /// Tab goes through the pane from top to bottom, whatever came into it when.
    void orderControls();

    ActionPickerModel& m_model;
    std::function<void()> m_onClose;
    PickerHeader* m_header;
    StatusBannerView* m_banner;
    TextField* m_search;
    PickerList* m_list;
    OutlinedButton* m_reset;
    bool m_isOrderDue = false;
};

} // namespace tarvin
