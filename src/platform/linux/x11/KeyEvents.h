#pragma once

#include "model/FKeySet.h"
#include "platform/keycodes/KeyCodeTable.h"
#include "platform/keycodes/KeyEvents.h"
#include "platform/linux/x11/XTypes.h"
#include "platform/ports/InputEvent.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace tarvin::x11 {

using keycodes::KeyMotion;

/// The key of the summon shortcut, by its place: K on the US layout.
inline constexpr KeyCode summonKeyCode = 40;
inline constexpr Keycode summonKeycode = xKeycodeOf(*keyRowOfKeyCode(summonKeyCode)).value();
inline constexpr EventFlags summonFlags = EventFlags::option | EventFlags::command;

[[nodiscard]] constexpr EventFlags without(EventFlags flags, EventFlags bits) noexcept
{
    return static_cast<EventFlags>(static_cast<std::uint64_t>(flags) & ~static_cast<std::uint64_t>(bits));
}

/// The flag that a key stands for while it is held; none for ordinary keys and for Caps Lock.
[[nodiscard]] constexpr EventFlags ownFlagOf(Keycode keycode) noexcept
{
    const KeyCodeRow* const row = keyRowOfXKeycode(keycode);
    if (row == nullptr || row->form != KeyForm::modifier)
        return EventFlags::none;
    switch (row->code) {
    case 56:
    case 60:
        return EventFlags::shift;
    case 59:
    case 62:
        return EventFlags::control;
    case 58:
    case 61:
        return EventFlags::option;
    case 54:
    case 55:
        return EventFlags::command;
    default:
        return EventFlags::none;
    }
}

/// One bit for each of the eight modifier keys with two sides; 0 for other keys.
[[nodiscard]] constexpr std::uint8_t sideBitOf(Keycode keycode) noexcept
{
    constexpr std::array<std::uint16_t, 8> codes{56, 60, 59, 62, 58, 61, 55, 54};
    const KeyCodeRow* const row = keyRowOfXKeycode(keycode);
    if (row == nullptr || row->form != KeyForm::modifier)
        return 0;
    const auto* const found = std::ranges::find(codes, row->code);
    return found == codes.end() ? std::uint8_t{0} : static_cast<std::uint8_t>(1 << (found - codes.begin()));
}

/// The bit of the same modifier's other side.
[[nodiscard]] constexpr std::uint8_t twinBitOf(Keycode keycode) noexcept
{
    constexpr std::uint8_t leftBits = 0x55;
    const std::uint8_t own = sideBitOf(keycode);
    return static_cast<std::uint8_t>((own & leftBits) != 0 ? own << 1 : own >> 1);
}

/// The customisable key behind a keycode.
[[nodiscard]] constexpr std::optional<FKey> fKeyOf(Keycode keycode) noexcept
{
    const KeyCodeRow* const row = keyRowOfXKeycode(keycode);
    return row == nullptr ? std::nullopt : tarvin::fKeyOf(*row);
}

/// Every keycode that means one of the keys.
[[nodiscard]] inline KeycodeSet keycodesOf(FKeySet keys)
{
    KeycodeSet keycodes;
    for (std::size_t keycode = 0; keycode < keycodeCount; ++keycode) {
        const auto key = fKeyOf(static_cast<Keycode>(keycode));
        keycodes[keycode] = key && keys.contains(*key);
    }
    return keycodes;
}

/// The event that tells of a key's motion, in the form that belongs to the key. Empty for keys without a word and for
/// the repeats of a modifier, which do not exist.
/// @param flags of the modifiers as they are after the motion
[[nodiscard]] constexpr std::optional<InputEvent> makeKeyEvent(
    Keycode keycode, KeyMotion motion, EventFlags flags) noexcept
{
    const KeyCodeRow* const row = keyRowOfXKeycode(keycode);
    if (row == nullptr)
        return std::nullopt;
    return keycodes::makeKeyEvent(*row, motion, flags);
}

} // namespace tarvin::x11
