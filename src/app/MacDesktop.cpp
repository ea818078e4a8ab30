#include "app/MacDesktop.h"

#include "platform/macos/panels/MacFloatingPanel.h"

#include <utility>

namespace tarvin {

MacDesktop::MacDesktop()
    : files(userEnvironment.applicationSupportDirectory())
    , keyRecording([this](bool isRecording) { inputTaps.setRecording(isRecording); })
    , shell(scheduler)
{ }

Platform MacDesktop::ports()
{
    return {
        .scheduler = scheduler,
        .inputTaps = inputTaps,
        .eventPoster = poster,
        .pointer = pointer,
        .permission = permission,
        .workspace = workspace,
        .preferences = preferences,
        .files = files,
        .console = console,
        .processInfo = processInfo,
        .scripts = scripts,
        .loginItem = loginItem,
        .functionKeySetting = functionKeySetting,
        .appShell = shell,
        .sounds = sounds,
        .haptics = haptics,
        .powerSources = powerSources,
        .uuids = uuids,
        .systemKeys = systemKeys,
        .displayBrightness = displayBrightness,
        .systemCommands = systemCommands,
        .loginWindow = loginWindow,
        .appleMenu = appleMenu,
        .windowControl = windowControl,
        .screens = screens,
        .applicationControl = applicationControl,
        .pasteboard = pasteboard,
        .userEnvironment = userEnvironment,
        .keyRecording = keyRecording,
        .applicationFolders = applicationFolders,
        .applicationChooser = applicationChooser,
    };
}

DrawnToolPanels::Surroundings MacDesktop::panelSurroundings()
{
    return {
        .makePanel =
            [this](PanelWindow& view, const PanelTraits& traits, std::function<void()> onCloseRequested) {
                return std::make_unique<macos::MacFloatingPanel>(view, traits, shell, std::move(onCloseRequested));
            },
        // The window server blends every window.
        .hasCompositor = [] { return true; },
        .views = views,
    };
}

} // namespace tarvin
