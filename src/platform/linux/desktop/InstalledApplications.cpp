#include "platform/linux/desktop/InstalledApplications.h"

#include "platform/linux/desktop/MimeDefaults.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>

#include <unordered_set>

namespace tarvin::desktop {

namespace {

using namespace std::chrono_literals;

/// An installer writes many files; they are read once it has been quiet for this long.
constexpr auto quietTimeAfterChange = 500ms;

/// A file larger than this is no desktop entry.
constexpr qint64 largestFile = 1024 * 1024;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(largestFile) : QByteArray();
}

QStringList sortedEntryPaths(const QString& directory, QStringList& visitedDirectories)
{
    QStringList paths;
    visitedDirectories += directory;
    QDirIterator iterator(directory, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        const QString path = iterator.next();
        if (iterator.fileInfo().isDir())
            visitedDirectories += path;
        else if (path.endsWith(u".desktop"))
            paths += path;
    }
    paths.sort();
    return paths;
}

} // namespace

ApplicationLocations ApplicationLocations::fromEnvironment()
{
    const QStringList applications = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    const QStringList configs = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    return {.applicationDirectories = applications,
        .mimeAppsPaths = desktop::mimeAppsPaths(configs, applications, qEnvironmentVariable("XDG_CURRENT_DESKTOP")),
        .locales = localeSuffixes(messageLocale()),
        .browserVariable = qEnvironmentVariable("BROWSER")};
}

ApplicationIndex readInstalledApplications(const ApplicationLocations& locations)
{
    ApplicationIndex index;
    std::vector<DesktopEntry> entries;
    std::unordered_set<QString> knownIds;
    for (const QString& directory : locations.applicationDirectories) {
        const QStringList paths = sortedEntryPaths(directory, index.visitedDirectories);
        for (const QString& path : paths) {
            QString id = path.sliced(directory.size() + 1).chopped(8);
            id.replace(u'/', u'-');
            if (knownIds.contains(id))
                continue;
            DesktopEntryFile file = readDesktopEntry(contentOf(path), id, path, locations.locales);
            if (!file.isDeleted && !file.entry)
                continue;
            knownIds.insert(id);
            if (file.entry)
                entries.push_back(std::move(*file.entry));
        }
    }
    std::vector<QByteArray> mimeApps;
    for (const QString& path : locations.mimeAppsPaths)
        mimeApps.push_back(contentOf(path));
    index.catalog = DesktopEntryCatalog(std::move(entries));
    index.roles = ApplicationRoles(index.catalog, MimeDefaults(mimeApps), locations.browserVariable);
    return index;
}

InstalledApplications::InstalledApplications(Scheduler& scheduler, ApplicationLocations locations)
    : m_scheduler(scheduler)
    , m_locations(std::move(locations))
    , m_watch([](const QString& name) { return name.endsWith(u".desktop") || name.endsWith(u"mimeapps.list"); },
          [this] { readSoon(); })
{
    startReading();
}

void InstalledApplications::readSoon()
{
    m_pendingReading = m_scheduler.startOneShot(quietTimeAfterChange, [this] { startReading(); });
}

void InstalledApplications::startReading()
{
    // Watched before it is read, so that no change falls in between.
    watchDirectories();
    m_scheduler.runInBackground(BackgroundQueue::utility,
        [&scheduler = m_scheduler, locations = m_locations, self = std::weak_ptr(m_self), reading = ++m_lastReading] {
            auto index = std::make_shared<const ApplicationIndex>(readInstalledApplications(locations));
            scheduler.post([self, reading, index = std::move(index)]() mutable {
                if (const auto living = self.lock())
                    (*living)->take(reading, std::move(index));
            });
        });
}

void InstalledApplications::take(int reading, std::shared_ptr<const ApplicationIndex> index)
{
    if (reading != m_lastReading)
        return;
    const bool hasOtherFolders = index->visitedDirectories != m_index->visitedDirectories;
    m_index = std::move(index);
    if (hasOtherFolders)
        watchDirectories();
    Q_EMIT changed();
}

void InstalledApplications::watchDirectories()
{
    QStringList watched = m_locations.applicationDirectories + m_index->visitedDirectories;
    for (const QString& path : m_locations.mimeAppsPaths)
        watched += path.section(u'/', 0, -2);
    watched.removeDuplicates();
    m_watch.setDirectories(watched);
}

} // namespace tarvin::desktop
