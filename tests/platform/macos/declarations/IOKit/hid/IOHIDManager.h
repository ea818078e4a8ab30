#pragma once

#import <CoreFoundation/CoreFoundation.h>

typedef struct __IOHIDManager* IOHIDManagerRef;
typedef struct __IOHIDValue* IOHIDValueRef;
typedef struct __IOHIDElement* IOHIDElementRef;
typedef int IOReturn;
typedef uint32_t IOOptionBits;
typedef void (*IOHIDValueCallback)(void* context, IOReturn result, void* sender, IOHIDValueRef value);

enum : IOOptionBits { kIOHIDOptionsTypeNone = 0 };
enum : IOReturn { kIOReturnSuccess = 0 };

extern "C" {
IOHIDManagerRef IOHIDManagerCreate(CFAllocatorRef allocator, IOOptionBits options);
void IOHIDManagerSetDeviceMatchingMultiple(IOHIDManagerRef manager, CFArrayRef multiple);
void IOHIDManagerRegisterInputValueCallback(IOHIDManagerRef manager, IOHIDValueCallback callback, void* context);
void IOHIDManagerScheduleWithRunLoop(IOHIDManagerRef manager, CFRunLoopRef loop, CFStringRef mode);
void IOHIDManagerUnscheduleFromRunLoop(IOHIDManagerRef manager, CFRunLoopRef loop, CFStringRef mode);
IOReturn IOHIDManagerOpen(IOHIDManagerRef manager, IOOptionBits options);
IOReturn IOHIDManagerClose(IOHIDManagerRef manager, IOOptionBits options);
IOHIDElementRef IOHIDValueGetElement(IOHIDValueRef value);
CFIndex IOHIDValueGetIntegerValue(IOHIDValueRef value);
uint32_t IOHIDElementGetUsagePage(IOHIDElementRef element);
uint32_t IOHIDElementGetUsage(IOHIDElementRef element);
}
