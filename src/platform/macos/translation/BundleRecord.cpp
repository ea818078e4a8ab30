#include "platform/macos/translation/BundleRecord.h"

namespace tarvin::macos {

bool isApplicationPath(const QString& path)
{
    const QString name = path.section(u'/', -1);
    const qsizetype dot = name.lastIndexOf(u'.');
    // A name that only begins with a dot has no suffix.
    return dot > 0 && QStringView(name).sliced(dot + 1) == applicationSuffix;
}

QString applicationFolderPath(ApplicationFolder folder, const QString& homeDirectory)
{
    switch (folder) {
    case ApplicationFolder::applications:
        return QStringLiteral("/Applications");
    case ApplicationFolder::systemApplications:
        return QStringLiteral("/System/Applications");
    case ApplicationFolder::systemUtilities:
        return QStringLiteral("/System/Applications/Utilities");
    case ApplicationFolder::userApplications:
        return homeDirectory + QStringLiteral("/Applications");
    }
    return {};
}

ApplicationBundle applicationBundleOf(const BundleRecord& record)
{
    return {.path = record.path,
        .bundleIdentifier = record.bundleIdentifier,
        .displayName = record.displayName,
        .bundleName = record.bundleName,
        .icon = record.path};
}

QString iconFilePath(const QString& bundlePath, const QString& iconName)
{
    const QString path = bundlePath + QStringLiteral("/Contents/Resources/") + iconName;
    return iconName.contains(u'.') ? path : path + QStringLiteral(".icns");
}

} // namespace tarvin::macos
