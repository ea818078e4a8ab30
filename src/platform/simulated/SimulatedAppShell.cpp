#include "platform/simulated/SimulatedAppShell.h"

#include "platform/simulated/SimulatedScheduler.h"
#include "platform/simulated/SimulatedWorkspace.h"

#include <algorithm>

namespace tarvin::simulated {

SimulatedAppShell::SimulatedAppShell(EffectLog& log, SimulatedScheduler& scheduler, SimulatedWorkspace& workspace)
    : m_log(log)
    , m_scheduler(scheduler)
    , m_workspace(workspace)
{
    m_workspace.setFrontmostListener([this] { frontmostChanged(); });
}

bool SimulatedAppShell::isActive() const
{
    return m_workspace.isOwnProcessFrontmost();
}

void SimulatedAppShell::observeDidBecomeActive(std::function<void()> handler)
{
    m_log.expectMainThread("AppShell::observeDidBecomeActive");
    m_activeObservers.push_back(std::move(handler));
}

void SimulatedAppShell::setActivationPolicy(ActivationPolicy policy)
{
    m_log.expectMainThread("AppShell::setActivationPolicy");
    m_policy = policy;
    m_log.record(ActivationPolicySet{policy});
}

void SimulatedAppShell::activateAllWindows()
{
    requestActivation(OwnActivation::allWindows);
}

void SimulatedAppShell::activateIgnoringOtherApps()
{
    requestActivation(OwnActivation::ignoringOtherApps);
}

std::vector<AppWindow*> SimulatedAppShell::windows()
{
    m_log.expectMainThread("AppShell::windows");
    std::vector<AppWindow*> windows;
    for (const std::unique_ptr<SimulatedWindow>& window : m_windows)
        windows.push_back(window.get());
    return windows;
}

AppWindow* SimulatedAppShell::keyWindow()
{
    m_log.expectMainThread("AppShell::keyWindow");
    return isActive() && m_keyWindow != nullptr && m_keyWindow->isVisible() ? m_keyWindow : nullptr;
}

void SimulatedAppShell::silenceUnhandledKeys()
{
    m_log.expectMainThread("AppShell::silenceUnhandledKeys");
    m_log.record(ShellPatched{ShellPatch::unhandledKeysSilenced});
}

void SimulatedAppShell::letMinimizeRequestsThrough()
{
    m_log.expectMainThread("AppShell::letMinimizeRequestsThrough");
    m_log.record(ShellPatched{ShellPatch::minimizeRequestsLetThrough});
}

void SimulatedAppShell::terminate()
{
    m_log.expectMainThread("AppShell::terminate");
    if (m_terminated)
        return;
    m_terminated = true;
    if (m_delegate != nullptr)
        m_delegate->applicationWillTerminate();
    m_log.record(Terminated{});
}

SimulatedWindow& SimulatedAppShell::addWindow(const QString& title, WindowKind kind)
{
    m_windows.push_back(std::make_unique<SimulatedWindow>(
        m_log, title, kind, [this](SimulatedWindow& window) { windowBecameKey(window); }));
    return *m_windows.back();
}

void SimulatedAppShell::becomeActive()
{
    m_workspace.setFrontmostProcess(SimulatedWorkspace::ownProcess);
}

void SimulatedAppShell::reopen()
{
    if (m_delegate == nullptr)
        return;
    const bool anyVisible =
        std::ranges::any_of(m_windows, [](const auto& window) { return window->isVisible() && !window->isPanel(); });
    m_delegate->applicationShouldHandleReopen(anyVisible);
}

void SimulatedAppShell::openUrls(const QStringList& urls)
{
    if (m_delegate != nullptr)
        m_delegate->applicationOpenUrls(urls);
}

void SimulatedAppShell::requestClose(SimulatedWindow& window)
{
    if (m_delegate != nullptr)
        m_delegate->windowShouldClose(window);
}

bool SimulatedAppShell::requestClose(const QString& title)
{
    const auto found =
        std::ranges::find_if(m_windows, [&title](const auto& window) { return window->title() == title; });
    if (found == m_windows.end())
        return false;
    requestClose(**found);
    return true;
}

void SimulatedAppShell::frontmostChanged()
{
    const bool active = isActive();
    if (std::exchange(m_wasActive, active) || !active)
        return;
    if (m_delegate != nullptr)
        m_delegate->applicationDidBecomeActive();
    const std::vector<std::function<void()>> observers = m_activeObservers;
    for (const std::function<void()>& observer : observers)
        observer();
}

void SimulatedAppShell::requestActivation(OwnActivation way)
{
    m_log.expectMainThread("AppShell, activation");
    m_log.record(SelfActivated{way});
    m_scheduler.post([this] { becomeActive(); });
}

void SimulatedAppShell::windowBecameKey(SimulatedWindow& window)
{
    m_keyWindow = &window;
    m_scheduler.post([this, &window] {
        if (m_delegate != nullptr && window.isVisible())
            m_delegate->windowDidBecomeKey(window);
    });
}

} // namespace tarvin::simulated
