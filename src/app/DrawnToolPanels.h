#pragma once

#include "app/core/ToolPanelWindows.h"
#include "tools/panel/FadingPanel.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace tarvin {

class PanelWindow;

/// The windows of the tool panels, drawn. Main thread only.
class DrawnToolPanels final : public ToolPanelWindows
{
public:
    /// What a desktop does for panels.
    struct Surroundings
    {
        /// Makes a view a window of the program.
        std::function<std::unique_ptr<FloatingPanel>(
            PanelWindow& view, const PanelTraits& traits, std::function<void()> onCloseRequested)>
            makePanel;
        std::function<bool()> hasCompositor;
        /// Takes the views; it keeps them for as long as it has their windows.
        std::vector<std::unique_ptr<QWidget>>& views;
    };

    explicit DrawnToolPanels(Surroundings surroundings);

    [[nodiscard]] std::unique_ptr<FloatingPanel> clipboardHistory(ClipboardHistoryHUDManager& manager) override;
    [[nodiscard]] std::unique_ptr<FloatingPanel> quickScratchpad(QuickScratchpadManager& manager) override;
    [[nodiscard]] std::unique_ptr<FloatingPanel> actionsRing(ActionsRingManager& manager) override;

private:
    template <typename View>
    std::unique_ptr<FloatingPanel> panelOf(const PanelTraits& traits, FadingPanel& manager, std::unique_ptr<View> view);

    const Surroundings m_surroundings;
};

} // namespace tarvin
