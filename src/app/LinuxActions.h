#pragma once

#include "platform/linux/applications/ApplicationLauncher.h"
#include "platform/linux/applications/LinuxApplicationControl.h"
#include "platform/linux/capture/LinuxScreenCapture.h"
#include "platform/linux/functions/DesktopFunctions.h"
#include "platform/linux/functions/ForceQuitDialog.h"
#include "platform/linux/mixer/PulseMixer.h"
#include "platform/linux/services/AnswerWatch.h"
#include "platform/linux/services/Backlight.h"
#include "platform/linux/services/LinuxSystemCommands.h"
#include "platform/linux/services/LinuxSystemKeys.h"
#include "platform/linux/services/MprisPlayers.h"
#include "platform/linux/services/NoAppleMenu.h"
#include "platform/linux/services/ScreenSaver.h"
#include "platform/linux/services/SessionEnd.h"
#include "platform/linux/windows/EwmhWindowControl.h"
#include "platform/linux/windows/RandrScreens.h"
#include "platform/ports/Script.h"

#include <memory>
#include <optional>

namespace tarvin {

/// What actions ask of a Linux desktop, wired together. Nothing is connected and no thread started before the first
/// action that needs it.
class LinuxActions
{
public:
    /// What is there already.
    struct Desktop
    {
        Scheduler& scheduler;
        desktop::XConnection& connection;
        desktop::InstalledApplications& applications;
        Workspace& workspace;
        double pixelsPerPoint = 1;
    };

    /// @param tellUser shows the user one line; called on any thread
    LinuxActions(const Desktop& desktop, services::TellUser tellUser);

    /// The meaning of the microphone script; in the background.
    [[nodiscard]] std::optional<ScriptResult> toggleMicrophone();
    /// Brings the user's file manager to the front, or starts it. Any thread.
    void activateFileManager();

private:
    void showForceQuitDialog();

    Desktop m_desktop;
    services::TellUser m_tellUser;
    services::Buses m_buses;
    services::AnswerWatch m_answers;
    mixer::PulseMixer m_mixer;
    services::MprisPlayers m_players;
    services::ScreenSaver m_screenSaver;
    capture::LinuxScreenCapture m_capture;
    applications::ApplicationLauncher m_launcher;
    std::unique_ptr<functions::ForceQuitDialog> m_forceQuitDialog; ///< made when it is first shown

public:
    services::Backlight backlight;
    services::LinuxSystemKeys systemKeys;
    services::LinuxSystemCommands systemCommands;
    services::SessionEnd sessionEnd;
    services::NoAppleMenu appleMenu;
    windows::EwmhWindowControl windowControl;
    windows::RandrScreens screens;
    applications::LinuxApplicationControl applicationControl;
    functions::DesktopFunctions functions;
};

} // namespace tarvin
