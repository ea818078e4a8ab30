#pragma once

#include "model/FKeyLookup.h"
#include "model/FKeySet.h"
#include "platform/ports/InputEvent.h"

#include <optional>

namespace tarvin {

/// What an event says that its key did.
enum class KeyMotion {
    down,
    repeat, ///< still held
    up,
};

/// The customisable key that an event is about, whichever kind of event carries it.
[[nodiscard]] constexpr std::optional<FKey> keyOf(const InputEvent& event) noexcept
{
    if (event.type != InputEventType::systemDefined)
        return fromKeyCode(event.keyCode);
    if (!event.systemDefined || event.systemDefined->subtype != SystemDefinedFields::mediaKeySubtype)
        return std::nullopt;
    return fromSystemKeyType(event.systemDefined->keyType());
}

/// Whether a flags-changed event reports that @p key is down, which the event itself does not say.
///
/// The flags do not tell right from left: while the left-hand twin is held, the release of a right-hand modifier reads
/// as a press. The lock state of Caps Lock is not consulted; the key goes by turns.
[[nodiscard]] constexpr bool isDownByFlags(FKey key, EventFlags flags, FKeySet pressedKeys) noexcept
{
    if (key == FKey::rightOption)
        return containsAll(flags, EventFlags::option);
    if (key == FKey::rightCommand)
        return containsAll(flags, EventFlags::command);
    if (key == FKey::fnGlobe)
        return containsAll(flags, EventFlags::function);
    return !pressedKeys.contains(key);
}

/// What @p event says of @p key, which is its `keyOf`.
/// @param pressedKeys the keys that are held now
[[nodiscard]] constexpr KeyMotion motionOf(const InputEvent& event, FKey key, FKeySet pressedKeys) noexcept
{
    switch (event.type) {
    case InputEventType::keyDown:
        return event.autorepeat != 0 ? KeyMotion::repeat : KeyMotion::down;
    case InputEventType::flagsChanged:
        return isDownByFlags(key, event.flags, pressedKeys) ? KeyMotion::down : KeyMotion::up;
    case InputEventType::systemDefined:
        if (!event.systemDefined->isDown())
            return KeyMotion::up;
        return event.systemDefined->isRepeat() ? KeyMotion::repeat : KeyMotion::down;
    case InputEventType::keyUp:
    case InputEventType::tapDisabledByTimeout:
    case InputEventType::tapDisabledByUserInput:
        break;
    }
    return KeyMotion::up;
}

} // namespace tarvin
