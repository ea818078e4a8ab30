#include "platform/simulated/SimulatedFloatingPanel.h"

#include "platform/simulated/SimulatedAppShell.h"
#include "platform/simulated/SimulatedWorkspace.h"

namespace tarvin::simulated {

SimulatedFloatingPanel::SimulatedFloatingPanel(EffectLog& log, SimulatedAppShell& shell, SimulatedWorkspace& workspace,
    const QString& title, const PanelTraits& traits)
    : m_log(log)
    , m_title(title)
    , m_window(shell.addWindow(title, WindowKind::panel))
    , m_frame{{}, traits.size}
{
    if (traits.deactivation == PanelDeactivation::stays)
        return;
    m_deactivation = workspace.observeActivation([this, &workspace](const std::optional<RunningApplication>&) {
        if (!workspace.isOwnProcessFrontmost() && m_window.isVisible())
            m_window.orderOut();
    });
}

void SimulatedFloatingPanel::setFrame(const Rect& frame)
{
    m_log.expectMainThread("FloatingPanel::setFrame");
    m_frame = frame;
    m_log.record(PanelPlaced{m_title, frame});
}

void SimulatedFloatingPanel::setAlpha(double alpha)
{
    m_log.expectMainThread("FloatingPanel::setAlpha");
    m_alpha = alpha;
}

void SimulatedFloatingPanel::fadeTo(double alpha, std::chrono::milliseconds duration)
{
    m_log.expectMainThread("FloatingPanel::fadeTo");
    m_alpha = alpha;
    m_log.record(PanelFaded{m_title, alpha, duration});
}

void SimulatedFloatingPanel::makeKeyAndOrderFront()
{
    m_window.makeKeyAndOrderFront();
}

void SimulatedFloatingPanel::orderOut()
{
    m_window.orderOut();
}

bool SimulatedFloatingPanel::isOnScreen() const
{
    return m_window.isVisible();
}

} // namespace tarvin::simulated
