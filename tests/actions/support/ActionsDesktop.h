#pragma once

#include "actions/ActionExecutor.h"
#include "actions/GuardedActions.h"
#include "actions/KeystrokeSynthesis.h"
#include "actions/ScriptRunner.h"
#include "actions/TargetApplication.h"
#include "actions/TestEnvironment.h"
#include "actions/support/Lines.h"
#include "actions/support/RecordingPerformers.h"
#include "actions/support/Transcript.h"
#include "interception/TriggerNotice.h"
#include "model/ConfiguredAction.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "support/QtPrinters.h"

#include <functional>

namespace tarvin::test {

/// A simulated desktop with the executor on it. Safari is in front, and the program itself runs behind it.
struct ActionsDesktop
{
    static constexpr ProcessIdentifier ownProcess = simulated::SimulatedWorkspace::ownProcess;
    static constexpr ProcessIdentifier safariProcess = 200;

    ActionsDesktop();

    [[nodiscard]] simulated::SimulatedWorkspace& workspace() { return platform.workspace(); }
    void bringSelfToFront() { workspace().setFrontmostProcess(ownProcess); }
    void runInTestSafeMode() { testEnvironment.setSuppressSystemPowerCommandsForTesting(true); }

    /// As `transcriptOf` of the desktop, with these of its own:
    ///   "0 use copy", "0 quickFlip(nothing)"   a use was counted, a performer called
    [[nodiscard]] QStringList transcriptOf(const std::function<void()>& deed)
    {
        return test::transcriptOf(platform, deed);
    }
    [[nodiscard]] QStringList run(const ConfiguredAction& config);
    [[nodiscard]] QStringList run(KeyAction action);

    simulated::SimulatedPlatform platform;
    Platform ports;
    TriggerNotice notice;
    TestEnvironment testEnvironment;
    TargetApplication targets;
    KeystrokeSynthesis synthesis;
    ScriptRunner scripts;
    RecordingPerformers performers;
    GuardedActions guarded;
    ActionExecutor executor;

private:
    void report(const QString& line);
};

/// A recorded shortcut.
[[nodiscard]] inline CustomShortcut shortcutOf(KeyCode keyCode, const QString& keyDisplay, EventFlags flags)
{
    return {
        .command = containsAll(flags, EventFlags::command),
        .option = containsAll(flags, EventFlags::option),
        .control = containsAll(flags, EventFlags::control),
        .shift = containsAll(flags, EventFlags::shift),
        .keyCode = keyCode,
        .keyDisplay = keyDisplay,
    };
}

} // namespace tarvin::test
