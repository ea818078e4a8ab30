#pragma once

#include "tools/clipboard/ClipboardItem.h"
#include "tools/clipboard/view/ClipText.h"

#include <QHash>
#include <QList>
#include <QScrollArea>

#include <vector>

namespace tarvin {

class ClipRow;

/// The rows of the clipboard panel, with a scroll bar that lies over their margin.
class ClipList : public QScrollArea
{
    Q_OBJECT

public:
    explicit ClipList(QWidget* parent);

    /// Shows the items. What a row says is worked out once for each item.
    void show(const QList<ClipboardItem>& items);
    using QWidget::show;
    /// The rows that are shown now.
    [[nodiscard]] std::vector<ClipRow*> rows() const;

Q_SIGNALS:
    void pasteWanted(const tarvin::ClipboardItem& item);
    void pinWanted(const tarvin::ClipboardItem& item);
    void deleteWanted(const tarvin::ClipboardItem& item);

private:
    [[nodiscard]] ClipRow& rowAt(qsizetype index);

    QWidget* m_stack;
    std::vector<ClipRow*> m_rows; ///< those beyond the items are hidden
    QList<ClipboardItem> m_items;
    QHash<QUuid, ClipText> m_texts;
};

} // namespace tarvin
