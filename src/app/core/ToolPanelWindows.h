#pragma once

#include "platform/ports/FloatingPanel.h"

#include <memory>

namespace tarvin {

class ActionsRingManager;
class ClipboardHistoryHUDManager;
class QuickScratchpadManager;

/// Makes the windows of the tool panels, each when it is shown first; null where a window cannot be made. The managers
/// outlive their windows.
class ToolPanelWindows
{
public:
    virtual ~ToolPanelWindows() = default;
    [[nodiscard]] virtual std::unique_ptr<FloatingPanel> clipboardHistory(ClipboardHistoryHUDManager& manager) = 0;
    [[nodiscard]] virtual std::unique_ptr<FloatingPanel> quickScratchpad(QuickScratchpadManager& manager) = 0;
    [[nodiscard]] virtual std::unique_ptr<FloatingPanel> actionsRing(ActionsRingManager& manager) = 0;
};

} // namespace tarvin
