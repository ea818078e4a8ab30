#pragma once

#include "model/FKey.h"
#include "ui/Symbols.h"

#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace tarvin {

/// The rows of the drawn keyboard, from top to bottom.
enum class KeyboardRow : std::uint8_t { heroFunction, number, qwerty, home, bottomAlpha, modifier };
inline constexpr std::size_t keyboardRowCount = 6;

enum class KeycapKind : std::uint8_t {
    standard,
    heroFunction, ///< F1 to F12
    capsLock,
    special, ///< fn, Right Command, Right Option
    spacebar,
    touchID,
    arrow,
};

/// Where the content of a keycap stands.
enum class KeycapAlignment : std::uint8_t { centre, leading, trailing, topLeading };

/// The place of an arrow key in the cluster of three columns and two half rows.
struct ArrowCell
{
    int column = 0;
    int line = 0; ///< 0 above, 1 below
};

/// One keycap of the drawn keyboard.
struct Keycap
{
    KeyboardRow row;
    QStringView id; ///< names it for the feedback engine, see `keyIdentifier`
    QStringView label{};
    QStringView subLabel{};
    std::optional<Symbol> icon{};
    KeycapAlignment alignment = KeycapAlignment::centre;
    double units = 1; ///< width on the grid; of an arrow key the width of its column
    KeycapKind kind = KeycapKind::standard;
    std::optional<FKey> key{}; ///< what can be customised, for a live key
    ArrowCell cell{};
    QStringView spokenName{}; ///< for assistive technology, where the label doesn't say it
};

inline constexpr double totalRowUnits = 14.5;
inline constexpr double arrowClusterUnits = 3;

namespace detail {

constexpr auto centre = KeycapAlignment::centre;
constexpr auto leading = KeycapAlignment::leading;
constexpr auto trailing = KeycapAlignment::trailing;

} // namespace detail

