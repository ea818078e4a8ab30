#include "platform/macos/MacFunctionKeySetting.h"

#include "platform/macos/TextBridge.h"
#include "platform/macos/ToolTask.h"
#include "platform/macos/translation/DefaultsTool.h"

namespace tarvin::macos {

ToolOutcome MacFunctionKeySetting::readByTool()
{
    return runTool(readFunctionKeySetting());
}

ToolOutcome MacFunctionKeySetting::writeByTool(bool dedicated)
{
    return runTool(writeFunctionKeySetting(dedicated));
}

void MacFunctionKeySetting::setPreferenceValue(bool dedicated)
{
    NSString* const key = nsString(functionKeySetting);
    CFPreferencesSetAppValue(
        (__bridge CFStringRef)key, dedicated ? kCFBooleanTrue : kCFBooleanFalse, kCFPreferencesAnyApplication);
}

void MacFunctionKeySetting::synchronizePreference()
{
    CFPreferencesSynchronize(kCFPreferencesAnyApplication, kCFPreferencesCurrentUser, kCFPreferencesAnyHost);
}

void MacFunctionKeySetting::announceChange()
{
    [NSDistributedNotificationCenter.defaultCenter postNotificationName:nsString(functionKeySettingChanged)
                                                                 object:nil
                                                               userInfo:nil
                                                     deliverImmediately:YES];
}

} // namespace tarvin::macos
