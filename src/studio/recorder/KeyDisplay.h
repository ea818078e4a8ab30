#pragma once

#include <QString>

#include <array>
#include <cstdint>

namespace tarvin {

/// A key whose name on the screen is not what it types.
struct NamedKeyRow
{
    std::uint16_t keyCode;
    QStringView name;
};

inline constexpr auto namedKeyRows = std::to_array<NamedKeyRow>({
    {36, u"Return"},
    {48, u"Tab"},
    {49, u"Space"},
    {51, u"Delete"},
    {53, u"Esc"},
    {71, u"Clear"},
    {76, u"Enter"},
    {96, u"F5"},
    {97, u"F6"},
    {98, u"F7"},
    {99, u"F3"},
    {100, u"F8"},
    {101, u"F9"},
    {103, u"F11"},
    {109, u"F10"},
    {111, u"F12"},
    {115, u"Home"},
    {116, u"Page Up"},
    {117, u"Fwd Delete"},
    {118, u"F4"},
    {119, u"End"},
    {120, u"F2"},
    {121, u"Page Down"},
    {122, u"F1"},
    {123, u"←"},
    {124, u"→"},
    {125, u"↓"},
    {126, u"↑"},
});

/// The name of a recorded key: from the table, else what it types, else its number.
/// @param character what the key types, in upper case; may be empty
[[nodiscard]] QString formatKeyDisplay(const QString& character, std::uint16_t keyCode);

} // namespace tarvin
