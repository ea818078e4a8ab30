#pragma once

#include <functional>

namespace tarvin {

class AppShell;
class AppWindow;
class ControlledWindow;
class ProcessInfo;
class ScriptRunner;
class TargetApplication;
class TriggerNotice;
class WindowControl;
class Workspace;

/// Minimises the front window of the target application or, unlike every other action, the program's own window while
/// the program is in front. Main thread only.
class WindowMinimizing
{
public:
    struct Collaborators
    {
        Workspace& workspace;
        const ProcessInfo& processInfo;
        TargetApplication& targets;
        WindowControl& windows;
        AppShell& appShell;
        /// The Studio, null while it has not been made.
        std::function<AppWindow*()> mainWindow;
        ScriptRunner& scripts;
        TriggerNotice& notice;
    };

    explicit WindowMinimizing(Collaborators collaborators);

    void executeMinimizeWindow();

private:
    [[nodiscard]] AppWindow* ownWindow() const;

    Collaborators m_with;
};

} // namespace tarvin
