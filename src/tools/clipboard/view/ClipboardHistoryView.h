#pragma once

#include "tools/clipboard/ClipboardSearch.h"
#include "tools/panel/view/ToolPlate.h"

#include <functional>

namespace tarvin {

class ClipboardHistoryManager;
class ClipList;
class TextField;
class TextLabel;

/// The content of the clipboard panel: a search field, the items that it finds, and how many they are.
class ClipboardHistoryView : public ToolPlate
{
    Q_OBJECT

public:
    /// @param manager outlives the view
    ClipboardHistoryView(ClipboardHistoryManager& manager, std::function<void(const ClipboardItem&)> onPaste,
        std::function<bool()> hasCompositor);

    /// Stays while the program runs, also while the panel is hidden.
    [[nodiscard]] QString searchText() const;

private:
    class EmptyState;

    void showItems();

    ClipboardHistoryManager& m_manager;
    ClipboardSearch m_clipSearch;
    TextField* m_search;
    ClipList* m_list;
    EmptyState* m_empty;
    TextLabel* m_count;
    OutlinedButton* m_clear;
};

} // namespace tarvin
