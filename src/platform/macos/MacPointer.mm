#include "platform/macos/MacPointer.h"

#include "platform/macos/translation/ScreenFlip.h"

#import <AppKit/AppKit.h>

namespace tarvin::macos {

Point MacPointer::position() const
{
    const NSPoint location = NSEvent.mouseLocation;
    NSScreen* const main = NSScreen.mainScreen;
    return pointerPosition(
        {.x = location.x, .y = location.y}, main ? std::optional<double>(main.frame.size.height) : std::nullopt);
}

} // namespace tarvin::macos
