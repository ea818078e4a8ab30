#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarvin::pasteboard {

/// The atoms of the clipboard protocol; the table below gives their names in the same order.
enum class SelectionAtom : std::uint8_t {
    atomPair,
    clipboard,
    increments,
    multiple,
    passwordManagerHint,
    plainText,
    plainTextUtf8,
    targets,
    tarvinHint,
    tarvinTargets,
    tarvinText,
    tarvinTime,
    text,
    timestamp,
    utf8String,
};

inline constexpr auto selectionAtomNames = std::to_array<std::string_view>({
    "ATOM_PAIR",
    "CLIPBOARD",
    "INCR",
    "MULTIPLE",
    "x-kde-passwordManagerHint",
    "text/plain",
    "text/plain;charset=utf-8",
    "TARGETS",
    "_TARVIN_HINT",
    "_TARVIN_TARGETS",
    "_TARVIN_TEXT",
    "_TARVIN_TIME",
    "TEXT",
    "TIMESTAMP",
    "UTF8_STRING",
});

inline constexpr std::size_t selectionAtomCount = selectionAtomNames.size();
static_assert(static_cast<std::size_t>(SelectionAtom::utf8String) + 1 == selectionAtomCount);

} // namespace tarvin::pasteboard
