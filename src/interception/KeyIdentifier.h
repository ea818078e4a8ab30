#pragma once

#include "model/FKey.h"
#include "model/FKeyLookup.h"
#include "model/RawValueRows.h"
#include "platform/ports/InputEvent.h"

#include <QStringView>

#include <array>
#include <cstddef>
#include <optional>

namespace tarvin {

namespace detail {

struct KeyIdentifierRow
{
    KeyCode keyCode;
    QStringView identifier;
};

/// The keycaps of the drawn keyboard that are not customisable keys. Right Control and Right Shift are drawn as their
/// left-hand twins; punctuation keys have no identifier.
inline constexpr auto keyIdentifierRows = std::to_array<KeyIdentifierRow>({
    {0, u"A"},
    {1, u"S"},
    {2, u"D"},
    {3, u"F"},
    {4, u"H"},
    {5, u"G"},
    {6, u"Z"},
    {7, u"X"},
    {8, u"C"},
    {9, u"V"},
    {11, u"B"},
    {12, u"Q"},
    {13, u"W"},
    {14, u"E"},
    {15, u"R"},
    {16, u"Y"},
    {17, u"T"},
    {18, u"1"},
    {19, u"2"},
    {20, u"3"},
    {21, u"4"},
    {22, u"6"},
    {23, u"5"},
    {25, u"9"},
    {26, u"7"},
    {28, u"8"},
    {29, u"0"},
    {31, u"O"},
    {32, u"U"},
    {34, u"I"},
    {35, u"P"},
    {36, u"return"},
    {37, u"L"},
    {38, u"J"},
    {40, u"K"},
    {45, u"N"},
    {46, u"M"},
    {48, u"tab"},
    {49, u"space"},
    {51, u"delete"},
    {53, u"esc"},
    {55, u"command_left"},
    {56, u"shift_left"},
    {58, u"option_left"},
    {59, u"control"},
    {60, u"shift_left"},
    {62, u"control"},
    {123, u"arrow_left"},
    {124, u"arrow_right"},
    {125, u"arrow_down"},
    {126, u"arrow_up"},
});

/// keyIdentifierRows and the customisable keys laid out by code, because every keystroke of the session is looked up.
inline constexpr auto keyIdentifierByKeyCode = [] {
    std::array<QStringView, keyCodeTableSize> table{};
    for (const KeyIdentifierRow& row : keyIdentifierRows)
        table[row.keyCode] = row.identifier;
    for (const RawKeyRow& row : keyCodeRows)
        table[row.number] = rawValue(row.key);
    return table;
}();

} // namespace detail

/// The name of the keycap that the drawn keyboard shows for a virtual key code; the text lives as long as the program.
[[nodiscard]] constexpr std::optional<QStringView> keyIdentifier(KeyCode keyCode) noexcept
{
    if (keyCode >= detail::keyIdentifierByKeyCode.size() || detail::keyIdentifierByKeyCode[keyCode].empty())
        return std::nullopt;
    return detail::keyIdentifierByKeyCode[keyCode];
}

} // namespace tarvin
