#include "actions/windows/WindowMinimizing.h"

#include "actions/OwnApplication.h"
#include "actions/ScriptRunner.h"
#include "actions/TargetApplication.h"
#include "actions/windows/FrontWindow.h"
#include "interception/TriggerNotice.h"
#include "platform/ports/AppShell.h"

#include <algorithm>
#include <utility>

namespace tarvin {

WindowMinimizing::WindowMinimizing(Collaborators collaborators)
    : m_with(std::move(collaborators))
{ }

void WindowMinimizing::executeMinimizeWindow()
{
    const QString myBundleId = ownIdentifierOrDefault(m_with.processInfo);
    const std::optional<RunningApplication> front = m_with.workspace.frontmostApplication();
    AppWindow* const mine = identifierOf(front) == myBundleId ? ownWindow() : nullptr;
    if (mine) {
        mine->miniaturize();
        m_with.notice.recordTriggerDirectly(u"Window Minimized"_qs);
        return;
    }
    std::optional<RunningApplication> target = m_with.targets.resolveTargetApplication(myBundleId);
    if (!target)
        target = front;
    if (!target)
        return;
    const auto window = frontWindowOf(m_with.windows, target->processIdentifier);
    const bool isMinimized = window && (window->setMinimized(true) || window->pressMinimizeButton());
    if (!isMinimized)
        m_with.scripts.runAsyncAppleScript(MinimizeWindowByScript{});
    m_with.notice.recordTriggerDirectly(u"Window Minimized"_qs);
}

AppWindow* WindowMinimizing::ownWindow() const
{
    if (AppWindow* const studio = m_with.mainWindow())
        return studio;
    if (AppWindow* const key = m_with.appShell.keyWindow())
        return key;
    const std::vector<AppWindow*> windows = m_with.appShell.windows();
    const auto ordinary = std::ranges::find_if(windows, [](const AppWindow* window) { return !window->isPanel(); });
    return ordinary == windows.end() ? nullptr : *ordinary;
}

} // namespace tarvin
