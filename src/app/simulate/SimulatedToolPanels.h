#pragma once

#include "app/core/ToolPanelWindows.h"

#include <QString>

namespace tarvin {
struct PanelTraits;
}

namespace tarvin::simulated {
class SimulatedPlatform;
}

namespace tarvin::simulate {

inline constexpr QStringView clipboardPanelTitle = u"Clipboard History";
inline constexpr QStringView scratchpadTitle = u"Quick Scratchpad";
inline constexpr QStringView ringTitle = u"Actions Ring";

/// Panels that show nothing but that they are there.
class SimulatedToolPanels final : public ToolPanelWindows
{
public:
    explicit SimulatedToolPanels(simulated::SimulatedPlatform& platform)
        : m_platform(platform)
    { }

    [[nodiscard]] std::unique_ptr<FloatingPanel> clipboardHistory(ClipboardHistoryHUDManager& manager) override;
    [[nodiscard]] std::unique_ptr<FloatingPanel> quickScratchpad(QuickScratchpadManager& manager) override;
    [[nodiscard]] std::unique_ptr<FloatingPanel> actionsRing(ActionsRingManager& manager) override;

private:
    [[nodiscard]] std::unique_ptr<FloatingPanel> make(QStringView title, const PanelTraits& traits);

    simulated::SimulatedPlatform& m_platform;
};

} // namespace tarvin::simulate
