#pragma once

#include <QWidget>

namespace tarvin {

class OutlinedButton;
class TextLabel;

/// In place of a list of applications without rows: that there are none, and while something is searched for, what,
/// with a button that ends the search.
class NoApplicationsView : public QWidget
{
    Q_OBJECT

public:
    explicit NoApplicationsView(QWidget* parent);

    /// @param detail empty unless something is searched for
    void setDetail(const QString& detail);
    /// The line as it is shown: a long one ends with an ellipsis.
    [[nodiscard]] QString shownDetail() const;

Q_SIGNALS:
    void clearRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void elideDetail();

    QString m_wholeDetail;
    TextLabel* m_detail;
    OutlinedButton* m_clear;
};

} // namespace tarvin
