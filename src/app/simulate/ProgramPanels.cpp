// The part of the program where the user works in its panels.

#include "app/simulate/FieldTypes.h"
#include "app/simulate/Program.h"
#include "tools/clipboard/ClipboardHistoryHUDManager.h"
#include "tools/clipboard/ClipboardHistoryManager.h"
#include "tools/clipboard/ClipboardSearch.h"
#include "tools/ring/ActionsRingManager.h"
#include "tools/scratchpad/QuickScratchpadManager.h"

#include <algorithm>

namespace tarvin::simulate {

namespace {

Problem unlessOpen(const ToolPanel& panel, QStringView title)
{
    if (panel.isVisible())
        return std::nullopt;
    return u"the panel \"%1\" is not open; expected an action before that opens it"_qs.arg(title);
}

} // namespace

Problem Program::apply(const PasteClip& paste)
{
    ClipboardHistoryHUDManager& panel = m_shared.clipboardHistoryHUDManager();
    if (Problem problem = unlessOpen(panel, clipboardPanelTitle))
        return problem;
    const QList<ClipboardItem> found = ClipboardSearch().filteredItems(panel.history().items(), paste.search);
    if (paste.row > found.size())
        return u"the list has %1 rows; expected one of them"_qs.arg(found.size());
    panel.pasteItem(found[paste.row - 1]);
    return std::nullopt;
}

Problem Program::apply(const TypeNote& note)
{
    QuickScratchpadManager& panel = m_shared.quickScratchpadManager();
    if (Problem problem = unlessOpen(panel, scratchpadTitle))
        return problem;
    panel.note().setText(note.text);
    return std::nullopt;
}

Problem Program::apply(const ChooseRingItem& choice)
{
    ActionsRingManager& ring = m_shared.actionsRingManager();
    if (Problem problem = unlessOpen(ring, ringTitle))
        return problem;
    const auto* const item = std::ranges::find(ringItems, QStringView(choice.title), &RingItem::title);
    if (item == ringItems.end()) {
        QStringList known;
        for (const RingItem& candidate : ringItems)
            known.append(candidate.title.toString());
        return u"the ring has no item \"%1\"; expected %2"_qs.arg(choice.title, field::alternatives(known));
    }
    ring.select(ConfiguredAction(item->action));
    return std::nullopt;
}

Problem Program::apply(const ClosePanel& close)
{
    const std::array<std::pair<QStringView, FadingPanel*>, 3> panels{{
        {clipboardPanelTitle, &m_shared.clipboardHistoryHUDManager()},
        {scratchpadTitle, &m_shared.quickScratchpadManager()},
        {ringTitle, &m_shared.actionsRingManager()},
    }};
    for (const auto& [title, panel] : panels) {
        if (close.title != title)
            continue;
        if (Problem problem = unlessOpen(*panel, title))
            return problem;
        panel->hide();
        return std::nullopt;
    }
    return u"the program has no panel \"%1\"; expected \"%2\", \"%3\" or \"%4\""_qs.arg(
        close.title, clipboardPanelTitle, scratchpadTitle, ringTitle);
}

} // namespace tarvin::simulate
