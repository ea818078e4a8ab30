#include "app/OfflineStores.h"

#include "app/ControlPaths.h"
#include "platform/linux/desktop/QtScheduler.h"
#include "platform/linux/desktop/SingleInstance.h"
#include "platform/posix/JsonPreferences.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/XdgDirectories.h"

#include <utility>

namespace tarvin {

ControlPaths ControlPaths::fromEnvironment()
{
    return in(desktop::SingleInstance::defaultRuntimeDirectory());
}

struct OfflineStores::Native
{
    explicit Native(std::function<void(const QString&)> report)
        : preferences(files, posix::settingsFile(), std::move(report))
    { }

    desktop::QtScheduler scheduler;
    posix::PosixFiles files{posix::applicationSupportDirectory()};
    posix::JsonPreferences preferences;
};

OfflineStores::OfflineStores(std::function<void(const QString&)> report)
    : m_native(std::make_unique<Native>(std::move(report)))
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
