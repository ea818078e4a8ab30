#pragma once

#include "actions/KeystrokeActions.h"
#include "actions/seams/Performers.h"
#include "actions/seams/WindowActions.h"
#include "interception/ActionSink.h"
#include "model/KeyAction.h"

#include <QString>

#include <functional>

namespace tarvin {

class GuardedActions;
class KeystrokeSynthesis;
class Scheduler;
class ScriptRunner;
class TargetApplication;
class TestEnvironment;
class TriggerNotice;

/// Where a key press ends: brings every action to whoever performs it. Calls return as soon as the work has started,
/// because the system's event tap waits for them; what takes longer runs on later turns or on background queues. Nobody
/// reports a failure back. Main thread only; lives as long as the process.
class ActionExecutor : public ActionSink
{
public:
    struct Collaborators
    {
        std::function<void(KeyAction)> recordUsage; ///< counts one use and saves the count
        TriggerNotice& notice;
        const TestEnvironment& testEnvironment;
        TargetApplication& targets;
        KeystrokeSynthesis& synthesis;
        ScriptRunner& scripts;
        GuardedActions& guarded;
        Performers performers;
        Scheduler& scheduler;
    };

    explicit ActionExecutor(Collaborators collaborators);

    /// Performs the action with the parameters of the record and counts the use, always and first: also of an action
    /// that then has nothing to do, and in test-safe mode.
    void execute(const ConfiguredAction& config) override;
    /// Performs the action with nothing but its name and counts nothing. What needs parameters falls back to a default.
    void execute(KeyAction action);

    [[nodiscard]] bool isRunningInTestEnvironment() const;

    // Single actions by name, for the rest of the program. Nothing is counted.

    void executeBack() { execute(KeyAction::back); }
    void executeRefresh() { execute(KeyAction::refresh); }
    void executeCopy() { execute(KeyAction::copy); }
    void executePaste() { execute(KeyAction::paste); }
    void executeCut() { execute(KeyAction::cut); }
    void executeUndo() { execute(KeyAction::undo); }
    void executeRedo() { execute(KeyAction::redo); }
    void executeSelectAll() { execute(KeyAction::selectAll); }
    void executeMissionControl() { execute(KeyAction::missionControl); }
    void executeSpotlight() { execute(KeyAction::spotlight); }
    void executeMinimizeWindow() { execute(KeyAction::minimizeWindow); }
    void executeToggleFullscreen() { execute(KeyAction::toggleFullscreen); }
    void toggleMute() { execute(KeyAction::mute); }

private:
    void playShortcuts(const ConfiguredAction& config);
    void openConfiguredApplication(const ConfiguredAction& config);
    void forceQuit(const ConfiguredAction& config);
    void insertSnippet(const QString& text);
    void launch(KeyAction action);
    void snapLater(WindowSnapPosition position);

    Collaborators m_with;
    KeystrokeActions m_keystrokes;
};

} // namespace tarvin
