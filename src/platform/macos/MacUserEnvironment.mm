#include "platform/macos/MacUserEnvironment.h"

#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/FolderPath.h"

namespace tarvin::macos {

namespace {

std::optional<QString> userFolder(NSSearchPathDirectory directory)
{
    NSArray<NSURL*>* const folders = [NSFileManager.defaultManager URLsForDirectory:directory
                                                                          inDomains:NSUserDomainMask];
    return optionalString(folders.firstObject.path);
}

} // namespace

QString MacUserEnvironment::homeDirectory() const
{
    return folderPath(qString(NSHomeDirectory()));
}

QString MacUserEnvironment::desktopDirectory() const
{
    const std::optional<QString> desktop = userFolder(NSDesktopDirectory);
    return desktop ? folderPath(*desktop) : homeDirectory();
}

QString MacUserEnvironment::applicationSupportDirectory() const
{
    const std::optional<QString> support = userFolder(NSApplicationSupportDirectory);
    return programFolder(
        support ? folderPath(*support) : homeDirectory() + QStringLiteral("/Library/Application Support"));
}

QString MacUserEnvironment::temporaryDirectory() const
{
    return folderPath(qString(NSTemporaryDirectory()));
}

} // namespace tarvin::macos
