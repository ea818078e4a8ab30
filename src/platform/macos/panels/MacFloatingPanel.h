#pragma once

#include "platform/ports/FloatingPanel.h"

#include <functional>

namespace tarvin {
class PanelWindow;
}

namespace tarvin::macos {

class MacAppShell;
class MacAppWindow;

/// A drawn panel as a panel of the system. Main thread only.
class MacFloatingPanel final : public FloatingPanel
{
public:
    /// @param view outlives the shell, which keeps every window
    /// @param onCloseRequested the system was told to close the panel, which stays as it is
    MacFloatingPanel(
        PanelWindow& view, const PanelTraits& traits, MacAppShell& shell, std::function<void()> onCloseRequested);

    [[nodiscard]] Rect frame() const override { return m_frame; }
    /// The plate of the view comes to lie in the middle of the frame; its shadow may reach beyond.
    void setFrame(const Rect& frame) override;
    void setAlpha(double alpha) override;
    void fadeTo(double alpha, std::chrono::milliseconds duration) override;
    void makeKeyAndOrderFront() override;
    void orderOut() override;

private:
    void applyTraits();

    PanelWindow& m_view;
    const PanelTraits m_traits;
    MacAppWindow& m_window;
    Rect m_frame;
};

} // namespace tarvin::macos