/// Row by row from the left, which is also the order of painting.
inline constexpr auto keycaps = std::to_array<Keycap>({
    // clang-format off
    {KeyboardRow::heroFunction, u"esc", u"esc", {}, {}, KeycapAlignment::topLeading, 1.25},
    {KeyboardRow::heroFunction, u"F1", u"F1", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f1},
    {KeyboardRow::heroFunction, u"F2", u"F2", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f2},
    {KeyboardRow::heroFunction, u"F3", u"F3", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f3},
    {KeyboardRow::heroFunction, u"F4", u"F4", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f4},
    {KeyboardRow::heroFunction, u"F5", u"F5", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f5},
    {KeyboardRow::heroFunction, u"F6", u"F6", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f6},
    {KeyboardRow::heroFunction, u"F7", u"F7", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f7},
    {KeyboardRow::heroFunction, u"F8", u"F8", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f8},
    {KeyboardRow::heroFunction, u"F9", u"F9", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f9},
    {KeyboardRow::heroFunction, u"F10", u"F10", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f10},
    {KeyboardRow::heroFunction, u"F11", u"F11", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f11},
    {KeyboardRow::heroFunction, u"F12", u"F12", {}, {}, detail::centre, 1, KeycapKind::heroFunction, FKey::f12},
    {KeyboardRow::heroFunction, u"touch_id", {}, {}, {}, detail::centre, 1.25, KeycapKind::touchID, {}, {}, u"Touch ID"},

    {KeyboardRow::number, u"`", u"`", u"~"},
    {KeyboardRow::number, u"1", u"1", u"!"},
    {KeyboardRow::number, u"2", u"2", u"@"},
    {KeyboardRow::number, u"3", u"3", u"#"},
    {KeyboardRow::number, u"4", u"4", u"$"},
    {KeyboardRow::number, u"5", u"5", u"%"},
    {KeyboardRow::number, u"6", u"6", u"^"},
    {KeyboardRow::number, u"7", u"7", u"&"},
    {KeyboardRow::number, u"8", u"8", u"*"},
    {KeyboardRow::number, u"9", u"9", u"("},
    {KeyboardRow::number, u"0", u"0", u")"},
    {KeyboardRow::number, u"-", u"-", u"_"},
    {KeyboardRow::number, u"=", u"=", u"+"},
    {KeyboardRow::number, u"delete", u"delete", {}, Symbol(u"delete.left"), detail::trailing, 1.5},

    {KeyboardRow::qwerty, u"tab", u"tab", {}, Symbol(u"arrow.right.to.line"), detail::leading, 1.5},
    {KeyboardRow::qwerty, u"Q", u"Q"},
    {KeyboardRow::qwerty, u"W", u"W"},
    {KeyboardRow::qwerty, u"E", u"E"},
    {KeyboardRow::qwerty, u"R", u"R"},
    {KeyboardRow::qwerty, u"T", u"T"},
    {KeyboardRow::qwerty, u"Y", u"Y"},
    {KeyboardRow::qwerty, u"U", u"U"},
    {KeyboardRow::qwerty, u"I", u"I"},
    {KeyboardRow::qwerty, u"O", u"O"},
    {KeyboardRow::qwerty, u"P", u"P"},
    {KeyboardRow::qwerty, u"[", u"[", u"{"},
    {KeyboardRow::qwerty, u"]", u"]", u"}"},
    {KeyboardRow::qwerty, u"\\", u"\\", u"|"},

    {KeyboardRow::home, u"caps lock", u"caps lock", {}, {}, detail::leading, 1.75, KeycapKind::capsLock, FKey::capsLock, {}, u"Caps Lock"},
    {KeyboardRow::home, u"A", u"A"},
    {KeyboardRow::home, u"S", u"S"},
    {KeyboardRow::home, u"D", u"D"},
    {KeyboardRow::home, u"F", u"F"},
    {KeyboardRow::home, u"G", u"G"},
    {KeyboardRow::home, u"H", u"H"},
    {KeyboardRow::home, u"J", u"J"},
    {KeyboardRow::home, u"K", u"K"},
    {KeyboardRow::home, u"L", u"L"},
    {KeyboardRow::home, u";", u";", u":"},
    {KeyboardRow::home, u"'", u"'", u"\""},
    {KeyboardRow::home, u"return", u"return", {}, Symbol(u"return"), detail::trailing, 1.75},

    {KeyboardRow::bottomAlpha, u"shift_left", u"shift", {}, Symbol(u"arrow.up"), detail::leading, 2.25, KeycapKind::standard, {}, {}, u"left shift"},
    {KeyboardRow::bottomAlpha, u"Z", u"Z"},
    {KeyboardRow::bottomAlpha, u"X", u"X"},
    {KeyboardRow::bottomAlpha, u"C", u"C"},
    {KeyboardRow::bottomAlpha, u"V", u"V"},
    {KeyboardRow::bottomAlpha, u"B", u"B"},
    {KeyboardRow::bottomAlpha, u"N", u"N"},
    {KeyboardRow::bottomAlpha, u"M", u"M"},
    {KeyboardRow::bottomAlpha, u",", u",", u"<"},
    {KeyboardRow::bottomAlpha, u".", u".", u">"},
    {KeyboardRow::bottomAlpha, u"/", u"/", u"?"},
    {KeyboardRow::bottomAlpha, u"shift_right", u"shift", {}, Symbol(u"arrow.up"), detail::trailing, 2.25, KeycapKind::standard, {}, {}, u"right shift"},

    {KeyboardRow::modifier, u"FnGlobe", u"fn", {}, Symbol(u"globe"), detail::leading, 1, KeycapKind::special, FKey::fnGlobe, {}, u"Function / Globe"},
    {KeyboardRow::modifier, u"control", u"control", {}, Symbol(u"control"), detail::leading},
    {KeyboardRow::modifier, u"option_left", u"option", {}, Symbol(u"option"), detail::leading, 1, KeycapKind::standard, {}, {}, u"left option"},
    {KeyboardRow::modifier, u"command_left", u"command", {}, Symbol(u"command"), detail::trailing, 1.25, KeycapKind::standard, {}, {}, u"left command"},
    {KeyboardRow::modifier, u"space", {}, {}, {}, detail::centre, 5, KeycapKind::spacebar, {}, {}, u"space"},
    {KeyboardRow::modifier, u"RightCommand", u"command", {}, Symbol(u"command"), detail::leading, 1.25, KeycapKind::special, FKey::rightCommand, {}, u"Right Command"},
    {KeyboardRow::modifier, u"RightOption", u"option", {}, Symbol(u"option"), detail::trailing, 1, KeycapKind::special, FKey::rightOption, {}, u"Right Option"},
    {KeyboardRow::modifier, u"arrow_left", {}, {}, Symbol(u"chevron.left"), detail::centre, 1, KeycapKind::arrow, {}, {0, 1}, u"left arrow"},
    {KeyboardRow::modifier, u"arrow_up", {}, {}, Symbol(u"chevron.up"), detail::centre, 1, KeycapKind::arrow, {}, {1, 0}, u"up arrow"},
    {KeyboardRow::modifier, u"arrow_down", {}, {}, Symbol(u"chevron.down"), detail::centre, 1, KeycapKind::arrow, {}, {1, 1}, u"down arrow"},
    {KeyboardRow::modifier, u"arrow_right", {}, {}, Symbol(u"chevron.right"), detail::centre, 1, KeycapKind::arrow, {}, {2, 1}, u"right arrow"},
    // clang-format on
});

inline constexpr std::size_t keycapCount = keycaps.size();

static_assert(
    [] {
        std::array<double, keyboardRowCount> units{};
        for (const Keycap& keycap : keycaps) {
            if (keycap.kind != KeycapKind::arrow)
                units[static_cast<std::size_t>(keycap.row)] += keycap.units;
        }
        units.back() += arrowClusterUnits;
        for (const double sum : units) {
            if (sum != totalRowUnits)
                return false;
        }
        return true;
    }(),
    "every row is as wide as the others");

/// The fingers find F and J by a bar.
[[nodiscard]] constexpr bool hasTactileNub(const Keycap& keycap)
{
    return characters(keycap.id) == u"F" || characters(keycap.id) == u"J";
}

/// The keycap of a customisable key; absent for those that are not drawn.
[[nodiscard]] constexpr std::optional<std::size_t> keycapOf(FKey key)
{
    for (std::size_t index = 0; index < keycapCount; ++index) {
        if (keycaps[index].key == key)
            return index;
    }
    return std::nullopt;
}

/// Whether a press that the feedback engine reports is of this keycap. Caps Lock goes by two names.
[[nodiscard]] constexpr bool isPressNamed(const Keycap& keycap, QStringView pressedKeyId)
{
    return characters(keycap.id) == characters(pressedKeyId)
        || (keycap.kind == KeycapKind::capsLock && characters(pressedKeyId) == u"CapsLock");
}

} // namespace tarvin
