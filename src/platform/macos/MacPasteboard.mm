#include "platform/macos/MacPasteboard.h"

#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/PasteboardTypes.h"

#import <AppKit/AppKit.h>

namespace tarvin::macos {

std::int64_t MacPasteboard::changeCount() const
{
    return NSPasteboard.generalPasteboard.changeCount;
}

void MacPasteboard::readText(TextHandler handler)
{
    NSPasteboard* const pasteboard = NSPasteboard.generalPasteboard;
    auto text = optionalString([pasteboard stringForType:NSPasteboardTypeString]);
    if (!text) {
        handler(std::nullopt);
        return;
    }
    const bool isSecret = [pasteboard availableTypeFromArray:@[ nsString(concealedType) ]] != nil;
    handler(PasteboardText{.text = std::move(*text), .isSecret = isSecret});
}

void MacPasteboard::setText(const PasteboardText& text)
{
    NSPasteboard* const pasteboard = NSPasteboard.generalPasteboard;
    NSMutableArray<NSPasteboardType>* const types = [NSMutableArray array];
    [types addObject:NSPasteboardTypeString];
    if (text.isSecret)
        [types addObject:nsString(concealedType)];
    // Clears the content too. Nobody owns promises, because everything is handed over at once.
    [pasteboard declareTypes:types owner:nil];
    [pasteboard setString:nsString(text.text) forType:NSPasteboardTypeString];
    if (text.isSecret)
        [pasteboard setString:@"" forType:nsString(concealedType)];
}

} // namespace tarvin::macos
