#pragma once

#include "platform/linux/x11/ExactModifiers.h"
#include "platform/linux/x11/XTypes.h"

#include <cstdint>
#include <optional>
#include <vector>

struct xkb_keymap;

namespace tarvin::x11 {

/// What we need to know of the keymaps: the modifier keys, the keys that type letters, and the way from a key of the
/// keyboard to the same key of the faking device.
///
/// The two devices have the same keymap once the session has set one. Until then the faking device may count its keys
/// in another way, and what is faked on it is read by its own keymap. All keycodes here are those of the keyboard, but
/// for what `fakingKeycode` returns.
class KeyboardMap
{
public:
    /// Stands for keymaps that can't be read: the modifiers of the US layout, no letters.
    KeyboardMap();
    KeyboardMap(xkb_keymap& keyboard, xkb_keymap& faking);

    [[nodiscard]] const ModifierKeys& modifierKeys() const { return m_modifierKeys; }
    [[nodiscard]] const ModifierMasks& masks() const { return m_modifierKeys.masks; }
    /// The key that types the letter by itself.
    /// @param letter from 'a' to 'z'
    /// @param layout the group that is in effect
    [[nodiscard]] std::optional<Keycode> keycodeTyping(char letter, std::uint32_t layout) const;
    /// The same key on the faking device.
    [[nodiscard]] Keycode fakingKeycode(Keycode keycode) const { return m_fakingKeycodes[keycode]; }

private:
    void readPlaces(xkb_keymap& keyboard, xkb_keymap& faking);
    void readModifierKeys(xkb_keymap& keyboard, xkb_keymap& faking);
    void readLetters(xkb_keymap& faking);
    [[nodiscard]] Keycode keyboardKeycode(Keycode fakingKeycode) const;

    static constexpr std::size_t letterCount = 26;
    ModifierKeys m_modifierKeys;
    std::array<Keycode, keycodeCount> m_fakingKeycodes{};
    std::vector<std::array<Keycode, letterCount>> m_letters; ///< per layout; 0 where no key types it
};

} // namespace tarvin::x11
