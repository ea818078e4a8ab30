#pragma once

#include "ui/SheetPanel.h"
#include "ui/TextField.h"

#include <memory>

namespace tarvin {

class AddAppSheetModel;
class ApplicationIcons;
class ApplicationListView;
class NoApplicationsView;

/// The sheet from which the user picks an application that is to have a profile of its own. The keyboard starts in the
/// search field.
class AddAppSheet : public SheetPanel
{
    Q_OBJECT

public:
    static constexpr QSize sheetSize{440, 480};

    /// @param icons outlive the sheet
    AddAppSheet(std::unique_ptr<AddAppSheetModel> model, ApplicationIcons& icons);
    ~AddAppSheet() override;
    AddAppSheet(const AddAppSheet&) = delete;
    AddAppSheet& operator=(const AddAppSheet&) = delete;

    [[nodiscard]] TextField& searchField() const { return *m_field; }
    [[nodiscard]] ApplicationListView& list() const { return *m_list; }
    /// There in place of the list while that has no rows.
    [[nodiscard]] NoApplicationsView& emptyState() const { return *m_empty; }

protected:
    void paintGround(QPainter& painter) override;

private:
    void addCloseButton();
    void follow();

    std::unique_ptr<AddAppSheetModel> m_model;
    TextField* m_field;
    ApplicationListView* m_list;
    NoApplicationsView* m_empty;
};

} // namespace tarvin
