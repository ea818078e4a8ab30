#pragma once

#include "app/DrawnToolPanels.h"
#include "app/LinuxActions.h"
#include "platform/linux/desktop/AutostartLoginItem.h"
#include "platform/linux/desktop/DesktopApplicationFolders.h"
#include "platform/linux/desktop/DirectoryWatch.h"
#include "platform/linux/desktop/EwmhWorkspace.h"
#include "platform/linux/desktop/InstalledApplications.h"
#include "platform/linux/desktop/LinuxFunctionKeySetting.h"
#include "platform/linux/desktop/LinuxPermission.h"
#include "platform/linux/desktop/LinuxProcessInfo.h"
#include "platform/linux/desktop/LinuxScripts.h"
#include "platform/linux/desktop/NoApplicationChooser.h"
#include "platform/linux/desktop/NoHaptics.h"
#include "platform/linux/desktop/QtAppShell.h"
#include "platform/linux/desktop/QtScheduler.h"
#include "platform/linux/desktop/XConnection.h"
#include "platform/linux/evdev/LinuxInputTaps.h"
#include "platform/linux/evdev/TapClient.h"
#include "platform/linux/feedback/PulseSounds.h"
#include "platform/linux/feedback/UPowerSources.h"
#include "platform/linux/pasteboard/SelectionPasteboard.h"
#include "platform/linux/x11/InputThread.h"
#include "platform/linux/x11/X11EventPoster.h"
#include "platform/linux/x11/X11InputTaps.h"
#include "platform/linux/x11/X11KeyRecording.h"
#include "platform/linux/x11/X11Pointer.h"
#include "platform/ports/Platform.h"
#include "platform/posix/JsonPreferences.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixUserEnvironment.h"
#include "platform/posix/RandomUuids.h"
#include "platform/posix/StdoutConsole.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace tarvin {

class RuntimeLog;

/// Every port of a Linux desktop, in the order in which they need each other.
class LinuxDesktop
{
public:
    /// @param runtimeLog asked for when there is a line to write, not before the event loop runs
    /// @param tellUser shows the user one line; called on any thread
    LinuxDesktop(const QStringList& arguments, std::function<RuntimeLog&()> runtimeLog,
        std::function<void(const QString&)> tellUser);

    [[nodiscard]] Platform ports();
    /// Hold this desktop.
    [[nodiscard]] DrawnToolPanels::Surroundings panelSurroundings();

    std::vector<std::unique_ptr<QWidget>> views; ///< of the panels; the shell keeps their windows to its end
    desktop::QtScheduler scheduler;
    const std::function<void(const QString&)> log;
    posix::StdoutConsole console;
    posix::PosixFiles files;
    posix::JsonPreferences preferences;
    desktop::LinuxProcessInfo processInfo;
    desktop::LinuxScripts scripts;
    desktop::AutostartLoginItem loginItem;
    desktop::LinuxFunctionKeySetting functionKeySetting;
    posix::RandomUuids uuids;
    x11::InputThread inputThread;
    x11::X11InputTaps sessionTaps;
    evdev::TapClient tapClient;
    desktop::DirectoryWatch tapSocketWatch;
    evdev::LinuxInputTaps inputTaps;
    x11::X11KeyRecording keyRecording;
    desktop::XConnection connection;
    desktop::QtAppShell shell;
    desktop::InstalledApplications applications;
    desktop::DesktopApplicationFolders applicationFolders;
    desktop::NoApplicationChooser applicationChooser;
    desktop::EwmhWorkspace workspace;
    x11::X11EventPoster poster;
    x11::X11Pointer pointer;
    desktop::LinuxPermission permission;
    feedback::PulseSounds sounds;
    desktop::NoHaptics haptics;
    feedback::UPowerSources powerSources;
    pasteboard::SelectionPasteboard pasteboard;
    posix::PosixUserEnvironment userEnvironment;
    LinuxActions actions;

private:
    void watchTapSocket();
};

} // namespace tarvin
