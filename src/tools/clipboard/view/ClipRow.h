#pragma once

#include "tools/clipboard/ClipboardItem.h"
#include "tools/clipboard/view/ClipText.h"
#include "ui/PaintedButton.h"

#include <QStringList>

namespace tarvin {

class OutlinedButton;

/// One item in the list of the clipboard panel: a button that pastes it, with two small ones in it.
class ClipRow : public PaintedButton
{
    Q_OBJECT

public:
    static constexpr int rowWidth = 444;

    explicit ClipRow(QWidget* parent);

    /// Shows the item; the row gets the height that it needs.
    void show(const ClipboardItem& item, const ClipText& text, qsizetype index);
    using QWidget::show;
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void pinClicked();
    void deleteClicked();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    OutlinedButton* m_pin;
    OutlinedButton* m_delete;
    QStringList m_lines; ///< of the preview
    QString m_length;
    QString m_time;
    QString m_badge;
    bool m_isPinned = false;
};

/// The preview as it stands in the row: at most two lines, broken between words where that is possible.
[[nodiscard]] QStringList clipPreviewLines(const QString& preview);

} // namespace tarvin
