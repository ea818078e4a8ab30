#include "shell/AppDelegate.h"

#include "interception/EventTapManager.h"
#include "interception/FnKeyModeHelper.h"
#include "interception/RuntimeLog.h"
#include "platform/ports/Scheduler.h"
#include "shell/BackgroundModeManager.h"

#include <utility>

namespace tarvin {

namespace {

QString trueOrFalse(bool value)
{
    return value ? u"true"_qs : u"false"_qs;
}

} // namespace

AppDelegate::AppDelegate(Collaborators collaborators)
    : m_with(std::move(collaborators))
    , m_mainThread(m_with.scheduler)
{
    m_with.appShell.setDelegate(this);
}

AppDelegate::~AppDelegate()
{
    m_with.appShell.setDelegate(nullptr);
}

void AppDelegate::applicationDidFinishLaunching()
{
    m_with.appShell.silenceUnhandledKeys();
    m_with.appShell.letMinimizeRequestsThrough();
    // First of all, also at login: the keys work before anything is shown.
    m_with.eventTapManager().start();
    BackgroundModeManager& manager = m_with.backgroundModeManager();
    m_isStartupLaunch = manager.wasLaunchedAtStartupOrLogin();
    m_with.log.log(u"[Tarvin] App launched. wasStartup: %1, dockMode: %2"_qs.arg(
        trueOrFalse(m_isStartupLaunch), rawValue(manager.startupDockMode())));
    manager.updateActivationPolicy();
    manager.syncOpenAtStartupRegistration(manager.openAtStartup());
    m_with.scheduler.post(m_mainThread.whileAlive([this] { finishLaunch(); }));
}

void AppDelegate::finishLaunch()
{
    BackgroundModeManager& manager = m_with.backgroundModeManager();
    for (AppWindow* window : m_with.appShell.windows()) {
        if (!window->isPanel())
            manager.setMainWindow(window);
    }
    if (!m_isStartupLaunch) {
        manager.openStudioWindow();
        return;
    }
    manager.hideStudioWindow();
    m_with.log.log(
        u"[Tarvin] Startup launch handled. Policy: %1"_qs.arg(static_cast<int>(m_with.appShell.activationPolicy())));
}

void AppDelegate::applicationDidBecomeActive()
{
    if (std::exchange(m_isStartupLaunch, false))
        m_with.log.log(u"[Tarvin] Completed silent startup activation."_qs);
}

void AppDelegate::applicationShouldHandleReopen(bool hasVisibleWindows)
{
    m_with.log.log(
        u"[Tarvin] applicationShouldHandleReopen called! hasVisibleWindows: "_qs + trueOrFalse(hasVisibleWindows));
    m_with.backgroundModeManager().openStudioWindow();
}

void AppDelegate::applicationOpenUrls(const QStringList& /*urls*/)
{
    m_with.backgroundModeManager().openStudioWindow();
}

void AppDelegate::windowShouldClose(AppWindow& window)
{
    window.orderOut();
    BackgroundModeManager& manager = m_with.backgroundModeManager();
    manager.setStudioWindowVisible(false);
    manager.updateActivationPolicy();
}

void AppDelegate::windowDidBecomeKey(AppWindow& window)
{
    if (window.isPanel() || !window.isVisible())
        return;
    BackgroundModeManager& manager = m_with.backgroundModeManager();
    manager.setMainWindow(&window);
    manager.setStudioWindowVisible(true);
}

void AppDelegate::applicationWillTerminate()
{
    m_with.fnKeyModeHelper().restoreAppleDefaults();
    m_with.saveEverything();
}

} // namespace tarvin
