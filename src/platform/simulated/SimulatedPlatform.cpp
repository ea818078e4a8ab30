#include "platform/simulated/SimulatedPlatform.h"

namespace tarvin::simulated {

SimulatedPlatform::SimulatedPlatform()
    : m_effects(m_scheduler)
    , m_permission(m_effects)
    , m_inputTaps(m_effects, m_permission)
    , m_poster(m_effects, m_permission)
    , m_workspace(m_effects, m_scheduler)
    , m_preferences(m_effects)
    , m_files(m_effects)
    , m_console(m_effects)
    , m_scripts(m_effects)
    , m_loginItem(m_effects)
    , m_functionKeySetting(m_effects)
    , m_appShell(m_effects, m_scheduler, m_workspace)
    , m_sounds(m_effects)
    , m_haptics(m_effects)
    , m_powerSources(m_effects)
    , m_pasteboard(m_effects, m_scheduler)
    , m_systemKeys(m_effects, m_permission, m_scheduler, m_displayBrightness)
    , m_systemCommands(m_effects)
    , m_loginWindow(m_effects)
    , m_appleMenu(m_effects, m_workspace)
    , m_windowControl(m_effects)
    , m_applicationControl(m_effects, m_scheduler, m_workspace, m_files)
{ }

Platform SimulatedPlatform::ports()
{
    return {.scheduler = m_scheduler,
        .inputTaps = m_inputTaps,
        .eventPoster = m_poster,
        .pointer = m_pointer,
        .permission = m_permission,
        .workspace = m_workspace,
        .preferences = m_preferences,
        .files = m_files,
        .console = m_console,
        .processInfo = m_processInfo,
        .scripts = m_scripts,
        .loginItem = m_loginItem,
        .functionKeySetting = m_functionKeySetting,
        .appShell = m_appShell,
        .sounds = m_sounds,
        .haptics = m_haptics,
        .powerSources = m_powerSources,
        .uuids = m_uuids,
        .systemKeys = m_systemKeys,
        .displayBrightness = m_displayBrightness,
        .systemCommands = m_systemCommands,
        .loginWindow = m_loginWindow,
        .appleMenu = m_appleMenu,
        .windowControl = m_windowControl,
        .screens = m_screens,
        .applicationControl = m_applicationControl,
        .pasteboard = m_pasteboard,
        .userEnvironment = m_userEnvironment,
        .keyRecording = m_keyRecording,
        .applicationFolders = m_applicationFolders,
        .applicationChooser = m_applicationChooser};
}

} // namespace tarvin::simulated
