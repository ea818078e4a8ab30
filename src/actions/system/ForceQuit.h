#pragma once

#include <QString>

namespace tarvin {

class ApplicationControl;
class KeystrokeSynthesis;
class ProcessInfo;
class ScriptRunner;
class TargetApplication;
class TriggerNotice;
struct RunningApplication;

/// Ends the application that the user works in without letting it save, or opens the system's dialog for it. Never
/// ends the program itself, and no environment in which software is written. The caller has seen to test-safe mode.
/// Main thread only.
class ForceQuit
{
public:
    struct Collaborators
    {
        TargetApplication& targets;
        ApplicationControl& applications;
        const ProcessInfo& processInfo;
        ScriptRunner& scripts;
        KeystrokeSynthesis& synthesis;
        TriggerNotice& notice;
    };

    explicit ForceQuit(const Collaborators& collaborators);

    void forceQuitFrontmostApplication();
    void openSystemForceQuitDialog();

private:
    [[nodiscard]] bool isProtected(const RunningApplication& target) const;
    void end(const RunningApplication& target, const QString& name);

    Collaborators m_with;
};

} // namespace tarvin
