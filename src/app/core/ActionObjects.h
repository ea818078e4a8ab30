#pragma once

#include "actions/ActionExecutor.h"
#include "actions/GuardedActions.h"
#include "actions/KeystrokeSynthesis.h"
#include "actions/ScriptRunner.h"
#include "actions/TargetApplication.h"
#include "actions/chains/ActionChainPlayer.h"
#include "actions/content/ApplicationLauncher.h"
#include "actions/content/ContentPerformer.h"
#include "actions/content/ScreenCapture.h"
#include "actions/content/SnippetPaste.h"
#include "actions/content/WebAssistant.h"
#include "actions/system/ForceQuit.h"
#include "actions/system/PowerCommands.h"
#include "actions/system/SystemKeyPresses.h"
#include "actions/system/SystemPerformer.h"
#include "actions/windows/FullScreenToggle.h"
#include "actions/windows/WindowMinimizing.h"
#include "actions/windows/WindowPerformer.h"
#include "actions/windows/WindowSnapping.h"
#include "platform/ports/Platform.h"

#include <functional>

namespace tarvin {

class AppWindow;

/// The executor and the smaller objects that only it uses. Main thread only.
struct ActionObjects
{
    /// What the executor reaches beyond these objects and the platform. All of it outlives them.
    struct Surroundings
    {
        TriggerNotice& notice;
        const TestEnvironment& testEnvironment;
        std::function<void(KeyAction)> recordUsage;
        std::function<AppWindow*()> mainWindow; ///< the Studio, null while it has not been made
        QuickFlip& quickFlip;
        ToolPanel& actionsRing;
        ToolPanel& clipboardHistory;
        ToolPanel& floatingScratchpad;
    };

    ActionObjects(const Platform& platform, const Surroundings& around);
    Q_DISABLE_COPY_MOVE(ActionObjects)

    TargetApplication targets;
    KeystrokeSynthesis synthesis;
    ScriptRunner scripts;
    SystemKeyPresses keys;
    PowerCommands power;
    ForceQuit forceQuit;
    SystemPerformer system;
    WindowSnapping snapping;
    WindowMinimizing minimizing;
    FullScreenToggle fullScreen;
    WindowPerformer windows;
    ScreenCapture capture;
    SnippetPaste paste;
    ApplicationLauncher launcher;
    WebAssistant assistant;
    ContentPerformer content;
    ActionChainPlayer chains;
    GuardedActions guarded;
    ActionExecutor executor;

private:
    [[nodiscard]] Performers performers(const Surroundings& around);
};

} // namespace tarvin
