#include "app/OfflineStores.h"

#include "app/ControlPaths.h"
#include "platform/macos/MacPreferences.h"
#include "platform/macos/MacScheduler.h"
#include "platform/macos/MacUserEnvironment.h"
#include "platform/posix/PosixFiles.h"

namespace tarvin {

ControlPaths ControlPaths::fromEnvironment()
{
    return in(macos::MacUserEnvironment().temporaryDirectory());
}

struct OfflineStores::Native
{
    macos::MacScheduler scheduler;
    posix::PosixFiles files{macos::MacUserEnvironment().applicationSupportDirectory()};
    macos::MacPreferences preferences;
};

OfflineStores::OfflineStores(std::function<void(const QString&)> /*report*/)
    : m_native(std::make_unique<Native>())
{ }

OfflineStores::~OfflineStores() = default;

Files& OfflineStores::files()
{
    return m_native->files;
}

Preferences& OfflineStores::preferences()
{
    return m_native->preferences;
}

Scheduler& OfflineStores::scheduler()
{
    return m_native->scheduler;
}

} // namespace tarvin
