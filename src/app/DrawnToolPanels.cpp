#include "app/DrawnToolPanels.h"

#include "app/LinuxDesktop.h"
#include "platform/linux/panels/Compositor.h"
#include "platform/linux/panels/QtFloatingPanel.h"
#include "tools/clipboard/ClipboardHistoryHUDManager.h"
#include "tools/clipboard/view/ClipboardHistoryView.h"
#include "tools/ring/ActionsRingManager.h"
#include "tools/ring/view/ActionsRingView.h"
#include "tools/scratchpad/QuickScratchpadManager.h"
#include "tools/scratchpad/view/QuickScratchpadView.h"

#include <utility>

namespace tarvin {

DrawnToolPanels::DrawnToolPanels(LinuxDesktop& desktop)
    : m_desktop(desktop)
{ }

std::unique_ptr<FloatingPanel> DrawnToolPanels::clipboardHistory(ClipboardHistoryHUDManager& manager)
{
    return panelOf(ClipboardHistoryHUDManager::traits, manager,
        std::make_unique<ClipboardHistoryView>(
            manager.history(), [&manager](const ClipboardItem& item) { manager.pasteItem(item); }, hasCompositor()));
}

std::unique_ptr<FloatingPanel> DrawnToolPanels::quickScratchpad(QuickScratchpadManager& manager)
{
    return panelOf(QuickScratchpadManager::traits, manager,
        std::make_unique<QuickScratchpadView>(manager.note(), hasCompositor()));
}

std::unique_ptr<FloatingPanel> DrawnToolPanels::actionsRing(ActionsRingManager& manager)
{
    return panelOf(ActionsRingManager::traits, manager,
        std::make_unique<ActionsRingView>(
            [&manager](const ConfiguredAction& action) { manager.select(action); }, hasCompositor()));
}

std::function<bool()> DrawnToolPanels::hasCompositor() const
{
    return [&connection = m_desktop.connection] { return panels::compositorRuns(connection); };
}

template <typename View>
std::unique_ptr<FloatingPanel> DrawnToolPanels::panelOf(
    const PanelTraits& traits, FadingPanel& manager, std::unique_ptr<View> view)
{
    auto panel = std::make_unique<panels::QtFloatingPanel>(*view, traits, m_desktop.shell, m_desktop.connection);
    QObject::connect(view.get(), &View::dismissed, &manager, &FadingPanel::hide);
    QObject::connect(panel.get(), &panels::QtFloatingPanel::closeRequested, &manager, &FadingPanel::hide);
    m_desktop.views.push_back(std::move(view));
    return panel;
}

} // namespace tarvin
