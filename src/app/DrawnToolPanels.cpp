#include "app/DrawnToolPanels.h"

#include "tools/clipboard/ClipboardHistoryHUDManager.h"
#include "tools/clipboard/view/ClipboardHistoryView.h"
#include "tools/ring/ActionsRingManager.h"
#include "tools/ring/view/ActionsRingView.h"
#include "tools/scratchpad/QuickScratchpadManager.h"
#include "tools/scratchpad/view/QuickScratchpadView.h"

#include <utility>

namespace tarvin {

DrawnToolPanels::DrawnToolPanels(Surroundings surroundings)
    : m_surroundings(std::move(surroundings))
{ }

std::unique_ptr<FloatingPanel> DrawnToolPanels::clipboardHistory(ClipboardHistoryHUDManager& manager)
{
    return panelOf(ClipboardHistoryHUDManager::traits, manager,
        std::make_unique<ClipboardHistoryView>(
            manager.history(), [&manager](const ClipboardItem& item) { manager.pasteItem(item); },
            m_surroundings.hasCompositor));
}

std::unique_ptr<FloatingPanel> DrawnToolPanels::quickScratchpad(QuickScratchpadManager& manager)
{
    return panelOf(QuickScratchpadManager::traits, manager,
        std::make_unique<QuickScratchpadView>(manager.note(), m_surroundings.hasCompositor));
}

std::unique_ptr<FloatingPanel> DrawnToolPanels::actionsRing(ActionsRingManager& manager)
{
    return panelOf(ActionsRingManager::traits, manager,
        std::make_unique<ActionsRingView>(
            [&manager](const ConfiguredAction& action) { manager.select(action); }, m_surroundings.hasCompositor));
}

template <typename View>
std::unique_ptr<FloatingPanel> DrawnToolPanels::panelOf(
    const PanelTraits& traits, FadingPanel& manager, std::unique_ptr<View> view)
{
    auto panel = m_surroundings.makePanel(*view, traits, [&manager] { manager.hide(); });
    QObject::connect(view.get(), &View::dismissed, &manager, &FadingPanel::hide);
    m_surroundings.views.push_back(std::move(view));
    return panel;
}

} // namespace tarvin
