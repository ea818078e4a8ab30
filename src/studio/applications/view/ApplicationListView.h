#pragma once

#include "studio/applications/InstalledApplication.h"
#include "studio/applications/view/ApplicationRowPainter.h"

#include <QList>
#include <QListView>

class QLineEdit;

namespace tarvin {

class ApplicationIcons;
class ApplicationRows;

/// A list of applications of which one can be chosen: by a click, or with Return or Space on the row that has the
/// keyboard. Assistive technology chooses by selecting; nothing else selects. Only rows that show are painted and only
/// their icons are read, so it may be as long as it likes.
class ApplicationListView : public QListView
{
    Q_OBJECT

public:
    /// @param icons outlives the view
    /// @param name of the list, for assistive technology
    ApplicationListView(
        ApplicationIcons& icons, const ApplicationRowLook& look, const QString& name, QWidget* parent = nullptr);

    /// Shows these from the top.
    void setApplications(const QList<InstalledApplication>& applications);
    [[nodiscard]] const QList<InstalledApplication>& applications() const;
    /// Marks the row of that application; none for an empty identifier.
    void setChosen(const QString& bundleIdentifier);
    /// Whether the first row is what Return in the search field takes.
    void setProposing(bool proposing);
    /// Makes the field and the list one thing for the keyboard: Down leads from the field into the list and Up back
    /// out of it, Return in the field takes what is proposed, and what is typed in the list goes to the field.
    void attachSearchField(QLineEdit& field);

    /// As high as all rows with their margins.
    [[nodiscard]] int fullHeight() const;
    /// A point belongs to a row only where the row is drawn.
    [[nodiscard]] QModelIndex indexAt(const QPoint& point) const override;

Q_SIGNALS:
    void chosen(const tarvin::InstalledApplication& application);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void updateGeometries() override;
    [[nodiscard]] int verticalOffset() const override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex& index, const QEvent* event) const override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    class Delegate;

    [[nodiscard]] QRect rowBox(const QRect& item) const;
    [[nodiscard]] bool isProposed(const QModelIndex& index) const;
    void choose(const QModelIndex& index);
    bool handleFieldKey(const QKeyEvent& event);

    ApplicationIcons& m_icons;
    const ApplicationRowLook m_look;
    ApplicationRows* m_rows;
    QLineEdit* m_field = nullptr;
    bool m_isProposing = false;
};

} // namespace tarvin
