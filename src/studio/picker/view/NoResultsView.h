#pragma once

#include <QWidget>

namespace tarvin {

class OutlinedButton;
class TextBlock;

/// What stands in the list when a search finds nothing.
class NoResultsView : public QWidget
{
    Q_OBJECT

public:
    explicit NoResultsView(QWidget* parent);

    /// @param typed the search as the user typed it
    void showSearch(const QString& typed);
    [[nodiscard]] OutlinedButton& clearButton() const { return *m_clear; }

Q_SIGNALS:
    void clearWanted();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TextBlock* m_line;
    OutlinedButton* m_clear;
};

} // namespace tarvin
