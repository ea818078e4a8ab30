#pragma once

#include "tools/clipboard/ClipboardItem.h"

#include <QByteArray>
#include <QHash>
#include <QList>

namespace tarvin {

/// Finds items by a part of their text, whatever the case of its letters. Keeps a form of each text that can be
/// searched fast, from the first search to the item's end.
class ClipboardSearch
{
public:
    /// The items that contain the search text as it was typed, blanks at its ends included, in their order. A search
    /// text of nothing but white space finds all.
    [[nodiscard]] QList<ClipboardItem> filteredItems(const QList<ClipboardItem>& items, const QString& searchText);
    /// Brings the kept forms in line with the items, ahead of the next search.
    void prepare(const QList<ClipboardItem>& items);

private:
    QHash<QUuid, QByteArray> m_folded;
};

} // namespace tarvin
