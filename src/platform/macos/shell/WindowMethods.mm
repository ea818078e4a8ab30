#include "platform/macos/shell/WindowMethods.h"

#import <AppKit/AppKit.h>
#import <objc/runtime.h>

@interface NSWindow (TarvinMethods)
- (void)tarvin_noResponderFor:(SEL)selector;
- (void)tarvin_performMiniaturize:(id)sender;
@end

@implementation NSWindow (TarvinMethods)

// Each takes the place of the method that is called like it, so it may use nothing that only it has.

- (void)tarvin_noResponderFor:(SEL)selector
{
    (void)selector;
}

- (void)tarvin_performMiniaturize:(id)sender
{
    [self miniaturize:sender];
}

@end

namespace tarvin::macos {

namespace {

bool exchange(SEL original, SEL replacement)
{
    Method const first = class_getInstanceMethod(NSWindow.class, original);
    Method const second = class_getInstanceMethod(NSWindow.class, replacement);
    if (!first || !second)
        return false;
    method_exchangeImplementations(first, second);
    return true;
}

} // namespace

void silenceUnhandledKeys()
{
    [[maybe_unused]] static const bool isExchanged =
        exchange(@selector(noResponderFor:), @selector(tarvin_noResponderFor:));
}

void letMinimizeRequestsThrough()
{
    [[maybe_unused]] static const bool isExchanged =
        exchange(@selector(performMiniaturize:), @selector(tarvin_performMiniaturize:));
}

} // namespace tarvin::macos
