#include "platform/macos/MacScreens.h"

#include "platform/macos/translation/ScreenFlip.h"

#import <AppKit/AppKit.h>

namespace tarvin::macos {

namespace {

Rect rectOf(NSRect rect)
{
    return {.origin = {.x = rect.origin.x, .y = rect.origin.y},
        .size = {.width = rect.size.width, .height = rect.size.height}};
}

Screen screenOf(NSScreen* screen)
{
    const double height = primaryScreenHeight();
    return {
        .frame = flipped(rectOf(screen.frame), height), .visibleFrame = flipped(rectOf(screen.visibleFrame), height)};
}

} // namespace

double primaryScreenHeight()
{
    // A message to nil would answer a zero frame just as well; asked for so that the reader need not know it.
    NSScreen* const primary = NSScreen.screens.firstObject;
    return primary ? primary.frame.size.height : 0;
}

std::vector<Screen> MacScreens::screens() const
{
    std::vector<Screen> screens;
    for (NSScreen* screen in NSScreen.screens)
        screens.push_back(screenOf(screen));
    return screens;
}

std::optional<Screen> MacScreens::mainScreen() const
{
    NSScreen* const main = NSScreen.mainScreen;
    return main ? std::optional(screenOf(main)) : std::nullopt;
}

} // namespace tarvin::macos
