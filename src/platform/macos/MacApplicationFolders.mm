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

} // namespace

QList<ApplicationBundle> MacApplicationFolders::contents(ApplicationFolder folder) const
{
    QList<ApplicationBundle> bundles;
    @autoreleasepool {
        const QString path = [&] {
            const std::lock_guard lock(bundleMutex);
            return applicationFolderPath(folder, folderPath(qString(NSHomeDirectory())));
        }();
        NSArray<NSString*>* const names = [NSFileManager.defaultManager contentsOfDirectoryAtPath:nsString(path)
                                                                                            error:nil];
        for (NSString* name in names) {
            if (auto bundle = bundleAt(path + u'/' + qString(name)))
                bundles.append(std::move(*bundle));
        }
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
    const std::lock_guard lock(bundleMutex);
    @autoreleasepool {
        NSBundle* const bundle = [NSBundle bundleWithPath:nsString(icon)];
        const std::optional<QString> name = bundle ? textOf(bundle, bundleIconKey) : std::nullopt;
        return name && !name->isEmpty() ? QStringList(iconFilePath(icon, *name)) : QStringList();
    }
}

ApplicationBrowsing MacApplicationFolders::browsing() const
{
    return {.startFolder = applicationFolderPath(ApplicationFolder::applications, {}),
        .suffix = applicationSuffix.toString()};
}

} // namespace tarvin::macos
