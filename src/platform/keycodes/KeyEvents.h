#pragma once

#include "platform/keycodes/KeyCodeTable.h"
#include "platform/ports/InputEvent.h"

#include <cstdint>
#include <optional>

namespace tarvin::keycodes {

/// What a key did.
enum class KeyMotion : std::uint8_t { press, repeat, release };

/// The event that tells of a key's motion, in the form that belongs to the key. Empty for the repeats of a modifier,
/// which do not exist.
/// @param flags of the modifiers as they are after the motion
[[nodiscard]] constexpr std::optional<InputEvent> makeKeyEvent(
    const KeyCodeRow& row, KeyMotion motion, EventFlags flags) noexcept
{
    InputEvent event{.keyCode = row.code, .flags = flags};
    switch (row.form) {
    case KeyForm::key:
        event.type = motion == KeyMotion::release ? InputEventType::keyUp : InputEventType::keyDown;
        event.autorepeat = motion == KeyMotion::repeat ? 1 : 0;
        return event;
    case KeyForm::modifier:
        if (motion == KeyMotion::repeat)
            return std::nullopt;
        event.type = InputEventType::flagsChanged;
        return event;
    case KeyForm::mediaKey: {
        constexpr std::uint32_t down = 0x0A;
        constexpr std::uint32_t up = 0x0B;
        const std::uint32_t state = motion == KeyMotion::release ? up : down;
        const std::uint32_t repeat = motion == KeyMotion::repeat ? 1 : 0;
        event.type = InputEventType::systemDefined;
        event.keyCode = 0;
        event.systemDefined = SystemDefinedFields{.subtype = SystemDefinedFields::mediaKeySubtype,
            .data1 = static_cast<std::uint32_t>(row.code) << 16 | state << 8 | repeat};
        return event;
    }
    }
    return std::nullopt;
}

} // namespace tarvin::keycodes
