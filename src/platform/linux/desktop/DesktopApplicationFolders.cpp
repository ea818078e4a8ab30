#include "platform/linux/desktop/DesktopApplicationFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace tarvin::desktop {

namespace {

constexpr QStringView entrySuffix = u"desktop";
/// A file larger than this is no desktop entry.
constexpr qint64 largestFile = 1024 * 1024;

ApplicationBundle bundleOf(const DesktopEntry& entry)
{
    return {.path = entry.path,
        .bundleIdentifier = entry.id,
        .displayName = entry.name,
        .bundleName = std::nullopt,
        .icon = entry.icon};
}

} // namespace

DesktopApplicationFolders::DesktopApplicationFolders(ApplicationLocations locations, IconPlaces icons)
    : m_locations(std::move(locations))
    , m_iconPlaces(std::move(icons))
{ }

QList<ApplicationBundle> DesktopApplicationFolders::contents(ApplicationFolder folder) const
{
    QList<ApplicationBundle> bundles;
    if (folder != ApplicationFolder::applications)
        return bundles;
    const ApplicationIndex index = readInstalledApplications(m_locations);
    for (const DesktopEntry& entry : index.catalog.entries()) {
        if (entry.isShown)
            bundles.append(bundleOf(entry));
    }
    return bundles;
}

std::optional<ApplicationBundle> DesktopApplicationFolders::bundleAt(const QString& path) const
{
    const QFileInfo info(path);
    if (info.suffix() != entrySuffix)
        return std::nullopt;
    QString id = info.completeBaseName();
    for (const QString& directory : m_locations.applicationDirectories) {
        if (path.startsWith(directory + u'/')) {
            id = path.sliced(directory.size() + 1).chopped(entrySuffix.size() + 1).replace(u'/', u'-');
            break;
        }
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const DesktopEntryFile read = readDesktopEntry(file.read(largestFile), id, path, m_locations.locales);
    return read.entry ? std::optional(bundleOf(*read.entry)) : std::nullopt;
}

QStringList DesktopApplicationFolders::pictureFiles(const QString& icon, int pixels) const
{
    std::call_once(m_iconsAreRead, [this] { m_icons.emplace(m_iconPlaces); });
    return m_icons->filesOf(icon, pixels);
}

ApplicationBrowsing DesktopApplicationFolders::browsing() const
{
    // The system's folders come last, and that of the distribution is the fullest.
    const QStringList& folders = m_locations.applicationDirectories;
    const auto found =
        std::find_if(folders.rbegin(), folders.rend(), [](const QString& folder) { return QDir(folder).exists(); });
    return {.startFolder = found != folders.rend() ? *found : QDir::homePath(), .suffix = entrySuffix.toString()};
}

} // namespace tarvin::desktop
