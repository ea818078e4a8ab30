#include "platform/macos/MacApplicationFolders.h"

#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/BundleRecord.h"
#include "platform/macos/translation/FolderPath.h"

#include <mutex>

namespace tarvin::macos {

namespace {

/// The system hands the same bundle object to everybody who asks for one path, and such an object is for one thread at
/// a time; so are the functions that tell the user's folders.
std::mutex bundleMutex;

std::optional<QString> textOf(NSBundle* bundle, const char* key)
{
    const id value = [bundle objectForInfoDictionaryKey:nsString(key)];
    return [value isKindOfClass:NSString.class] ? optionalString(value) : std::nullopt;
}

/// The paths in the folder that are named like applications; none where it can't be read.
QStringList pathsIn(ApplicationFolder folder)
{
    @autoreleasepool {
        const QString path = [&] {
            const std::lock_guard lock(bundleMutex);
            return applicationFolderPath(folder, folderPath(qString(NSHomeDirectory())));
        }();
        QStringList paths;
        for (NSString* name in [NSFileManager.defaultManager contentsOfDirectoryAtPath:nsString(path) error:nil]) {
            const QString place = path + u'/' + qString(name);
            if (isApplicationPath(place))
                paths.append(place);
        }
        return paths;
    }
}

} // namespace

QList<ApplicationBundle> MacApplicationFolders::contents(ApplicationFolder folder) const
{
    QList<ApplicationBundle> bundles;
    for (const QString& path : pathsIn(folder)) {
        if (auto bundle = bundleAt(path))
            bundles.append(std::move(*bundle));
    }
    return bundles;
}

std::optional<ApplicationBundle> MacApplicationFolders::bundleAt(const QString& path) const
{
    if (!isApplicationPath(path))
        return std::nullopt;
    const std::lock_guard lock(bundleMutex);
    @autoreleasepool {
        NSBundle* const bundle = [NSBundle bundleWithPath:nsString(path)];
        if (!bundle)
            return std::nullopt;
        return applicationBundleOf({
            .path = path,
            .bundleIdentifier = optionalString(bundle.bundleIdentifier),
            .displayName = textOf(bundle, bundleDisplayNameKey),
            .bundleName = textOf(bundle, bundleNameKey),
        });
    }
}

QStringList MacApplicationFolders::pictureFiles(const QString& icon, int) const
{
    if (!isApplicationPath(icon))
        return {};
    const std::lock_guard lock(bundleMutex);
    @autoreleasepool {
        NSBundle* const bundle = [NSBundle bundleWithPath:nsString(icon)];
        const std::optional<QString> name = bundle ? textOf(bundle, bundleIconKey) : std::nullopt;
        return name && !name->isEmpty() ? QStringList(iconFilePath(icon, *name)) : QStringList();
    }
}

qsizetype MacApplicationFolders::installedApplications() const
{
    qsizetype count = 0;
    for (const ApplicationFolder folder : allApplicationFolders)
        count += pathsIn(folder).size();
    return count;
}

ApplicationBrowsing MacApplicationFolders::browsing() const
{
    return {.startFolder = applicationFolderPath(ApplicationFolder::applications, {}),
        .suffix = applicationSuffix.toString()};
}

} // namespace tarvin::macos
