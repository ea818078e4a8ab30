#include "platform/macos/MacLoginItem.h"

#include "platform/macos/TextBridge.h"

#import <ServiceManagement/ServiceManagement.h>

namespace tarvin::macos {

namespace {

std::optional<QString> refusal(BOOL succeeded, NSError* error)
{
    // The error counts only where the call says that it failed.
    return succeeded ? std::nullopt : std::optional(qString(error.localizedDescription));
}

} // namespace

bool MacLoginItem::isEnabled() const
{
    return SMAppService.mainAppService.status == SMAppServiceStatusEnabled;
}

std::optional<QString> MacLoginItem::enable()
{
    NSError* error = nil;
    const BOOL succeeded = [SMAppService.mainAppService registerAndReturnError:&error];
    return refusal(succeeded, error);
}

std::optional<QString> MacLoginItem::disable()
{
    NSError* error = nil;
    const BOOL succeeded = [SMAppService.mainAppService unregisterAndReturnError:&error];
    return refusal(succeeded, error);
}

} // namespace tarvin::macos
