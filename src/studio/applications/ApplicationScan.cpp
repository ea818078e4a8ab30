#include "studio/applications/ApplicationScan.h"

#include <QCollator>
#include <QSet>

#include <algorithm>

namespace tarvin {

namespace {

bool counts(const std::optional<QString>& name, EmptyNames emptyNames)
{
    return name && (emptyNames == EmptyNames::accepted || !name->isEmpty());
}

QString fileName(const QString& path)
{
    const QString file = path.section(u'/', -1, -1, QString::SectionSkipEmpty);
    const qsizetype dot = file.lastIndexOf(u'.');
    return dot > 0 ? file.first(dot) : file;
}

InstalledApplication applicationOf(const ApplicationBundle& bundle, EmptyNames emptyNames)
{
    return {.name = applicationName(bundle, emptyNames),
        .bundleIdentifier = bundle.bundleIdentifier.value_or(QString()),
        .path = bundle.path,
        .icon = bundle.icon};
}

/// Equals stay in the order in which they were found.
void sortByName(QList<InstalledApplication>& applications)
{
    QCollator names;
    names.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::stable_sort(
        applications, [&names](const InstalledApplication& left, const InstalledApplication& right) {
            return names.compare(left.name, right.name) < 0;
        });
}

} // namespace

QString applicationName(const ApplicationBundle& bundle, EmptyNames emptyNames)
{
    if (counts(bundle.displayName, emptyNames))
        return *bundle.displayName;
    if (counts(bundle.bundleName, emptyNames))
        return *bundle.bundleName;
    return fileName(bundle.path);
}

QList<InstalledApplication> applicationsForProfiles(const ApplicationFolders& folders)
{
    QList<InstalledApplication> applications;
    for (const ApplicationFolder folder :
        {ApplicationFolder::applications, ApplicationFolder::systemApplications, ApplicationFolder::systemUtilities}) {
        const QList<ApplicationBundle> bundles = folders.contents(folder);
        for (const ApplicationBundle& bundle : bundles) {
            if (bundle.bundleIdentifier)
                applications.append(applicationOf(bundle, EmptyNames::accepted));
        }
    }
    sortByName(applications);
    return applications;
}

QList<InstalledApplication> applicationsToOpen(const ApplicationFolders& folders)
{
    QList<InstalledApplication> applications;
    QSet<QString> seenPaths;
    QSet<QString> seenIdentifiers;
    for (const ApplicationFolder folder : allApplicationFolders) {
        const QList<ApplicationBundle> bundles = folders.contents(folder);
        for (const ApplicationBundle& bundle : bundles) {
            if (seenPaths.contains(bundle.path))
                continue;
            seenPaths.insert(bundle.path);
            const QString identifier = bundle.bundleIdentifier.value_or(QString());
            if (identifier.isEmpty() || seenIdentifiers.contains(identifier))
                continue;
            seenIdentifiers.insert(identifier);
            applications.append(applicationOf(bundle, EmptyNames::skipped));
        }
    }
    sortByName(applications);
    return applications;
}

std::optional<InstalledApplication> applicationAt(const ApplicationFolders& folders, const QString& path)
{
    const std::optional<ApplicationBundle> bundle = folders.bundleAt(path);
    if (!bundle || !bundle->bundleIdentifier)
        return std::nullopt;
    return applicationOf(*bundle, EmptyNames::skipped);
}

} // namespace tarvin
