#pragma once

#include "studio/cards/KeyRecord.h"

#include <QFileDialog>
#include <QPointer>
#include <QWidget>

namespace tarvin {

class ApplicationIcons;
class ApplicationListView;
class OpenApplicationCard;
class OutlinedButton;
class SpringColumn;
class TextBlock;
class TextField;
class TextLabel;

/// The body of the card that says which application the key opens: the application, and the list to choose it from.
class OpenApplicationBody : public QWidget
{
    Q_OBJECT

public:
    OpenApplicationBody(const KeyRecord& record, OpenApplicationCard& card, ApplicationIcons& icons, QWidget* parent);

    /// The file dialog while it is open, where the system has none of its own.
    [[nodiscard]] QFileDialog* fileDialog() const { return m_fileDialog; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    class IconLabel;

    void refresh();
    void refreshList();
    void browse();

    KeyRecord m_record;
    OpenApplicationCard& m_card;
    SpringColumn* m_column;
    IconLabel* m_icon;
    TextLabel* m_name;
    TextBlock* m_placeholder;
    OutlinedButton* m_change;
    TextBlock* m_hint;
    QWidget* m_picker;
    TextField* m_search;
    ApplicationListView* m_list;
    QPointer<QFileDialog> m_fileDialog;
};

} // namespace tarvin
