#pragma once

#include "platform/linux/desktop/BusApplication.h"
#include "platform/linux/desktop/InstanceSocket.h"
#include "platform/posix/InstanceLock.h"

#include <QDBusConnection>

#include <memory>
#include <optional>

namespace tarvin::desktop {

/// Keeps the program to one running copy for each user, since two would take the same keys twice; a second start hands
/// its request to the first and ends.
///
/// Two means together, so that no mixture of sessions slips through: a lock in the user's run-time folder, which works
/// without a session bus, and the program's name on the session bus, which launchers call. The second instance reaches
/// the first over the bus, or else over a socket beside the lock. Main thread only.
class SingleInstance
{
public:
    enum class Outcome {
        first, ///< this process is the program now
        forwarded, ///< another one is, and it took the request: leave with success
        unreachable, ///< another one is, but it does not answer: leave with a message
        unguarded, ///< neither lock nor bus can be had, so nobody knows: leave with a message
    };

    /// @param runtimeDirectory of the user, private; lock and socket live here
    /// @param bus connected or not
    SingleInstance(const QString& runtimeDirectory, QDBusConnection bus);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// The user's run-time folder by the environment or, without one, a private folder of our own under the temporary
    /// one. Empty if not even that can be had.
    [[nodiscard]] static QString defaultRuntimeDirectory();

    /// Once. To be called before anything that takes keys is made.
    /// @param request what this start asks, absent for a start at login: then an instance that runs is left in peace
    /// @param handler gets the requests of later starts, on the main thread, if this process is the first
    [[nodiscard]] Outcome claim(const std::optional<InstanceRequest>& request, InstanceRequestHandler handler);

private:
    [[nodiscard]] Outcome forward(const std::optional<InstanceRequest>& request);

    const QString m_lockPath;
    const QString m_socketPath;
    QDBusConnection m_bus;
    QObject m_busHost;
    std::optional<posix::InstanceLock> m_lock;
    std::unique_ptr<InstanceSocket> m_socket;
};

} // namespace tarvin::desktop
