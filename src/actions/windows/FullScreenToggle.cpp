#include "actions/windows/FullScreenToggle.h"

#include "actions/OwnApplication.h"
#include "actions/ScriptRunner.h"
#include "actions/TargetApplication.h"
#include "actions/windows/FrontWindow.h"
#include "interception/TriggerNotice.h"

namespace tarvin {

FullScreenToggle::FullScreenToggle(const Collaborators& collaborators)
    : m_with(collaborators)
{ }

void FullScreenToggle::executeToggleFullscreen()
{
    const auto target = m_with.targets.resolveTargetApplication(ownIdentifierOrDefault(m_with.processInfo));
    const auto window = target ? frontWindowOf(m_with.windows, target->processIdentifier) : nullptr;
    if (window) {
        if (window->pressFullScreenButton()) {
            m_with.notice.recordTriggerDirectly(u"Full-Screen Mode Toggled"_qs);
            return;
        }
        const std::optional<bool> isFullScreen = window->isFullScreen();
        if (isFullScreen && window->setFullScreen(!*isFullScreen)) {
            m_with.notice.recordTriggerDirectly(
                *isFullScreen ? u"Exited Full-Screen Mode"_qs : u"Entered Full-Screen Mode"_qs);
            return;
        }
    }
    m_with.scripts.runAsyncAppleScript(ToggleFullScreenByScript{});
    m_with.notice.recordTriggerDirectly(u"Full-Screen Mode Toggled"_qs);
}

} // namespace tarvin
