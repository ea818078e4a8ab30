#pragma once

#import <CoreFoundation/CoreFoundation.h>

typedef double CGFloat;
struct CGPoint
{
    CGFloat x;
    CGFloat y;
};
struct CGSize
{
    CGFloat width;
    CGFloat height;
};
struct CGRect
{
    CGPoint origin;
    CGSize size;
};
typedef struct CGPoint CGPoint;
typedef struct CGSize CGSize;
typedef struct CGRect CGRect;

static inline CGPoint CGPointMake(CGFloat x, CGFloat y)
{
    return {x, y};
}
static inline CGSize CGSizeMake(CGFloat width, CGFloat height)
{
    return {width, height};
}

typedef struct __CGEvent* CGEventRef;
typedef struct __CGEventSource* CGEventSourceRef;
typedef struct __CGEventTapProxy* CGEventTapProxy;
typedef uint64_t CGEventMask;
typedef uint64_t CGEventFlags;
typedef uint16_t CGKeyCode;
typedef uint32_t CGDirectDisplayID;
typedef uint32_t CGWindowID;
typedef uint32_t CGWindowListOption;

enum CGEventType : uint32_t {
    kCGEventRightMouseDown = 3,
    kCGEventRightMouseUp = 4,
};
enum CGEventField : uint32_t {
    kCGKeyboardEventAutorepeat = 8,
    kCGKeyboardEventKeycode = 9,
    kCGEventSourceUserData = 42,
};
enum CGEventTapLocation : uint32_t { kCGHIDEventTap = 0, kCGSessionEventTap = 1 };
enum CGEventTapPlacement : uint32_t { kCGHeadInsertEventTap = 0 };
enum CGEventTapOptions : uint32_t { kCGEventTapOptionDefault = 0 };
enum CGEventSourceStateID : int32_t { kCGEventSourceStateCombinedSessionState = 0 };
enum CGMouseButton : uint32_t { kCGMouseButtonRight = 1 };

typedef CGEventRef (*CGEventTapCallBack)(CGEventTapProxy proxy, CGEventType type, CGEventRef event, void* userInfo);

extern "C" {
CFMachPortRef CGEventTapCreate(CGEventTapLocation tap, CGEventTapPlacement place, CGEventTapOptions options,
    CGEventMask eventsOfInterest, CGEventTapCallBack callback, void* userInfo);
void CGEventTapEnable(CFMachPortRef tap, bool enable);
bool CGEventTapIsEnabled(CFMachPortRef tap);
CGEventFlags CGEventGetFlags(CGEventRef event);
void CGEventSetFlags(CGEventRef event, CGEventFlags flags);
int64_t CGEventGetIntegerValueField(CGEventRef event, CGEventField field);
void CGEventSetIntegerValueField(CGEventRef event, CGEventField field, int64_t value);
CGEventSourceRef CGEventSourceCreate(CGEventSourceStateID state);
CGEventRef CGEventCreateKeyboardEvent(CGEventSourceRef source, CGKeyCode key, bool isDown);
CGEventRef CGEventCreateMouseEvent(CGEventSourceRef source, CGEventType type, CGPoint position, CGMouseButton button);
void CGEventPost(CGEventTapLocation tap, CGEventRef event);
CFArrayRef CGWindowListCopyWindowInfo(CGWindowListOption options, CGWindowID relativeTo);
CGDirectDisplayID CGMainDisplayID(void);
}
