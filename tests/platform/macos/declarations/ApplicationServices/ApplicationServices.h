#pragma once

#import <CoreFoundation/CoreFoundation.h>
#import <CoreGraphics/CoreGraphics.h>

#include <sys/types.h>

typedef const struct __AXUIElement* AXUIElementRef;
typedef const struct __AXValue* AXValueRef;
enum AXError : int32_t { kAXErrorSuccess = 0 };
enum AXValueType : uint32_t {
    kAXValueCGPointType = 1,
    kAXValueCGSizeType = 2,
};

extern "C" {
Boolean AXIsProcessTrusted(void);
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options);
CFTypeID AXUIElementGetTypeID(void);
CFTypeID AXValueGetTypeID(void);
AXUIElementRef AXUIElementCreateApplication(pid_t process);
AXUIElementRef AXUIElementCreateSystemWide(void);
AXError AXUIElementSetMessagingTimeout(AXUIElementRef element, float timeoutInSeconds);
AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute, CFTypeRef* value);
AXError AXUIElementSetAttributeValue(AXUIElementRef element, CFStringRef attribute, CFTypeRef value);
AXError AXUIElementPerformAction(AXUIElementRef element, CFStringRef action);
AXValueRef AXValueCreate(AXValueType type, const void* value);
Boolean AXValueGetValue(AXValueRef value, AXValueType type, void* result);
}
