#pragma once

#include "model/FKey.h"
#include "model/FKeyLookup.h"
#include "platform/ports/InputEvent.h"

#include <algorithm>

namespace tarvin::test {

// The events of a keyboard, one line each.

inline constexpr KeyCode keyA = 0;
inline constexpr KeyCode keyK = 40;
inline constexpr KeyCode keyComma = 43;
inline constexpr KeyCode keyLeftShift = 56;
/// Media key types.
inline constexpr std::uint32_t mediaSoundUp = 0; // F12
inline constexpr std::uint32_t mediaBrightnessDown = 3; // F1
inline constexpr std::uint32_t mediaBrightnessUp = 2; // F2
inline constexpr std::uint32_t mediaEject = 14; // no key of the top row

[[nodiscard]] constexpr InputEvent keyDown(KeyCode keyCode, EventFlags flags = EventFlags::none)
{
    return {.type = InputEventType::keyDown, .keyCode = keyCode, .flags = flags};
}

[[nodiscard]] constexpr InputEvent keyRepeat(KeyCode keyCode, EventFlags flags = EventFlags::none)
{
    return {.type = InputEventType::keyDown, .keyCode = keyCode, .flags = flags, .autorepeat = 1};
}

[[nodiscard]] constexpr InputEvent keyUp(KeyCode keyCode, EventFlags flags = EventFlags::none)
{
    return {.type = InputEventType::keyUp, .keyCode = keyCode, .flags = flags};
}

[[nodiscard]] constexpr InputEvent keyDown(FKey key, EventFlags flags = EventFlags::none)
{
    return keyDown(virtualKeyCode(key), flags);
}

[[nodiscard]] constexpr InputEvent keyRepeat(FKey key, EventFlags flags = EventFlags::none)
{
    return keyRepeat(virtualKeyCode(key), flags);
}

[[nodiscard]] constexpr InputEvent keyUp(FKey key, EventFlags flags = EventFlags::none)
{
    return keyUp(virtualKeyCode(key), flags);
}

[[nodiscard]] constexpr InputEvent flagsChanged(KeyCode keyCode, EventFlags flags)
{
    return {.type = InputEventType::flagsChanged, .keyCode = keyCode, .flags = flags};
}

[[nodiscard]] constexpr InputEvent flagsChanged(FKey key, EventFlags flags)
{
    return flagsChanged(virtualKeyCode(key), flags);
}

/// The flag that the held key sets; none for every key but the modifiers, and for Caps Lock.
[[nodiscard]] constexpr EventFlags flagOf(FKey key)
{
    if (key == FKey::rightOption)
        return EventFlags::option;
    if (key == FKey::rightCommand)
        return EventFlags::command;
    return key == FKey::fnGlobe ? EventFlags::function : EventFlags::none;
}

/// The usage on the keyboard page by which most keyboards report the key.
[[nodiscard]] constexpr std::uint32_t hidUsageOf(FKey key)
{
    return std::ranges::find(detail::hidUsageRows, key, &detail::RawKeyRow::key)->number;
}

[[nodiscard]] constexpr InputEvent systemDefined(std::int16_t subtype, std::uint32_t data1)
{
    return {.type = InputEventType::systemDefined, .systemDefined = SystemDefinedFields{subtype, data1}};
}

inline constexpr std::uint32_t mediaStateDown = 0x0A;
inline constexpr std::uint32_t mediaStateUp = 0x0B;

[[nodiscard]] constexpr InputEvent mediaKey(std::uint32_t type, std::uint32_t state, std::uint32_t repeat = 0)
{
    return systemDefined(SystemDefinedFields::mediaKeySubtype, type << 16 | state << 8 | repeat);
}

[[nodiscard]] constexpr InputEvent mediaDown(std::uint32_t type)
{
    return mediaKey(type, mediaStateDown);
}

[[nodiscard]] constexpr InputEvent mediaRepeat(std::uint32_t type)
{
    return mediaKey(type, mediaStateDown, 1);
}

[[nodiscard]] constexpr InputEvent mediaUp(std::uint32_t type)
{
    return mediaKey(type, mediaStateUp);
}

[[nodiscard]] constexpr InputEvent selfPosted(InputEvent event)
{
    event.userData = selfPostedMarker;
    return event;
}

} // namespace tarvin::test
