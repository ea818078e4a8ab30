#include "platform/macos/MacPreferences.h"

#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/StoredValue.h"

namespace tarvin::macos {

namespace {

StoredValue storedValueOf(id object)
{
    if ([object isKindOfClass:NSString.class])
        return qString(object);
    if ([object isKindOfClass:NSData.class]) {
        NSData* const data = object;
        return QByteArray(static_cast<const char*>(data.bytes), static_cast<qsizetype>(data.length));
    }
    if ([object isKindOfClass:NSNumber.class]) {
        // Truth values are two objects of their own, and numbers beside.
        const CFTypeRef number = (__bridge CFTypeRef)object;
        if (CFGetTypeID(number) == CFBooleanGetTypeID())
            return CFBooleanGetValue(static_cast<CFBooleanRef>(number)) != 0;
        return static_cast<NSNumber*>(object).doubleValue;
    }
    return std::monostate{};
}

struct ObjectOf
{
    id operator()(std::monostate) const { return nil; }
    id operator()(bool value) const { return [NSNumber numberWithBool:value]; }
    id operator()(double value) const { return [NSNumber numberWithDouble:value]; }
    id operator()(const QString& value) const { return nsString(value); }
    id operator()(const QByteArray& value) const
    {
        return [NSData dataWithBytes:value.constData() length:static_cast<NSUInteger>(value.size())];
    }
};

} // namespace

QJsonValue MacPreferences::value(const QString& key) const
{
    return jsonValueOf(storedValueOf([NSUserDefaults.standardUserDefaults objectForKey:nsString(key)]));
}

void MacPreferences::setValue(const QString& key, const QJsonValue& value)
{
    const id object = std::visit(ObjectOf{}, macos::storedValueOf(value));
    if (object)
        [NSUserDefaults.standardUserDefaults setObject:object forKey:nsString(key)];
    else
        removeValue(key);
}

void MacPreferences::removeValue(const QString& key)
{
    [NSUserDefaults.standardUserDefaults removeObjectForKey:nsString(key)];
}

} // namespace tarvin::macos
