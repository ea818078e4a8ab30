// The same promises that the other platforms are held to, on a Mac. Nothing is pressed, opened, ended or changed,
// except the clipboard, whose text comes back.

#include "platform/contracts/ApplicationFoldersContract.h"
#include "platform/contracts/ApplicationsContract.h"
#include "platform/contracts/InputContract.h"
#include "platform/contracts/MachineContract.h"
#include "platform/contracts/PasteboardContract.h"
#include "platform/contracts/SchedulerContract.h"
#include "platform/contracts/StoresContract.h"
#include "platform/contracts/SystemContract.h"
#include "platform/contracts/UserContract.h"
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
#include "platform/macos/MacSounds.h"
#include "platform/macos/MacUserEnvironment.h"
#include "platform/macos/MacWindowControl.h"
#include "platform/macos/MacWorkspace.h"
#include "platform/posix/RandomUuids.h"

#include <CoreFoundation/CoreFoundation.h>

#include <chrono>

namespace tarvin::contracts {

namespace {

class Mac
{
public:
    Scheduler& scheduler() { return m_scheduler; }
    Preferences& preferences() { return m_preferences; }
    Pasteboard& pasteboard() { return m_pasteboard; }
    Workspace& workspace() { return m_workspace; }
    ApplicationControl& applicationControl() { return m_applicationControl; }
    ApplicationFolders& applicationFolders() { return m_applicationFolders; }
    WindowControl& windowControl() { return m_windowControl; }
    Screens& screens() { return m_screens; }
    Pointer& pointer() { return m_pointer; }
    DisplayBrightness& displayBrightness() { return m_displayBrightness; }
    PowerSources& powerSources() { return m_powerSources; }
    Sounds& sounds() { return m_sounds; }
    UserEnvironment& userEnvironment() { return m_userEnvironment; }
    ProcessInfo& processInfo() { return m_processInfo; }
    UuidGenerator& uuids() { return m_uuids; }
    InputTaps& inputTaps() { return m_inputTaps; }
    EventPoster& eventPoster() { return m_eventPoster; }
    KeyRecording& keyRecording() { return m_keyRecording; }
    Permission& permission() { return m_permission; }
    LoginItem& loginItem() { return m_loginItem; }
    FunctionKeySetting& functionKeySetting() { return m_functionKeySetting; }

    /// The main run loop serves the main queue and the timers.
    static bool until(const std::function<bool()>& condition)
    {
        const auto deadline = std::chrono::steady_clock::now() + 10s;
        while (!condition() && std::chrono::steady_clock::now() < deadline)
            (void)CFRunLoopRunInMode(kCFRunLoopDefaultMode, 0.001, true);
        return condition();
    }

private:
    macos::MacScheduler m_scheduler;
    macos::MacPreferences m_preferences;
    macos::MacPasteboard m_pasteboard;
    macos::MacWorkspace m_workspace;
    macos::MacApplicationControl m_applicationControl;
    macos::MacApplicationFolders m_applicationFolders;
    macos::MacWindowControl m_windowControl;
    macos::MacScreens m_screens;
    macos::MacPointer m_pointer;
    macos::MacDisplayBrightness m_displayBrightness;
    macos::MacPowerSources m_powerSources;
    macos::MacSounds m_sounds;
    macos::MacUserEnvironment m_userEnvironment;
    macos::MacProcessInfo m_processInfo;
    posix::RandomUuids m_uuids;
    macos::MacInputTaps m_inputTaps;
    macos::MacEventPoster m_eventPoster;
    macos::MacKeyRecording m_keyRecording{{}};
    macos::MacPermission m_permission;
    macos::MacLoginItem m_loginItem;
    macos::MacFunctionKeySetting m_functionKeySetting;
};

using Platforms = testing::Types<Mac>;

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Mac, SchedulerContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Mac, PreferencesContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Mac, PasteboardContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Mac, ApplicationsContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Mac, ApplicationFoldersContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Mac, MachineContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Mac, UserContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Mac, InputContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Mac, SystemContract, Platforms);

} // namespace tarvin::contracts
