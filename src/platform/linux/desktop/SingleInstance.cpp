#include "platform/linux/desktop/SingleInstance.h"

#include "platform/linux/desktop/ApplicationId.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

namespace tarvin::desktop {

namespace {

using namespace std::chrono_literals;

/// How long a second start waits for the first; a busy one answers late, a hung one never.
constexpr auto answerTimeout = 5s;
/// The least that each of the two ways is given.
constexpr std::chrono::milliseconds shortestWait = 1s;
/// One that has just started has its lock a moment before it can be reached.
constexpr auto pauseBetweenAttempts = 50ms;

QString pathIn(const QString& directory, const QString& name)
{
    return directory.isEmpty() ? QString() : directory + u'/' + name;
}

/// Whether the path is a folder that nobody but this user can look into or put something in.
bool isPrivateDirectory(const QString& path)
{
    struct stat status
    { };
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == getuid() && (status.st_mode & 077) == 0;
}

} // namespace

SingleInstance::SingleInstance(const QString& runtimeDirectory, QDBusConnection bus)
    : m_lockPath(pathIn(runtimeDirectory, QStringLiteral("tarvin.lock")))
    , m_socketPath(pathIn(runtimeDirectory, QStringLiteral("tarvin.socket")))
    , m_bus(std::move(bus))
{ }

SingleInstance::~SingleInstance()
{
    if (m_lock && m_bus.isConnected())
        m_bus.unregisterService(applicationId.toString());
}

QString SingleInstance::defaultRuntimeDirectory()
{
    QString given = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (given.startsWith(u'/') && QDir(given).exists())
        return given;
    QString own = QStringLiteral("%1/tarvin-%2").arg(QDir::tempPath()).arg(getuid());
    mkdir(QFile::encodeName(own).constData(), 0700);
    // The temporary folder is open to all, and another user may have been there first.
    return isPrivateDirectory(own) ? own : QString();
}

SingleInstance::Outcome SingleInstance::claim(
    const std::optional<InstanceRequest>& request, InstanceRequestHandler handler)
{
    m_lock.emplace(m_lockPath);
    if (m_lock->state() == posix::InstanceLock::State::heldByAnother) {
        m_lock.reset();
        return forward(request);
    }
    auto* const application = new BusApplication(m_busHost, handler); // owned by the host
    const BusApplication::Claim name = application->claimName(m_bus);
    if (name == BusApplication::Claim::takenByAnother) {
        m_lock.reset();
        return forward(request);
    }
    if (name == BusApplication::Claim::noBus && m_lock->state() == posix::InstanceLock::State::unavailable)
        return Outcome::unguarded;
    m_socket = std::make_unique<InstanceSocket>(m_socketPath, std::move(handler));
    return Outcome::first;
}

SingleInstance::Outcome SingleInstance::forward(const std::optional<InstanceRequest>& request)
{
    if (!request)
        return Outcome::forwarded;
    const QDeadlineTimer deadline(answerTimeout);
    const auto rest = [&deadline] {
        return std::max(shortestWait, std::chrono::milliseconds(deadline.remainingTime()));
    };
    for (;;) {
        if (BusApplication::send(m_bus, *request, rest()) || InstanceSocket::send(m_socketPath, *request, rest()))
            return Outcome::forwarded;
        if (deadline.hasExpired())
            return Outcome::unreachable;
        std::this_thread::sleep_for(pauseBetweenAttempts);
    }
}

} // namespace tarvin::desktop
