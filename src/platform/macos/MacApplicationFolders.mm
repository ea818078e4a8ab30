#include "platform/macos/MacApplicationFolders.h"

#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/BundleRecord.h"
#include "platform/macos/translation/FolderPath.h"

namespace tarvin::macos {

namespace {

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
        const QString path = applicationFolderPath(folder, folderPath(qString(NSHomeDirectory())));
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

ApplicationBrowsing MacApplicationFolders::browsing() const
{
    return {.startFolder = applicationFolderPath(ApplicationFolder::applications, {}),
        .suffix = applicationSuffix.toString()};
}

} // namespace tarvin::macos
