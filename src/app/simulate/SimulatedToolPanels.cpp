#include "app/simulate/SimulatedToolPanels.h"

#include "platform/simulated/SimulatedFloatingPanel.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tools/clipboard/ClipboardHistoryHUDManager.h"
#include "tools/ring/ActionsRingManager.h"
#include "tools/scratchpad/QuickScratchpadManager.h"

namespace tarvin::simulate {

std::unique_ptr<FloatingPanel> SimulatedToolPanels::clipboardHistory(ClipboardHistoryHUDManager& /*manager*/)
{
    return make(clipboardPanelTitle, ClipboardHistoryHUDManager::traits);
}

std::unique_ptr<FloatingPanel> SimulatedToolPanels::quickScratchpad(QuickScratchpadManager& /*manager*/)
{
    return make(scratchpadTitle, QuickScratchpadManager::traits);
}

std::unique_ptr<FloatingPanel> SimulatedToolPanels::actionsRing(ActionsRingManager& /*manager*/)
{
    return make(ringTitle, ActionsRingManager::traits);
}

std::unique_ptr<FloatingPanel> SimulatedToolPanels::make(QStringView title, const PanelTraits& traits)
{
    return std::make_unique<simulated::SimulatedFloatingPanel>(
        m_platform.effects(), m_platform.appShell(), m_platform.workspace(), title.toString(), traits);
}

} // namespace tarvin::simulate
