#pragma once

#include "platform/ports/FloatingPanel.h"
#include "platform/ports/Workspace.h"
#include "platform/simulated/EffectLog.h"

#include <QString>

namespace tarvin::simulated {

class SimulatedAppShell;
class SimulatedWindow;
class SimulatedWorkspace;

/// A floating panel that shows nothing but its state.
class SimulatedFloatingPanel final : public FloatingPanel
{
public:
    SimulatedFloatingPanel(EffectLog& log, SimulatedAppShell& shell, SimulatedWorkspace& workspace,
        const QString& title, const PanelTraits& traits);

    [[nodiscard]] Rect frame() const override { return m_frame; }
    void setFrame(const Rect& frame) override;
    void setAlpha(double alpha) override;
    void fadeTo(double alpha, std::chrono::milliseconds duration) override;
    void makeKeyAndOrderFront() override;
    void orderOut() override;

    /// Where the last fade ends, or what was set since.
    [[nodiscard]] double alpha() const { return m_alpha; }
    [[nodiscard]] bool isOnScreen() const;

private:
    EffectLog& m_log;
    QString m_title;
    SimulatedWindow& m_window;
    Rect m_frame;
    double m_alpha = 1;
    std::unique_ptr<WorkspaceObserver> m_deactivation;
};

} // namespace tarvin::simulated
