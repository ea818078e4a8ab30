#include "platform/macos/MacEventPoster.h"

#include "platform/macos/CfHandle.h"

#import <CoreGraphics/CoreGraphics.h>

namespace tarvin::macos {

namespace {

CfHandle<CGEventRef> makeKey(KeyCode keyCode, KeyState state)
{
    const CfHandle source(CGEventSourceCreate(kCGEventSourceStateCombinedSessionState));
    return CfHandle(CGEventCreateKeyboardEvent(source.get(), keyCode, state == KeyState::down));
}

CfHandle<CGEventRef> makeClick(const SyntheticClick& click)
{
    return CfHandle(
        CGEventCreateMouseEvent(nullptr, click.state == KeyState::down ? kCGEventRightMouseDown : kCGEventRightMouseUp,
            CGPointMake(click.position.x, click.position.y), kCGMouseButtonRight));
}

} // namespace

bool MacEventPoster::canMakeKey(KeyCode keyCode) const
{
    return static_cast<bool>(makeKey(keyCode, KeyState::down));
}

void MacEventPoster::postKey(const SyntheticKey& key, TapLocation location)
{
    const CfHandle<CGEventRef> event = makeKey(key.keyCode, key.state);
    if (!event)
        return;
    CGEventSetIntegerValueField(event.get(), kCGEventSourceUserData, key.userData);
    // Assigned, not merged: a fresh event carries whatever the user holds down.
    CGEventSetFlags(event.get(), static_cast<CGEventFlags>(key.flags));
    CGEventPost(static_cast<CGEventTapLocation>(location), event.get());
}

bool MacEventPoster::canMakeClick() const
{
    return static_cast<bool>(makeClick({}));
}

void MacEventPoster::postSecondaryClick(const SyntheticClick& click, TapLocation location)
{
    if (const CfHandle<CGEventRef> event = makeClick(click))
        CGEventPost(static_cast<CGEventTapLocation>(location), event.get());
}

} // namespace tarvin::macos
