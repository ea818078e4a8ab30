#pragma once

#include "platform/linux/applications/LaunchEntry.h"
#include "platform/linux/services/Buses.h"
#include "platform/linux/services/UserNotice.h"
#include "platform/ports/Scheduler.h"

namespace tarvin::desktop {
class XConnection;
}

namespace tarvin::applications {

/// Starts applications from their desktop entries, with a startup id where they know one, so that their first window
/// may come to the front. Main thread; the work itself happens in the background.
class ApplicationLauncher
{
public:
    ApplicationLauncher(Scheduler& scheduler, desktop::XConnection& connection, services::Buses::Provider sessionBus,
        services::TellUser tellUser);

    /// @param path of the desktop entry
    /// @param id of the entry, without suffix
    void launch(const QString& path, const QString& id);

private:
    void launchNow(const QString& path, const QString& id, const QString& startupId) const;
    [[nodiscard]] bool askOverBus(const QString& id, const QString& startupId) const;
    [[nodiscard]] static bool start(const LaunchEntry& entry, const QString& startupId);
    void announce(const LaunchEntry& entry, const QString& startupId) const;

    Scheduler& m_scheduler;
    desktop::XConnection& m_connection;
    services::Buses::Provider m_sessionBus;
    services::TellUser m_tellUser;
    int m_launches = 0;
};

} // namespace tarvin::applications
