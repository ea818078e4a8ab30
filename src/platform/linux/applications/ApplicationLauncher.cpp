#include "platform/linux/applications/ApplicationLauncher.h"

#include "platform/linux/desktop/Ewmh.h"
#include "platform/linux/desktop/XConnection.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace tarvin::applications {

using namespace std::chrono_literals;

namespace {

/// An application started over the bus answers when it is up.
constexpr auto busStartTime = 20s;

/// A file larger than this is no desktop entry.
constexpr qint64 largestFile = 1024 * 1024;

/// The words before a command that is to run in a terminal emulator, by what is installed.
QStringList terminalPrefix()
{
    if (!QStandardPaths::findExecutable(QStringLiteral("xdg-terminal-exec")).isEmpty())
        return {QStringLiteral("xdg-terminal-exec")};
    for (const char* terminal : {"x-terminal-emulator", "xterm"}) {
        const QString name = QString::fromLatin1(terminal);
        if (!QStandardPaths::findExecutable(name).isEmpty())
            return {name, QStringLiteral("-e")};
    }
    return {};
}

} // namespace

ApplicationLauncher::ApplicationLauncher(Scheduler& scheduler, desktop::XConnection& connection,
    services::Buses::Provider sessionBus, services::TellUser tellUser)
    : m_scheduler(scheduler)
    , m_connection(connection)
    , m_sessionBus(std::move(sessionBus))
    , m_tellUser(std::move(tellUser))
{ }

void ApplicationLauncher::launch(const QString& path, const QString& id)
{
    const QString startupId = QStringLiteral("tarvin-%1-%2_TIME%3")
                                  .arg(QCoreApplication::applicationPid())
                                  .arg(++m_launches)
                                  .arg(m_connection.serverTime());
    m_scheduler.runInBackground(
        BackgroundQueue::userInitiated, [this, path, id, startupId] { launchNow(path, id, startupId); });
}

void ApplicationLauncher::launchNow(const QString& path, const QString& id, const QString& startupId) const
{
    QFile file(path);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.read(largestFile) : QByteArray();
    const std::optional<LaunchEntry> entry = readLaunchEntry(content);
    if (!entry) {
        m_tellUser(QStringLiteral("Cannot start %1").arg(id));
        return;
    }
    if (entry->isBusActivated && askOverBus(id, startupId))
        return;
    if (!start(*entry, startupId))
        m_tellUser(QStringLiteral("Cannot start %1").arg(entry->name));
    else if (entry->notifiesStartup)
        m_scheduler.post([this, entry, startupId] { announce(*entry, startupId); });
}

bool ApplicationLauncher::askOverBus(const QString& id, const QString& startupId) const
{
    const QString path = u'/' + QString(id).replace(u'.', u'/').replace(u'-', u'_');
    const QVariantMap platformData{{QStringLiteral("desktop-startup-id"), startupId}};
    const QDBusMessage answer = services::askAndWait(m_sessionBus(),
        services::callOf({id, path, u"org.freedesktop.Application"}, u"Activate", {platformData}), busStartTime);
    return answer.type() == QDBusMessage::ReplyMessage || services::meansSilence(answer);
}

bool ApplicationLauncher::start(const LaunchEntry& entry, const QString& startupId)
{
    QStringList command = entry.command;
    if (entry.runsInTerminal)
        command = terminalPrefix() + command;
    const QString program = command.isEmpty() ? QString() : QStandardPaths::findExecutable(command.takeFirst());
    if (program.isEmpty())
        return false;
    QProcess process;
    process.setProgram(program);
    process.setArguments(command);
    process.setWorkingDirectory(QFileInfo(entry.folder).isDir() ? entry.folder : QDir::homePath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (entry.notifiesStartup)
        environment.insert(QStringLiteral("DESKTOP_STARTUP_ID"), startupId);
    process.setProcessEnvironment(environment);
    return process.startDetached();
}

void ApplicationLauncher::announce(const LaunchEntry& entry, const QString& startupId) const
{
    desktop::announceStartup(m_connection, startupId.toUtf8(), entry.name, entry.windowClass);
}

} // namespace tarvin::applications
