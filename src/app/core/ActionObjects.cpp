#include "app/core/ActionObjects.h"

namespace tarvin {

// The macros, the smart actions and the executor call each other. Whoever is made earlier only keeps the reference to
// the later one and does not use it before everything stands.
ActionObjects::ActionObjects(const Platform& platform, const Surroundings& around)
    : targets(platform.workspace, platform.processInfo, platform.scheduler)
    , synthesis(platform.eventPoster, platform.pointer, platform.scheduler, around.testEnvironment, targets)
    , scripts(platform.scripts, platform.scheduler, around.testEnvironment)
    , keys(platform.systemKeys, platform.scheduler)
    , power({
          .commands = platform.systemCommands,
          .loginWindow = platform.loginWindow,
          .appleMenu = platform.appleMenu,
          .scripts = scripts,
          .scheduler = platform.scheduler,
      })
    , forceQuit({
          .targets = targets,
          .applications = platform.applicationControl,
          .processInfo = platform.processInfo,
          .scripts = scripts,
          .synthesis = synthesis,
          .notice = around.notice,
      })
    , system({
          .keys = keys,
          .scripts = scripts,
          .unguardedScripts = platform.scripts,
          .brightness = platform.displayBrightness,
          .power = power,
          .forceQuit = forceQuit,
          .notice = around.notice,
          .scheduler = platform.scheduler,
      })
    , snapping({
          .workspace = platform.workspace,
          .processInfo = platform.processInfo,
          .targets = targets,
          .windows = platform.windowControl,
          .screens = platform.screens,
          .scripts = scripts,
          .notice = around.notice,
          .scheduler = platform.scheduler,
      })
    , minimizing({
          .workspace = platform.workspace,
          .processInfo = platform.processInfo,
          .targets = targets,
          .windows = platform.windowControl,
          .appShell = platform.appShell,
          .mainWindow = around.mainWindow,
          .scripts = scripts,
          .notice = around.notice,
      })
    , fullScreen({
          .processInfo = platform.processInfo,
          .targets = targets,
          .windows = platform.windowControl,
          .scripts = scripts,
          .notice = around.notice,
      })
    , windows(snapping, minimizing, fullScreen)
    , capture(platform.systemCommands, platform.userEnvironment, platform.scheduler)
    , paste(platform.pasteboard, synthesis, platform.scheduler)
    , launcher(platform.applicationControl, platform.workspace, platform.userEnvironment, around.notice)
    , assistant(synthesis, platform.pasteboard, platform.workspace, platform.scheduler)
    , content({
          .capture = capture,
          .paste = paste,
          .launcher = launcher,
          .assistant = assistant,
          .guarded = guarded,
          .keys = keys,
          .synthesis = synthesis,
          .applications = platform.applicationControl,
          .workspace = platform.workspace,
      })
    , chains({
          .execute = [this](KeyAction action) { executor.execute(action); },
          .guarded = guarded,
          .content = content,
          .synthesis = synthesis,
          .targets = targets,
          .testEnvironment = around.testEnvironment,
          .notice = around.notice,
          .scheduler = platform.scheduler,
      })
    , guarded(performers(around), around.testEnvironment, around.notice)
    , executor({
          .recordUsage = around.recordUsage,
          .notice = around.notice,
          .testEnvironment = around.testEnvironment,
          .targets = targets,
          .synthesis = synthesis,
          .scripts = scripts,
          .guarded = guarded,
          .performers = performers(around),
          .scheduler = platform.scheduler,
      })
{ }

Performers ActionObjects::performers(const Surroundings& around)
{
    return {
        .chains = chains,
        .content = content,
        .system = system,
        .windows = windows,
        .quickFlip = around.quickFlip,
        .actionsRing = around.actionsRing,
        .clipboardHistory = around.clipboardHistory,
        .floatingScratchpad = around.floatingScratchpad,
    };
}

} // namespace tarvin
