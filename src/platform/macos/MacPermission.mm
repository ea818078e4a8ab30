#include "platform/macos/MacPermission.h"

#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/AccessibilityOutcome.h"

#import <ApplicationServices/ApplicationServices.h>

namespace tarvin::macos {

bool MacPermission::isProcessTrusted() const
{
    return AXIsProcessTrusted() != 0;
}

void MacPermission::promptForTrust()
{
    NSDictionary* const options = @{nsString(promptOption) : @YES};
    AXIsProcessTrustedWithOptions((__bridge CFDictionaryRef)options);
}

} // namespace tarvin::macos
