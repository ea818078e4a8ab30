#pragma once

#include "model/WindowSnapPosition.h"
#include "platform/ports/Geometry.h"
#include "platform/ports/Workspace.h"

#include <chrono>
#include <map>

namespace tarvin {

class ControlledWindow;
class ProcessInfo;
class Scheduler;
class Screens;
class ScriptRunner;
class TargetApplication;
class TriggerNotice;
class WindowControl;

/// Puts the front window of the target application into a half of its screen, or over all of it and back. Main thread
/// only.
class WindowSnapping
{
public:
    /// What an application needs to come forward before its window is asked for.
    static constexpr std::chrono::milliseconds activationDelay{60};

    struct Collaborators
    {
        Workspace& workspace;
        const ProcessInfo& processInfo;
        TargetApplication& targets;
        WindowControl& windows;
        const Screens& screens;
        ScriptRunner& scripts;
        TriggerNotice& notice;
        Scheduler& scheduler;
    };

    explicit WindowSnapping(const Collaborators& collaborators);

    void snapFrontWindow(WindowSnapPosition position);

    /// Where windows were before they were snapped: one frame for each application, not for each window.
    [[nodiscard]] const std::map<ProcessIdentifier, Rect>& preSnapFrames() const { return m_preSnapFrames; }

private:
    void snap(ProcessIdentifier process, WindowSnapPosition position);
    void toggleMaximized(ControlledWindow& window, ProcessIdentifier process, const Rect& frame, const Rect& visible);

    Collaborators m_with;
    std::map<ProcessIdentifier, Rect> m_preSnapFrames;
};

} // namespace tarvin
