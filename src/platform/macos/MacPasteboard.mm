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
    [pasteboard clearContents];
    [pasteboard setString:nsString(text.text) forType:NSPasteboardTypeString];
    if (text.isSecret)
        [pasteboard setString:@"" forType:nsString(concealedType)];
}

} // namespace tarvin::macos
