#include "platform/contracts/ApplicationFoldersContract.h"
#include "platform/contracts/ApplicationsContract.h"
#include "platform/contracts/InputContract.h"
#include "platform/contracts/MachineContract.h"
#include "platform/contracts/PasteboardContract.h"
#include "platform/contracts/SchedulerContract.h"
#include "platform/contracts/StoresContract.h"
#include "platform/contracts/SystemContract.h"
#include "platform/contracts/UserContract.h"
#include "platform/simulated/SimulatedPlatform.h"

namespace tarvin::contracts {

namespace {

class SimulatedDesktop
{
public:
    Scheduler& scheduler() { return m_desktop.scheduler(); }
    Files& files() { return m_desktop.files(); }
    Preferences& preferences() { return m_desktop.preferences(); }
    Pasteboard& pasteboard() { return m_desktop.pasteboard(); }
    Workspace& workspace() { return m_desktop.workspace(); }
    ApplicationControl& applicationControl() { return m_desktop.applicationControl(); }
    ApplicationFolders& applicationFolders() { return m_desktop.applicationFolders(); }
    WindowControl& windowControl() { return m_desktop.windowControl(); }
    Screens& screens() { return m_desktop.screens(); }
    Pointer& pointer() { return m_desktop.pointer(); }
    DisplayBrightness& displayBrightness() { return m_desktop.displayBrightness(); }
    PowerSources& powerSources() { return m_desktop.powerSources(); }
    Sounds& sounds() { return m_desktop.sounds(); }
    UserEnvironment& userEnvironment() { return m_desktop.userEnvironment(); }
    ProcessInfo& processInfo() { return m_desktop.processInfo(); }
    UuidGenerator& uuids() { return m_desktop.uuids(); }
    InputTaps& inputTaps() { return m_desktop.inputTaps(); }
    EventPoster& eventPoster() { return m_desktop.poster(); }
    KeyRecording& keyRecording() { return m_desktop.keyRecording(); }
    Permission& permission() { return m_desktop.permission(); }
    LoginItem& loginItem() { return m_desktop.loginItem(); }
    FunctionKeySetting& functionKeySetting() { return m_desktop.functionKeySetting(); }

    bool until(const std::function<bool()>& condition)
    {
        for (std::chrono::milliseconds patience = 10s; patience > 0s && !condition(); patience -= 1ms)
            m_desktop.scheduler().advance(1ms);
        return condition();
    }

private:
    simulated::SimulatedPlatform m_desktop;
};

using Platforms = testing::Types<SimulatedDesktop>;

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, SchedulerContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, FilesContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, PreferencesContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, PasteboardContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, ApplicationsContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, ApplicationFoldersContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, MachineContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, UserContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, InputContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Simulated, SystemContract, Platforms);

} // namespace tarvin::contracts
