#pragma once

#include "platform/linux/x11/XTypes.h"
#include "platform/ports/EventFlags.h"

#include <QString>

#include <cstdint>

struct xkb_keymap;

namespace tarvin::x11 {

/// What a recorded key is called: the character that it types with no modifier but Shift, a dead key's accent, and for
/// a key that types nothing visible the name of its meaning ("F13", "Menu"). Keys of the keypad are read as digits.
/// @param layout the group that is in effect
/// @return empty for a key that means nothing
[[nodiscard]] QString recordedKeyName(xkb_keymap& keymap, Keycode keycode, std::uint32_t layout, EventFlags modifiers);

} // namespace tarvin::x11
