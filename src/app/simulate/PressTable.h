#pragma once

#include "model/FKey.h"
#include "model/FKeyLookup.h"
#include "platform/ports/EventPoster.h"
#include "platform/ports/InputEvent.h"
#include "platform/ports/InputTaps.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tarvin::simulate {

/// What the keyboard reports in hardware.
struct HidNumber
{
    std::uint32_t page = 0;
    std::uint32_t usage = 0;
};

/// By which event a press is told.
enum class PressEvent {
    keyDown, ///< key down and key up
    flagsChanged, ///< one flags-changed event for each of the two
    media, ///< system-defined events
};

/// How one key reports its press: as itself, and as the function that Apple's keyboards print on it.
struct PressRow
{
    FKey key;
    HidNumber hid;
    PressEvent event;
    EventFlags heldFlag; ///< set in the flags while the key is down
    HidNumber printedHid;
    PressEvent printedEvent;
    std::uint16_t printedNumber; ///< NX key type of a media event, else the key code
};

inline constexpr std::uint32_t keyboardPage = 7;
inline constexpr std::uint32_t consumerControlPage = 12;
inline constexpr std::uint32_t vendorPage = 0xFF01;

/// The row of a key without a printed function.
[[nodiscard]] constexpr PressRow plainPressRow(
    FKey key, HidNumber hid, PressEvent event = PressEvent::keyDown, EventFlags heldFlag = EventFlags::none) noexcept
{
    return {key, hid, event, heldFlag, hid, event, virtualKeyCode(key)};
}

/// The row of one of F1 to F12.
[[nodiscard]] constexpr PressRow printedPressRow(
    FKey key, std::uint32_t usage, HidNumber printedHid, PressEvent printedEvent, std::uint16_t printedNumber) noexcept
{
    return {key, {keyboardPage, usage}, PressEvent::keyDown, EventFlags::none, printedHid, printedEvent, printedNumber};
}

inline constexpr auto pressRows = std::to_array<PressRow>({
    printedPressRow(FKey::f1, 58, {consumerControlPage, 111}, PressEvent::media, 3),
    printedPressRow(FKey::f2, 59, {consumerControlPage, 112}, PressEvent::media, 2),
    printedPressRow(FKey::f3, 60, {vendorPage, 16}, PressEvent::keyDown, 160),
    printedPressRow(FKey::f4, 61, {vendorPage, 33}, PressEvent::keyDown, 177),
    printedPressRow(FKey::f5, 62, {vendorPage, 207}, PressEvent::keyDown, 178),
    printedPressRow(FKey::f6, 63, {vendorPage, 47}, PressEvent::keyDown, 180),
    printedPressRow(FKey::f7, 64, {consumerControlPage, 182}, PressEvent::media, 18),
    printedPressRow(FKey::f8, 65, {consumerControlPage, 205}, PressEvent::media, 16),
    printedPressRow(FKey::f9, 66, {consumerControlPage, 181}, PressEvent::media, 17),
    printedPressRow(FKey::f10, 67, {consumerControlPage, 226}, PressEvent::media, 7),
    printedPressRow(FKey::f11, 68, {consumerControlPage, 234}, PressEvent::media, 1),
    printedPressRow(FKey::f12, 69, {consumerControlPage, 233}, PressEvent::media, 0),
    plainPressRow(FKey::capsLock, {keyboardPage, 57}, PressEvent::flagsChanged),
    plainPressRow(FKey::rightOption, {keyboardPage, 230}, PressEvent::flagsChanged, EventFlags::option),
    plainPressRow(FKey::rightCommand, {keyboardPage, 231}, PressEvent::flagsChanged, EventFlags::command),
    plainPressRow(FKey::fnGlobe, {vendorPage, 3}, PressEvent::flagsChanged, EventFlags::function),
    plainPressRow(FKey::section, {keyboardPage, 100}),
    plainPressRow(FKey::f13, {keyboardPage, 104}),
    plainPressRow(FKey::f14, {keyboardPage, 105}),
    plainPressRow(FKey::f15, {keyboardPage, 106}),
    plainPressRow(FKey::f16, {keyboardPage, 107}),
    plainPressRow(FKey::f17, {keyboardPage, 108}),
    plainPressRow(FKey::f18, {keyboardPage, 109}),
    plainPressRow(FKey::f19, {keyboardPage, 110}),
});

[[nodiscard]] constexpr const PressRow& pressRow(FKey key) noexcept
{
    return pressRows[orderOf(key)];
}

/// The number that a media key event carries.
[[nodiscard]] constexpr std::uint32_t mediaKeyData(std::uint32_t keyType, KeyState state, bool repeat) noexcept
{
    const std::uint32_t stateBits = state == KeyState::down ? 0x0A : 0x0B;
    return (keyType << 16) | (stateBits << 8) | (repeat ? 1U : 0U);
}

// Every report of a row leads the program back to the row's key.
static_assert(pressRows.size() == fKeyCount);
static_assert(rowsStandInEnumerationOrder(pressRows, &PressRow::key));
static_assert(std::ranges::all_of(
    pressRows, [](const PressRow& row) { return fromPageUsage(row.hid.page, row.hid.usage) == row.key; }));
static_assert(std::ranges::all_of(pressRows,
    [](const PressRow& row) { return fromPageUsage(row.printedHid.page, row.printedHid.usage) == row.key; }));
static_assert(std::ranges::all_of(
    pressRows, [](const PressRow& row) { return fromKeyCode(virtualKeyCode(row.key)) == row.key; }));
static_assert(std::ranges::all_of(pressRows, [](const PressRow& row) {
    return row.printedEvent == PressEvent::media ? fromSystemKeyType(row.printedNumber) == row.key
                                                 : fromKeyCode(row.printedNumber) == row.key;
}));

} // namespace tarvin::simulate
