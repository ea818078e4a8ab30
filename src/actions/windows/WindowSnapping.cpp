#include "actions/windows/WindowSnapping.h"

#include "actions/OwnApplication.h"
#include "actions/ScriptRunner.h"
#include "actions/TargetApplication.h"
#include "actions/windows/FrontWindow.h"
#include "actions/windows/SnapGeometry.h"
#include "interception/TriggerNotice.h"
#include "platform/ports/Scheduler.h"

namespace tarvin {

namespace {

void applyWindowBounds(ControlledWindow& window, const Rect& bounds)
{
    // A window that grows may be pushed away from an edge, and one that moves may be made to fit, so it is moved again.
    window.setPosition(bounds.origin);
    window.setSize(bounds.size);
    window.setPosition(bounds.origin);
}

} // namespace

WindowSnapping::WindowSnapping(const Collaborators& collaborators)
    : m_with(collaborators)
{ }

void WindowSnapping::snapFrontWindow(WindowSnapPosition position)
{
    const std::optional<QString> myBundleId = m_with.processInfo.bundleIdentifier();
    const bool isSelfInFront = identifierOf(m_with.workspace.frontmostApplication()) == myBundleId;
    const std::optional<RunningApplication> target = m_with.targets.resolveTargetApplication(myBundleId);
    if (!target)
        return;
    const ProcessIdentifier process = target->processIdentifier;
    if (!isSelfInFront || target->bundleIdentifier() == myBundleId) {
        snap(process, position);
        return;
    }
    m_with.workspace.activate(process);
    m_with.scheduler.postAfter(activationDelay, [this, process, position] { snap(process, position); });
}

void WindowSnapping::snap(ProcessIdentifier process, WindowSnapPosition position)
{
    const std::unique_ptr<ControlledWindow> window = frontWindowOf(m_with.windows, process);
    if (!window) {
        m_with.scripts.runAsyncAppleScript(SnapWindowByScript{position});
        return;
    }
    const Rect frame{window->position().value_or(Point{}), window->size().value_or(Size{})};
    const Rect visible = visibleFrameFor(m_with.screens, frame);
    switch (position) {
    case WindowSnapPosition::left:
        m_preSnapFrames.try_emplace(process, frame);
        applyWindowBounds(*window, snapFrame(position, visible));
        m_with.notice.recordTriggerDirectly(u"Window Snapped Left (50%)"_qs);
        return;
    case WindowSnapPosition::right:
        m_preSnapFrames.try_emplace(process, frame);
        applyWindowBounds(*window, snapFrame(position, visible));
        m_with.notice.recordTriggerDirectly(u"Window Snapped Right (50%)"_qs);
        return;
    case WindowSnapPosition::maximize:
        toggleMaximized(*window, process, frame, visible);
        return;
    }
}

void WindowSnapping::toggleMaximized(
    ControlledWindow& window, ProcessIdentifier process, const Rect& frame, const Rect& visible)
{
    if (window.isFullScreen() == true) {
        window.setFullScreen(false);
        m_with.notice.recordTriggerDirectly(u"Window Restored"_qs);
        return;
    }
    if (fills(frame, visible)) {
        if (const auto saved = m_preSnapFrames.extract(process)) {
            applyWindowBounds(window, saved.mapped());
            m_with.notice.recordTriggerDirectly(u"Window Restored"_qs);
            return;
        }
    } else {
        m_preSnapFrames.insert_or_assign(process, frame);
    }
    applyWindowBounds(window, visible);
    m_with.notice.recordTriggerDirectly(u"Window Maximized"_qs);
}

} // namespace tarvin
