#include "platform/macos/MacSystemKeys.h"

#include "platform/macrequests/SystemKeyEvent.h"

#import <AppKit/AppKit.h>

namespace tarvin::macos {

void MacSystemKeys::post(SystemKey key, SystemKeyMotion motion)
{
    const SystemKeyEvent fields = systemKeyEvent(key, motion);
    NSEvent* const event = [NSEvent otherEventWithType:static_cast<NSEventType>(fields.type)
                                              location:NSMakePoint(0, 0)
                                         modifierFlags:fields.modifierFlags
                                             timestamp:NSProcessInfo.processInfo.systemUptime
                                          windowNumber:fields.windowNumber
                                               context:nil
                                               subtype:fields.subtype
                                                 data1:fields.data1
                                                 data2:fields.data2];
    // Owned by the toolkit's event, which lives until the end of this call.
    if (const CGEventRef original = event.CGEvent)
        CGEventPost(kCGSessionEventTap, original);
}

} // namespace tarvin::macos
