#pragma once

#include "app/core/ToolPanelWindows.h"
#include "tools/panel/FadingPanel.h"

#include <functional>
#include <memory>

namespace tarvin {

class LinuxDesktop;

/// The windows of the tool panels, drawn. Main thread only.
class DrawnToolPanels final : public ToolPanelWindows
{
public:
    /// The desktop outlives this object and keeps the views of the panels.
    explicit DrawnToolPanels(LinuxDesktop& desktop);

    [[nodiscard]] std::unique_ptr<FloatingPanel> clipboardHistory(ClipboardHistoryHUDManager& manager) override;
    [[nodiscard]] std::unique_ptr<FloatingPanel> quickScratchpad(QuickScratchpadManager& manager) override;
    [[nodiscard]] std::unique_ptr<FloatingPanel> actionsRing(ActionsRingManager& manager) override;

private:
    [[nodiscard]] std::function<bool()> hasCompositor() const;

    template <typename View>
    std::unique_ptr<FloatingPanel> panelOf(const PanelTraits& traits, FadingPanel& manager, std::unique_ptr<View> view);

    LinuxDesktop& m_desktop;
};

} // namespace tarvin
