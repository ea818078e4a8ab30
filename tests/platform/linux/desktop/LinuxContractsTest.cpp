#include "platform/contracts/ApplicationFoldersContract.h"
#include "platform/contracts/SchedulerContract.h"
#include "platform/contracts/UserContract.h"
#include "platform/linux/desktop/DesktopApplicationFolders.h"
#include "platform/linux/desktop/LinuxProcessInfo.h"
#include "platform/linux/desktop/QtScheduler.h"
#include "platform/posix/PosixUserEnvironment.h"
#include "platform/posix/RandomUuids.h"

#include "endtoend/support/Patience.h"

#include <QCoreApplication>

namespace tarvin::contracts {

namespace {

/// What of a Linux desktop needs no server.
class LinuxWithoutDesktop
{
public:
    Scheduler& scheduler() { return m_scheduler; }
    ApplicationFolders& applicationFolders() { return m_applicationFolders; }
    UserEnvironment& userEnvironment() { return m_userEnvironment; }
    ProcessInfo& processInfo() { return m_processInfo; }
    UuidGenerator& uuids() { return m_uuids; }

    static bool until(const std::function<bool()>& condition) { return endtoend::eventually(condition); }

private:
    desktop::QtScheduler m_scheduler;
    desktop::DesktopApplicationFolders m_applicationFolders{desktop::ApplicationLocations::fromEnvironment()};
    posix::PosixUserEnvironment m_userEnvironment;
    desktop::LinuxProcessInfo m_processInfo{QCoreApplication::arguments()};
    posix::RandomUuids m_uuids;
};

using Platforms = testing::Types<LinuxWithoutDesktop>;

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, SchedulerContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Linux, ApplicationFoldersContract, Platforms);
INSTANTIATE_TYPED_TEST_SUITE_P(Linux, UserContract, Platforms);

} // namespace tarvin::contracts
