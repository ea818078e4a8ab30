#include "platform/linux/x11/RecordedKeyName.h"

#include "platform/keycodes/KeyCodeTable.h"
#include "platform/linux/x11/XkbHandles.h"

#include <algorithm>
#include <array>

#include <xkbcommon/xkbcommon-keysyms.h>

namespace tarvin::x11 {

namespace {

struct DeadKeyRow
{
    xkb_keysym_t symbol;
    char16_t accent; ///< as a character of its own
};

constexpr auto deadKeyRows = std::to_array<DeadKeyRow>({
    {XKB_KEY_dead_grave, u'`'},
    {XKB_KEY_dead_acute, u'´'},
    {XKB_KEY_dead_circumflex, u'^'},
    {XKB_KEY_dead_tilde, u'~'},
    {XKB_KEY_dead_macron, u'¯'},
    {XKB_KEY_dead_breve, u'˘'},
    {XKB_KEY_dead_abovedot, u'˙'},
    {XKB_KEY_dead_diaeresis, u'¨'},
    {XKB_KEY_dead_abovering, u'˚'},
    {XKB_KEY_dead_doubleacute, u'˝'},
    {XKB_KEY_dead_caron, u'ˇ'},
    {XKB_KEY_dead_cedilla, u'¸'},
    {XKB_KEY_dead_ogonek, u'˛'},
    {XKB_KEY_dead_iota, u'ͺ'},
    {XKB_KEY_dead_voiced_sound, u'゛'},
    {XKB_KEY_dead_semivoiced_sound, u'゜'},
    {XKB_KEY_dead_stroke, u'/'},
    {XKB_KEY_dead_currency, u'¤'},
    {XKB_KEY_dead_greek, u'µ'},
});

xkb_mod_mask_t maskOf(xkb_keymap& keymap, const char* modifier)
{
    const xkb_mod_index_t index = xkb_keymap_mod_get_index(&keymap, modifier);
    return index == XKB_MOD_INVALID ? 0 : xkb_mod_mask_t{1} << index;
}

xkb_keysym_t symbolOf(xkb_keymap& keymap, Keycode keycode, std::uint32_t layout, xkb_mod_mask_t modifiers)
{
    const XkbState state(xkb_state_new(&keymap));
    xkb_state_update_mask(state.get(), modifiers, 0, 0, 0, 0, layout);
    return xkb_state_key_get_one_sym(state.get(), keycode);
}

QString nameOf(xkb_keysym_t symbol)
{
    constexpr std::size_t longestName = 64;
    std::array<char, longestName> name{};
    if (symbol == XKB_KEY_NoSymbol || xkb_keysym_get_name(symbol, name.data(), name.size()) < 0)
        return {};
    QString text = QString::fromUtf8(name.data());
    if (text.startsWith(u"XF86"))
        text.remove(0, 4);
    return text.replace(u'_', u' ');
}

bool isKeypadKey(Keycode keycode)
{
    const KeyCodeRow* const row = keyRowOfXKeycode(keycode);
    return row != nullptr && row->name.starts_with("keypad");
}

} // namespace

QString recordedKeyName(xkb_keymap& keymap, Keycode keycode, std::uint32_t layout, EventFlags modifiers)
{
    xkb_mod_mask_t mask = 0;
    // The keypad's second meaning hangs on Num Lock, which is no matter of the moment; Shift would turn it round.
    if (isKeypadKey(keycode))
        mask = maskOf(keymap, XKB_MOD_NAME_NUM);
    else if (containsAll(modifiers, EventFlags::shift))
        mask = maskOf(keymap, XKB_MOD_NAME_SHIFT);
    const xkb_keysym_t symbol = symbolOf(keymap, keycode, layout, mask);

    const auto* const dead = std::ranges::find(deadKeyRows, symbol, &DeadKeyRow::symbol);
    if (dead != deadKeyRows.end())
        return QChar(dead->accent);
    const char32_t character = xkb_keysym_to_utf32(symbol);
    if (character != 0 && QChar::isPrint(character) && !QChar::isSpace(character))
        return QString::fromUcs4(&character, 1);
    return nameOf(symbol);
}

} // namespace tarvin::x11
