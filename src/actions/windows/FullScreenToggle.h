#pragma once

namespace tarvin {

class ProcessInfo;
class ScriptRunner;
class TargetApplication;
class TriggerNotice;
class WindowControl;

/// Takes the front window of the target application into full screen and out of it. Main thread only.
class FullScreenToggle
{
public:
    struct Collaborators
    {
        const ProcessInfo& processInfo;
        TargetApplication& targets;
        WindowControl& windows;
        ScriptRunner& scripts;
        TriggerNotice& notice;
    };

    explicit FullScreenToggle(const Collaborators& collaborators);

    /// By the window's button, else by its attribute, else by script. Says that it was done even where only the script
    /// was asked, whose outcome nobody knows.
    void executeToggleFullscreen();

private:
    Collaborators m_with;
};

} // namespace tarvin
