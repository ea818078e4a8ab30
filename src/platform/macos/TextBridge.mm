#include "platform/macos/TextBridge.h"

namespace tarvin::macos {

NSString* nsString(QStringView text)
{
    return [NSString stringWithCharacters:reinterpret_cast<const unichar*>(text.utf16())
                                   length:static_cast<NSUInteger>(text.size())];
}

NSString* nsString(const char* text)
{
    return [NSString stringWithUTF8String:text];
}

QString qString(NSString* text)
{
    const NSUInteger length = text.length;
    QString copy(static_cast<qsizetype>(length), Qt::Uninitialized);
    [text getCharacters:reinterpret_cast<unichar*>(copy.data()) range:NSMakeRange(0, length)];
    return copy;
}

std::optional<QString> optionalString(NSString* text)
{
    return text ? std::optional(qString(text)) : std::nullopt;
}

NSArray<NSString*>* nsArray(const QStringList& texts)
{
    NSMutableArray<NSString*>* const array = [NSMutableArray array];
    for (const QString& text : texts)
        [array addObject:nsString(text)];
    return array;
}

} // namespace tarvin::macos
