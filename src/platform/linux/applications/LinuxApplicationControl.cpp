#include "platform/linux/applications/LinuxApplicationControl.h"

#include "platform/linux/applications/ApplicationLauncher.h"
#include "platform/linux/applications/ProcessEnd.h"
#include "platform/linux/desktop/InstalledApplications.h"
#include "platform/linux/desktop/ProcessFacts.h"
#include "platform/linux/desktop/UrlOpener.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace tarvin::applications {

namespace {

constexpr QStringView entrySuffix = u".desktop";
constexpr QStringView foreignSuffix = u".app";
constexpr QStringView overview = u"Mission Control.app";

constexpr auto applicationFolders = std::to_array<QStringView>({u"/Applications", u"/System/Applications"});

/// The file manager shows what lies there as applications, with their names and icons.
const QString systemEntries = QStringLiteral("/usr/share/applications");

} // namespace

LinuxApplicationControl::LinuxApplicationControl(const desktop::InstalledApplications& applications,
    Workspace& workspace, ApplicationLauncher& launcher, Scheduler& scheduler, services::TellUser tellUser)
    : m_applications(applications)
    , m_workspace(workspace)
    , m_launcher(launcher)
    , m_scheduler(scheduler)
    , m_tellUser(std::move(tellUser))
{ }

std::optional<QString> LinuxApplicationControl::pathOfApplication(const QString& bundleIdentifier) const
{
    const desktop::ApplicationIndex& index = m_applications.index();
    const QStringList candidates = QStringList(bundleIdentifier) + index.roles.applicationsFilling(bundleIdentifier);
    for (const QString& id : candidates) {
        if (const desktop::DesktopEntry* entry = index.catalog.entry(id))
            return entry->path;
    }
    return std::nullopt;
}

bool LinuxApplicationControl::exists(const QString& path) const
{
    return QFileInfo::exists(path);
}

void LinuxApplicationControl::openApplication(const QString& path)
{
    openPath(path);
}

void LinuxApplicationControl::openPath(const QString& path)
{
    if (!path.isEmpty())
        m_scheduler.post([this, path] { openNow(path); });
}

void LinuxApplicationControl::openNow(const QString& path)
{
    const QString name = path.section(u'/', -1);
    const bool isFolderOfApplications =
        std::find(applicationFolders.begin(), applicationFolders.end(), path) != applicationFolders.end();
    if (path.endsWith(entrySuffix) && exists(path))
        openEntry(path);
    else if (isFolderOfApplications && !exists(path))
        openByHandler(systemEntries);
    else if (name == overview)
        return;
    else if (name.endsWith(foreignSuffix) && !exists(path))
        m_tellUser(QStringLiteral("Not installed: %1").arg(name.chopped(foreignSuffix.size())));
    else
        openByHandler(path);
}

void LinuxApplicationControl::openEntry(const QString& path)
{
    const auto& entries = m_applications.index().catalog.entries();
    const auto entry = std::find_if(
        entries.begin(), entries.end(), [&](const desktop::DesktopEntry& one) { return one.path == path; });
    const QString id = entry == entries.end() ? path.section(u'/', -1).chopped(entrySuffix.size()) : entry->id;
    for (const RunningApplication& application : m_workspace.runningApplications()) {
        // The windows of a process that was just ended may still be listed.
        if (application.bundleIdentifier() == id && application.activationPolicy == ActivationPolicy::regular
            && !hasEnded(application.processIdentifier)) {
            m_workspace.activate(application.processIdentifier);
            return;
        }
    }
    m_launcher.launch(path, id);
}

void LinuxApplicationControl::openByHandler(const QString& path)
{
    m_scheduler.runInBackground(BackgroundQueue::userInitiated, [this, path] {
        if (!desktop::UrlOpener::open(path))
            m_tellUser(QStringLiteral("Nothing on this system opens %1").arg(path));
    });
}

std::optional<QString> LinuxApplicationControl::executableOf(ProcessIdentifier process) const
{
    const QString executable = desktop::readProcess(process).executable;
    return executable.isEmpty() ? std::nullopt : std::optional(executable);
}

bool LinuxApplicationControl::forceTerminate(ProcessIdentifier process)
{
    return endByForce(process);
}

bool LinuxApplicationControl::isTerminated(ProcessIdentifier process) const
{
    return hasEnded(process);
}

void LinuxApplicationControl::kill(ProcessIdentifier process)
{
    (void)endByForce(process);
}

} // namespace tarvin::applications
