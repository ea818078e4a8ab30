#include "platform/macos/EventTranslation.h"

namespace tarvin::macos {

static_assert(kCGKeyboardEventAutorepeat == autorepeatField);
static_assert(kCGKeyboardEventKeycode == keyCodeField);
static_assert(kCGEventSourceUserData == userDataField);
static_assert(NSEventTypeKeyDown == static_cast<NSUInteger>(InputEventType::keyDown));
static_assert(NSEventTypeKeyUp == static_cast<NSUInteger>(InputEventType::keyUp));
static_assert(NSEventTypeFlagsChanged == static_cast<NSUInteger>(InputEventType::flagsChanged));
static_assert(NSEventTypeSystemDefined == static_cast<NSUInteger>(InputEventType::systemDefined));

namespace {

EventRecord::SystemDefined systemDefinedOf(NSEvent* event)
{
    return {.subtype = event.subtype, .data1 = event.data1};
}

} // namespace

EventRecord recordOf(CGEventType type, CGEventRef event)
{
    EventRecord record{.type = static_cast<std::uint32_t>(type)};
    // When the system has switched the tap off there may be no event at all.
    if (!event)
        return record;
    record.keyCode = CGEventGetIntegerValueField(event, kCGKeyboardEventKeycode);
    record.flags = CGEventGetFlags(event);
    record.autorepeat = CGEventGetIntegerValueField(event, kCGKeyboardEventAutorepeat);
    record.userData = CGEventGetIntegerValueField(event, kCGEventSourceUserData);
    if (record.type == NSEventTypeSystemDefined) {
        if (NSEvent* const translated = [NSEvent eventWithCGEvent:event])
            record.systemDefined = systemDefinedOf(translated);
    }
    return record;
}

EventRecord recordOf(NSEvent* event)
{
    EventRecord record{.type = static_cast<std::uint32_t>(event.type), .flags = event.modifierFlags};
    // Owned by the event; a monitor sees events that never were one of the taps' kind.
    if (const CGEventRef original = event.CGEvent)
        record.userData = CGEventGetIntegerValueField(original, kCGEventSourceUserData);
    switch (event.type) {
    case NSEventTypeKeyDown:
    case NSEventTypeKeyUp:
        record.keyCode = event.keyCode;
        record.autorepeat = event.ARepeat ? 1 : 0;
        break;
    case NSEventTypeFlagsChanged:
        record.keyCode = event.keyCode;
        break;
    case NSEventTypeSystemDefined:
        record.systemDefined = systemDefinedOf(event);
        break;
    default:
        break;
    }
    return record;
}

} // namespace tarvin::macos
