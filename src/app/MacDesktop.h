#pragma once

#include "app/DrawnToolPanels.h"
#include "platform/macos/MacAppleMenu.h"
#include "platform/macos/MacApplicationChooser.h"
#include "platform/macos/MacApplicationControl.h"
#include "platform/macos/MacApplicationFolders.h"
#include "platform/macos/MacDisplayBrightness.h"
#include "platform/macos/MacEventPoster.h"
#include "platform/macos/MacFunctionKeySetting.h"
#include "platform/macos/MacInputTaps.h"
#include "platform/macos/MacKeyRecording.h"
#include "platform/macos/MacLoginItem.h"
#include "platform/macos/MacPasteboard.h"
#include "platform/macos/MacPermission.h"
#include "platform/macos/MacPointer.h"
#include "platform/macos/MacPowerSources.h"
#include "platform/macos/MacPreferences.h"
#include "platform/macos/MacProcessInfo.h"
#include "platform/macos/MacScheduler.h"
#include "platform/macos/MacScreens.h"
#include "platform/macos/MacScripts.h"
#include "platform/macos/MacSounds.h"
#include "platform/macos/MacSystemCommands.h"
#include "platform/macos/MacSystemKeys.h"
#include "platform/macos/MacUserEnvironment.h"
#include "platform/macos/MacWindowControl.h"
#include "platform/macos/MacWorkspace.h"
#include "platform/macos/shell/MacAppShell.h"
#include "platform/ports/Platform.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/RandomUuids.h"
#include "platform/posix/StdoutConsole.h"

#include <QWidget>

#include <memory>
#include <vector>

namespace tarvin {

/// Every port of a Mac, in the order in which they need each other.
class MacDesktop
{
public:
    MacDesktop();

    [[nodiscard]] Platform ports();
    /// Hold this desktop.
    [[nodiscard]] DrawnToolPanels::Surroundings panelSurroundings();

    std::vector<std::unique_ptr<QWidget>> views; ///< of the panels; the shell keeps their windows to its end
    macos::MacScheduler scheduler;
    posix::StdoutConsole console;
    macos::MacUserEnvironment userEnvironment;
    posix::PosixFiles files;
    macos::MacPreferences preferences;
    macos::MacProcessInfo processInfo;
    macos::MacScripts scripts;
    macos::MacLoginItem loginItem;
    macos::MacFunctionKeySetting functionKeySetting;
    posix::RandomUuids uuids;
    macos::MacInputTaps inputTaps;
    macos::MacKeyRecording keyRecording;
    macos::MacEventPoster poster;
    macos::MacPointer pointer;
    macos::MacPermission permission;
    macos::MacWorkspace workspace;
    macos::MacAppShell shell;
    macos::MacSounds sounds;
    macos::MacHaptics haptics;
    macos::MacPowerSources powerSources;
    macos::MacSystemKeys systemKeys;
    macos::MacDisplayBrightness displayBrightness;
    macos::MacSystemCommands systemCommands;
    macos::MacLoginWindow loginWindow;
    macos::MacAppleMenu appleMenu;
    macos::MacWindowControl windowControl;
    macos::MacScreens screens;
    macos::MacApplicationControl applicationControl;
    macos::MacApplicationFolders applicationFolders;
    macos::MacApplicationChooser applicationChooser;
    macos::MacPasteboard pasteboard;
};

} // namespace tarvin
