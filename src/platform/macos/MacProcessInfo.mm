#include "platform/macos/MacProcessInfo.h"

#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/LaunchEvent.h"

namespace tarvin::macos {

QString MacProcessInfo::processName() const
{
    return qString(NSProcessInfo.processInfo.processName);
}

QStringList MacProcessInfo::arguments() const
{
    QStringList arguments;
    for (NSString* argument in NSProcessInfo.processInfo.arguments)
        arguments.append(qString(argument));
    return arguments;
}

QString MacProcessInfo::bundlePath() const
{
    return qString(NSBundle.mainBundle.bundlePath);
}

std::optional<QString> MacProcessInfo::bundleIdentifier() const
{
    return optionalString(NSBundle.mainBundle.bundleIdentifier);
}

std::optional<QString> MacProcessInfo::bundleName() const
{
    const id name = NSBundle.mainBundle.infoDictionary[@"CFBundleName"];
    return [name isKindOfClass:NSString.class] ? optionalString(name) : std::nullopt;
}

bool MacProcessInfo::wasStartedAsLoginItem() const
{
    NSAppleEventDescriptor* const event = NSAppleEventManager.sharedAppleEventManager.currentAppleEvent;
    if (!event)
        return false;
    LaunchEvent launch{.eventId = event.eventID, .openedAs = {}};
    if (NSAppleEventDescriptor* const reason = [event paramDescriptorForKeyword:openedAsKeyword])
        launch.openedAs = reason.enumCodeValue;
    return isLoginItemStart(launch);
}

} // namespace tarvin::macos
