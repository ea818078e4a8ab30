#include "platform/linux/x11/KeyboardMap.h"

#include "platform/linux/x11/KeyEvents.h"
#include "platform/linux/x11/XkbHandles.h"

#include <algorithm>
#include <initializer_list>
#include <numeric>

#include <xkbcommon/xkbcommon-keysyms.h>

namespace tarvin::x11 {

namespace {

constexpr std::size_t firstKeycode = 8;
constexpr ModifierMask realModifiers = 0xFF;

xkb_keysym_t plainKeysym(xkb_keymap& keymap, Keycode keycode, xkb_layout_index_t layout)
{
    const xkb_keysym_t* symbols = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(&keymap, keycode, layout, 0, &symbols);
    return count == 1 ? *symbols : XKB_KEY_NoSymbol;
}

/// The real modifiers that are set while the key is down.
ModifierMask maskWhileDown(xkb_keymap& keymap, Keycode keycode)
{
    const XkbState state(xkb_state_new(&keymap));
    xkb_state_update_key(state.get(), keycode, XKB_KEY_DOWN);
    return static_cast<ModifierMask>(xkb_state_serialize_mods(state.get(), XKB_STATE_MODS_DEPRESSED) & realModifiers);
}

} // namespace

KeyboardMap::KeyboardMap()
{
    std::iota(m_fakingKeycodes.begin(), m_fakingKeycodes.end(), Keycode{0});
    const auto firstWith = [](EventFlags flag) {
        std::size_t keycode = firstKeycode;
        while (ownFlagOf(static_cast<Keycode>(keycode)) != flag)
            ++keycode;
        return static_cast<Keycode>(keycode);
    };
    m_modifierKeys.shift = firstWith(EventFlags::shift);
    m_modifierKeys.control = firstWith(EventFlags::control);
    m_modifierKeys.option = firstWith(EventFlags::option);
    m_modifierKeys.command = firstWith(EventFlags::command);
    for (std::size_t keycode = firstKeycode; keycode < keycodeCount; ++keycode)
        m_modifierKeys.maskOf[keycode] = masks().maskFor(ownFlagOf(static_cast<Keycode>(keycode)));
}

KeyboardMap::KeyboardMap(xkb_keymap& keyboard, xkb_keymap& faking)
{
    readPlaces(keyboard, faking);
    readModifierKeys(keyboard, faking);
    readLetters(faking);
}

void KeyboardMap::readPlaces(xkb_keymap& keyboard, xkb_keymap& faking)
{
    for (std::size_t index = 0; index < keycodeCount; ++index) {
        const auto keycode = static_cast<Keycode>(index);
        // Keymaps of both ways of counting give a key the same name.
        const char* const name = xkb_keymap_key_get_name(&keyboard, keycode);
        const xkb_keycode_t found = name == nullptr ? XKB_KEYCODE_INVALID : xkb_keymap_key_by_name(&faking, name);
        m_fakingKeycodes[index] = found < keycodeCount ? static_cast<Keycode>(found) : keycode;
    }
}

Keycode KeyboardMap::keyboardKeycode(Keycode fakingKeycode) const
{
    if (m_fakingKeycodes[fakingKeycode] == fakingKeycode)
        return fakingKeycode;
    const auto* const found = std::ranges::find(m_fakingKeycodes, fakingKeycode);
    return found == m_fakingKeycodes.end() ? fakingKeycode : static_cast<Keycode>(found - m_fakingKeycodes.begin());
}

void KeyboardMap::readModifierKeys(xkb_keymap& keyboard, xkb_keymap& faking)
{
    std::array<ModifierMask, keycodeCount> fakingMaskOf{};
    for (std::size_t keycode = firstKeycode; keycode < keycodeCount; ++keycode) {
        m_modifierKeys.maskOf[keycode] = maskWhileDown(keyboard, static_cast<Keycode>(keycode));
        fakingMaskOf[keycode] = maskWhileDown(faking, static_cast<Keycode>(keycode));
    }

    // A key counts by what it says, not by its place: the user may have put Control where Caps Lock was.
    const auto find = [&](std::initializer_list<xkb_keysym_t> symbols) {
        for (const xkb_keysym_t symbol : symbols) {
            for (std::size_t keycode = firstKeycode; keycode < keycodeCount; ++keycode) {
                if (fakingMaskOf[keycode] != 0 && plainKeysym(faking, static_cast<Keycode>(keycode), 0) == symbol)
                    return static_cast<Keycode>(keycode);
            }
        }
        return Keycode{0};
    };
    const Keycode option = find({XKB_KEY_Alt_L, XKB_KEY_Alt_R});
    const Keycode command = find({XKB_KEY_Super_L, XKB_KEY_Super_R});
    m_modifierKeys.shift = keyboardKeycode(find({XKB_KEY_Shift_L, XKB_KEY_Shift_R}));
    m_modifierKeys.control = keyboardKeycode(find({XKB_KEY_Control_L, XKB_KEY_Control_R}));
    m_modifierKeys.option = keyboardKeycode(option);
    m_modifierKeys.command = keyboardKeycode(command);
    ModifierMasks& masks = m_modifierKeys.masks;
    if (option != 0)
        masks.option = fakingMaskOf[option];
    if (command != 0)
        masks.command = fakingMaskOf[command];
    masks.levelThree = fakingMaskOf[find({XKB_KEY_ISO_Level3_Shift})];

    for (std::size_t keycode = firstKeycode; keycode < keycodeCount; ++keycode) {
        if (xkb_keymap_num_layouts_for_key(&faking, static_cast<xkb_keycode_t>(keycode)) == 0
            && xkb_keymap_num_layouts_for_key(&keyboard, static_cast<xkb_keycode_t>(keycode)) == 0
            && m_fakingKeycodes[keycode] == keycode)
            m_modifierKeys.blank = static_cast<Keycode>(keycode);
    }
}

void KeyboardMap::readLetters(xkb_keymap& faking)
{
    m_letters.resize(xkb_keymap_num_layouts(&faking));
    for (xkb_layout_index_t layout = 0; layout < m_letters.size(); ++layout) {
        for (std::size_t index = firstKeycode; index < keycodeCount; ++index) {
            const auto keycode = static_cast<Keycode>(index);
            const xkb_keysym_t symbol = plainKeysym(faking, keycode, layout);
            if (symbol < XKB_KEY_a || symbol > XKB_KEY_z)
                continue;
            Keycode& entry = m_letters[layout][symbol - XKB_KEY_a];
            if (entry == 0)
                entry = keyboardKeycode(keycode);
        }
    }
}

std::optional<Keycode> KeyboardMap::keycodeTyping(char letter, std::uint32_t layout) const
{
    if (layout >= m_letters.size() || letter < 'a' || letter > 'z')
        return std::nullopt;
    const Keycode keycode = m_letters[layout][static_cast<std::size_t>(letter - 'a')];
    return keycode == 0 ? std::nullopt : std::optional(keycode);
}

} // namespace tarvin::x11
