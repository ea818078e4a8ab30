// The Studio window: showing it and hiding it.

#include "interception/RuntimeLog.h"
#include "platform/ports/AppShell.h"
#include "platform/ports/Workspace.h"
#include "shell/BackgroundModeManager.h"

namespace tarvin {

namespace {

void bringForward(AppWindow& window)
{
    window.setVisible();
    if (window.isMiniaturized())
        window.deminiaturize();
    window.makeKeyAndOrderFront();
    window.orderFrontRegardless();
}

} // namespace

std::vector<AppWindow*> BackgroundModeManager::studioWindows() const
{
    std::vector<AppWindow*> windows = m_appShell.windows();
    std::erase_if(windows, [](const AppWindow* window) { return window->isPanel(); });
    return windows;
}

void BackgroundModeManager::openStudioWindow()
{
    setStudioWindowVisible(true);
    m_log.log(u"[Tarvin] openStudioWindow invoked. Current policy: %1, window count: %2"_qs
                  .arg(static_cast<int>(m_appShell.activationPolicy()))
                  .arg(m_appShell.windows().size()));
    // The Dock rule has just asked for it, and the system may have refused.
    if (m_appShell.activationPolicy() != ActivationPolicy::regular)
        m_appShell.setActivationPolicy(ActivationPolicy::regular);
    m_appShell.activateAllWindows();
    m_appShell.activateIgnoringOtherApps();

    if (m_mainWindow) {
        bringForward(*m_mainWindow);
        m_log.log(u"[Tarvin] Restored stored mainWindow: "_qs + m_mainWindow->title());
    }
    const std::vector<AppWindow*> windows = studioWindows();
    for (AppWindow* window : windows) {
        bringForward(*window);
        m_log.log(u"[Tarvin] Restored window: "_qs + window->title());
    }
    if (m_mainWindow || !windows.empty())
        return;
    if (m_openWindowAction)
        m_openWindowAction();
    else
        m_workspace.openUrl(u"tarvin://open-studio"_qs);
}

void BackgroundModeManager::hideStudioWindow()
{
    setStudioWindowVisible(false);
    for (AppWindow* window : studioWindows())
        window->orderOut();
    // Once more, because windows on their way out may have changed the policy.
    updateActivationPolicy();
}

} // namespace tarvin
