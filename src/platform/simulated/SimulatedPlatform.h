#pragma once

#include "platform/ports/Platform.h"
#include "platform/simulated/EffectLog.h"
#include "platform/simulated/SimulatedAppShell.h"
#include "platform/simulated/SimulatedAppleMenu.h"
#include "platform/simulated/SimulatedApplicationChooser.h"
#include "platform/simulated/SimulatedApplicationControl.h"
#include "platform/simulated/SimulatedApplicationFolders.h"
#include "platform/simulated/SimulatedConsole.h"
#include "platform/simulated/SimulatedDisplayBrightness.h"
#include "platform/simulated/SimulatedEventPoster.h"
#include "platform/simulated/SimulatedFiles.h"
#include "platform/simulated/SimulatedFunctionKeySetting.h"
#include "platform/simulated/SimulatedInputTaps.h"
#include "platform/simulated/SimulatedKeyRecording.h"
#include "platform/simulated/SimulatedLoginItem.h"
#include "platform/simulated/SimulatedPasteboard.h"
#include "platform/simulated/SimulatedPermission.h"
#include "platform/simulated/SimulatedPointer.h"
#include "platform/simulated/SimulatedPowerSources.h"
#include "platform/simulated/SimulatedPreferences.h"
#include "platform/simulated/SimulatedProcessInfo.h"
#include "platform/simulated/SimulatedScheduler.h"
#include "platform/simulated/SimulatedScreens.h"
#include "platform/simulated/SimulatedScripts.h"
#include "platform/simulated/SimulatedSounds.h"
#include "platform/simulated/SimulatedSystemCommands.h"
#include "platform/simulated/SimulatedSystemKeys.h"
#include "platform/simulated/SimulatedUserEnvironment.h"
#include "platform/simulated/SimulatedUuidGenerator.h"
#include "platform/simulated/SimulatedWindowControl.h"
#include "platform/simulated/SimulatedWorkspace.h"

namespace tarvin::simulated {

/// A desktop in memory: one simulated object per port, and one log of everything that they were asked to do.
///
/// Everything lives on one thread. The platform outlives whatever uses its ports.
class SimulatedPlatform
{
public:
    SimulatedPlatform();
    Q_DISABLE_COPY_MOVE(SimulatedPlatform)

    [[nodiscard]] Platform ports();

    [[nodiscard]] EffectLog& effects() { return m_effects; }
    [[nodiscard]] SimulatedScheduler& scheduler() { return m_scheduler; }
    [[nodiscard]] SimulatedPermission& permission() { return m_permission; }
    [[nodiscard]] SimulatedInputTaps& inputTaps() { return m_inputTaps; }
    [[nodiscard]] SimulatedEventPoster& poster() { return m_poster; }
    [[nodiscard]] SimulatedPointer& pointer() { return m_pointer; }
    [[nodiscard]] SimulatedWorkspace& workspace() { return m_workspace; }
    [[nodiscard]] SimulatedPreferences& preferences() { return m_preferences; }
    [[nodiscard]] SimulatedFiles& files() { return m_files; }
    [[nodiscard]] SimulatedConsole& console() { return m_console; }
    [[nodiscard]] SimulatedProcessInfo& processInfo() { return m_processInfo; }
    [[nodiscard]] SimulatedScripts& scripts() { return m_scripts; }
    [[nodiscard]] SimulatedLoginItem& loginItem() { return m_loginItem; }
    [[nodiscard]] SimulatedFunctionKeySetting& functionKeySetting() { return m_functionKeySetting; }
    [[nodiscard]] SimulatedAppShell& appShell() { return m_appShell; }
    [[nodiscard]] SimulatedSounds& sounds() { return m_sounds; }
    [[nodiscard]] SimulatedHaptics& haptics() { return m_haptics; }
    [[nodiscard]] SimulatedPowerSources& powerSources() { return m_powerSources; }
    [[nodiscard]] SimulatedUuidGenerator& uuids() { return m_uuids; }
    [[nodiscard]] SimulatedPasteboard& pasteboard() { return m_pasteboard; }
    [[nodiscard]] SimulatedSystemKeys& systemKeys() { return m_systemKeys; }
    [[nodiscard]] SimulatedDisplayBrightness& displayBrightness() { return m_displayBrightness; }
    [[nodiscard]] SimulatedSystemCommands& systemCommands() { return m_systemCommands; }
    [[nodiscard]] SimulatedLoginWindow& loginWindow() { return m_loginWindow; }
    [[nodiscard]] SimulatedAppleMenu& appleMenu() { return m_appleMenu; }
    [[nodiscard]] SimulatedWindowControl& windowControl() { return m_windowControl; }
    [[nodiscard]] SimulatedScreens& screens() { return m_screens; }
    [[nodiscard]] SimulatedApplicationControl& applicationControl() { return m_applicationControl; }
    [[nodiscard]] SimulatedUserEnvironment& userEnvironment() { return m_userEnvironment; }
    [[nodiscard]] SimulatedKeyRecording& keyRecording() { return m_keyRecording; }
    [[nodiscard]] SimulatedApplicationFolders& applicationFolders() { return m_applicationFolders; }
    [[nodiscard]] SimulatedApplicationChooser& applicationChooser() { return m_applicationChooser; }

private:
    SimulatedScheduler m_scheduler;
    EffectLog m_effects;
    SimulatedPermission m_permission;
    SimulatedInputTaps m_inputTaps;
    SimulatedEventPoster m_poster;
    SimulatedPointer m_pointer;
    SimulatedWorkspace m_workspace;
    SimulatedPreferences m_preferences;
    SimulatedFiles m_files;
    SimulatedConsole m_console;
    SimulatedProcessInfo m_processInfo;
    SimulatedScripts m_scripts;
    SimulatedLoginItem m_loginItem;
    SimulatedFunctionKeySetting m_functionKeySetting;
    SimulatedAppShell m_appShell;
    SimulatedSounds m_sounds;
    SimulatedHaptics m_haptics;
    SimulatedPowerSources m_powerSources;
    SimulatedUuidGenerator m_uuids;
    SimulatedPasteboard m_pasteboard;
    SimulatedDisplayBrightness m_displayBrightness;
    SimulatedSystemKeys m_systemKeys;
    SimulatedSystemCommands m_systemCommands;
    SimulatedLoginWindow m_loginWindow;
    SimulatedAppleMenu m_appleMenu;
    SimulatedWindowControl m_windowControl;
    SimulatedScreens m_screens;
    SimulatedApplicationControl m_applicationControl;
    SimulatedUserEnvironment m_userEnvironment;
    SimulatedKeyRecording m_keyRecording;
    SimulatedApplicationFolders m_applicationFolders;
    SimulatedApplicationChooser m_applicationChooser;
};

} // namespace tarvin::simulated
