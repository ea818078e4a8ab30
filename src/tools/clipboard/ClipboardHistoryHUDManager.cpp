#include "tools/clipboard/ClipboardHistoryHUDManager.h"

#include "platform/ports/Pointer.h"
#include "platform/ports/ProcessInfo.h"
#include "platform/ports/Screens.h"
#include "tools/clipboard/ClipboardHistoryManager.h"

#include <algorithm>
#include <utility>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

constexpr double marginToEdges = 20;

} // namespace

Rect clipboardPanelFrame(const Rect& visibleFrame, Point pointer)
{
    const Size size = ClipboardHistoryHUDManager::traits.size;
    const double left = visibleFrame.origin.x + marginToEdges;
    const double right = visibleFrame.origin.x + visibleFrame.size.width - size.width - marginToEdges;
    const double top = visibleFrame.origin.y + marginToEdges;
    const double bottom = visibleFrame.origin.y + visibleFrame.size.height - size.height - marginToEdges;
    return {
        .origin = {.x = std::max(left, std::min(right, pointer.x - size.width / 2)),
            .y = std::min(bottom, std::max(top, pointer.y - size.height / 2))},
        .size = size,
    };
}

ClipboardHistoryHUDManager::ClipboardHistoryHUDManager(Collaborators collaborators, History history,
    const Workspace& workspace, const ProcessInfo& processInfo, const Screens& screens, const Pointer& pointer)
    : FadingPanel(std::move(collaborators), {.in = 160ms, .out = 120ms})
    , m_history(std::move(history))
    , m_workspace(workspace)
    , m_processInfo(processInfo)
    , m_screens(screens)
    , m_pointer(pointer)
{ }

void ClipboardHistoryHUDManager::show()
{
    rememberFrontmostApplication();
    m_history().checkForNewClips();
    FloatingPanel* const panel = madeWindow();
    if (!panel)
        return;
    if (const std::optional<Screen> screen = m_screens.mainScreen())
        panel->setFrame(clipboardPanelFrame(screen->visibleFrame, m_pointer.position()));
    present(*panel);
}

void ClipboardHistoryHUDManager::pasteItem(const ClipboardItem& item)
{
    hide();
    m_history().pasteItem(
        item, m_previousFrontmostApp ? std::optional(m_previousFrontmostApp->processIdentifier) : std::nullopt);
}

void ClipboardHistoryHUDManager::rememberFrontmostApplication()
{
    std::optional<RunningApplication> front = m_workspace.frontmostApplication();
    if (front && front->bundleIdentifier() != m_processInfo.bundleIdentifier())
        m_previousFrontmostApp = std::move(front);
}

} // namespace tarvin
