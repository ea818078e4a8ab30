#pragma once

#include "app/core/ToolPanelWindows.h"
#include "platform/ports/FloatingPanel.h"

namespace tarvin {

/// For whoever never shows a tool panel: tests, measurements, drawn pictures.
class NoToolPanelWindows final : public ToolPanelWindows
{
public:
    [[nodiscard]] std::unique_ptr<FloatingPanel> clipboardHistory(ClipboardHistoryHUDManager&) override
    {
        return nullptr;
    }
    [[nodiscard]] std::unique_ptr<FloatingPanel> quickScratchpad(QuickScratchpadManager&) override { return nullptr; }
    [[nodiscard]] std::unique_ptr<FloatingPanel> actionsRing(ActionsRingManager&) override { return nullptr; }
};

} // namespace tarvin
