#pragma once

#include "model/FKeyLookup.h"
#include "platform/ports/InputEvent.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tarvin {

/// How the event record words a key.
enum class KeyForm : std::uint8_t {
    key, ///< key down and key up with a key code
    modifier, ///< flags changed with a key code
    mediaKey, ///< system defined with an NX key type
};

/// One physical key, in the numbers of every platform.
struct KeyCodeRow
{
    std::string_view name; ///< for log lines and tests
    KeyForm form;
    std::uint16_t code; ///< the virtual key code, or the NX key type of a media key
    std::uint16_t evdevCode; ///< of <linux/input-event-codes.h>
    std::uint16_t hidPage; ///< 0 where the usage tables know no such key
    std::uint16_t hidUsage;
};

namespace detail {

inline constexpr std::uint16_t keyboardPage = 0x07;
inline constexpr std::uint16_t consumer = static_cast<std::uint16_t>(consumerPage);
inline constexpr std::uint16_t vendorTopRow = static_cast<std::uint16_t>(vendorTopRowPage);

} // namespace detail

/// Every key that the program has a word for. Where several keys share a code, the first is the one to post.
///
/// The HID columns hold the numbers of the USB usage tables with one exception: the look-up by page and usage reads the
/// two brightness usages the other way round, and the column follows it, so that every way to a key ends at the same
/// key.
inline constexpr auto keyCodeTable = std::to_array<KeyCodeRow>({
    // Letters, by their place on the US layout.
    {"a", KeyForm::key, 0, 30, detail::keyboardPage, 0x04},
    {"b", KeyForm::key, 11, 48, detail::keyboardPage, 0x05},
    {"c", KeyForm::key, 8, 46, detail::keyboardPage, 0x06},
    {"d", KeyForm::key, 2, 32, detail::keyboardPage, 0x07},
    {"e", KeyForm::key, 14, 18, detail::keyboardPage, 0x08},
    {"f", KeyForm::key, 3, 33, detail::keyboardPage, 0x09},
    {"g", KeyForm::key, 5, 34, detail::keyboardPage, 0x0A},
    {"h", KeyForm::key, 4, 35, detail::keyboardPage, 0x0B},
    {"i", KeyForm::key, 34, 23, detail::keyboardPage, 0x0C},
    {"j", KeyForm::key, 38, 36, detail::keyboardPage, 0x0D},
    {"k", KeyForm::key, 40, 37, detail::keyboardPage, 0x0E},
    {"l", KeyForm::key, 37, 38, detail::keyboardPage, 0x0F},
    {"m", KeyForm::key, 46, 50, detail::keyboardPage, 0x10},
    {"n", KeyForm::key, 45, 49, detail::keyboardPage, 0x11},
    {"o", KeyForm::key, 31, 24, detail::keyboardPage, 0x12},
    {"p", KeyForm::key, 35, 25, detail::keyboardPage, 0x13},
    {"q", KeyForm::key, 12, 16, detail::keyboardPage, 0x14},
    {"r", KeyForm::key, 15, 19, detail::keyboardPage, 0x15},
    {"s", KeyForm::key, 1, 31, detail::keyboardPage, 0x16},
    {"t", KeyForm::key, 17, 20, detail::keyboardPage, 0x17},
    {"u", KeyForm::key, 32, 22, detail::keyboardPage, 0x18},
    {"v", KeyForm::key, 9, 47, detail::keyboardPage, 0x19},
    {"w", KeyForm::key, 13, 17, detail::keyboardPage, 0x1A},
    {"x", KeyForm::key, 7, 45, detail::keyboardPage, 0x1B},
    {"y", KeyForm::key, 16, 21, detail::keyboardPage, 0x1C},
    {"z", KeyForm::key, 6, 44, detail::keyboardPage, 0x1D},
    {"1", KeyForm::key, 18, 2, detail::keyboardPage, 0x1E},
    {"2", KeyForm::key, 19, 3, detail::keyboardPage, 0x1F},
    {"3", KeyForm::key, 20, 4, detail::keyboardPage, 0x20},
    {"4", KeyForm::key, 21, 5, detail::keyboardPage, 0x21},
    {"5", KeyForm::key, 23, 6, detail::keyboardPage, 0x22},
    {"6", KeyForm::key, 22, 7, detail::keyboardPage, 0x23},
    {"7", KeyForm::key, 26, 8, detail::keyboardPage, 0x24},
    {"8", KeyForm::key, 28, 9, detail::keyboardPage, 0x25},
    {"9", KeyForm::key, 25, 10, detail::keyboardPage, 0x26},
    {"0", KeyForm::key, 29, 11, detail::keyboardPage, 0x27},

    // Punctuation and the keys around the letters.
    {"return", KeyForm::key, 36, 28, detail::keyboardPage, 0x28},
    {"escape", KeyForm::key, 53, 1, detail::keyboardPage, 0x29},
    {"backspace", KeyForm::key, 51, 14, detail::keyboardPage, 0x2A},
    {"tab", KeyForm::key, 48, 15, detail::keyboardPage, 0x2B},
    {"space", KeyForm::key, 49, 57, detail::keyboardPage, 0x2C},
    {"minus", KeyForm::key, 27, 12, detail::keyboardPage, 0x2D},
    {"equal", KeyForm::key, 24, 13, detail::keyboardPage, 0x2E},
    {"leftBracket", KeyForm::key, 33, 26, detail::keyboardPage, 0x2F},
    {"rightBracket", KeyForm::key, 30, 27, detail::keyboardPage, 0x30},
    {"backslash", KeyForm::key, 42, 43, detail::keyboardPage, 0x31},
    {"semicolon", KeyForm::key, 41, 39, detail::keyboardPage, 0x33},
    {"quote", KeyForm::key, 39, 40, detail::keyboardPage, 0x34},
    {"grave", KeyForm::key, 50, 41, detail::keyboardPage, 0x35},
    {"comma", KeyForm::key, 43, 51, detail::keyboardPage, 0x36},
    {"period", KeyForm::key, 47, 52, detail::keyboardPage, 0x37},
    {"slash", KeyForm::key, 44, 53, detail::keyboardPage, 0x38},
    {"section", KeyForm::key, 10, 86, detail::keyboardPage, 0x64},

    {"f1", KeyForm::key, 122, 59, detail::keyboardPage, 0x3A},
    {"f2", KeyForm::key, 120, 60, detail::keyboardPage, 0x3B},
    {"f3", KeyForm::key, 99, 61, detail::keyboardPage, 0x3C},
    {"f4", KeyForm::key, 118, 62, detail::keyboardPage, 0x3D},
    {"f5", KeyForm::key, 96, 63, detail::keyboardPage, 0x3E},
    {"f6", KeyForm::key, 97, 64, detail::keyboardPage, 0x3F},
    {"f7", KeyForm::key, 98, 65, detail::keyboardPage, 0x40},
    {"f8", KeyForm::key, 100, 66, detail::keyboardPage, 0x41},
    {"f9", KeyForm::key, 101, 67, detail::keyboardPage, 0x42},
    {"f10", KeyForm::key, 109, 68, detail::keyboardPage, 0x43},
    {"f11", KeyForm::key, 103, 87, detail::keyboardPage, 0x44},
    {"f12", KeyForm::key, 111, 88, detail::keyboardPage, 0x45},
    {"f13", KeyForm::key, 105, 183, detail::keyboardPage, 0x68},
    {"f14", KeyForm::key, 107, 184, detail::keyboardPage, 0x69},
    {"f15", KeyForm::key, 113, 185, detail::keyboardPage, 0x6A},
    {"f16", KeyForm::key, 106, 186, detail::keyboardPage, 0x6B},
    {"f17", KeyForm::key, 64, 187, detail::keyboardPage, 0x6C},
    {"f18", KeyForm::key, 79, 188, detail::keyboardPage, 0x6D},
    {"f19", KeyForm::key, 80, 189, detail::keyboardPage, 0x6E},
    {"f20", KeyForm::key, 90, 190, detail::keyboardPage, 0x6F},

    // Navigation. What one keyboard calls Insert is Help on the other.
    {"insert", KeyForm::key, 114, 110, detail::keyboardPage, 0x49},
    {"home", KeyForm::key, 115, 102, detail::keyboardPage, 0x4A},
    {"pageUp", KeyForm::key, 116, 104, detail::keyboardPage, 0x4B},
    {"forwardDelete", KeyForm::key, 117, 111, detail::keyboardPage, 0x4C},
    {"end", KeyForm::key, 119, 107, detail::keyboardPage, 0x4D},
    {"pageDown", KeyForm::key, 121, 109, detail::keyboardPage, 0x4E},
    {"right", KeyForm::key, 124, 106, detail::keyboardPage, 0x4F},
    {"left", KeyForm::key, 123, 105, detail::keyboardPage, 0x50},
    {"down", KeyForm::key, 125, 108, detail::keyboardPage, 0x51},
    {"up", KeyForm::key, 126, 103, detail::keyboardPage, 0x52},
    {"contextMenu", KeyForm::key, 110, 127, detail::keyboardPage, 0x65},

    // Keypad. Clear is where the other keyboard has Num Lock.
    {"keypadClear", KeyForm::key, 71, 69, detail::keyboardPage, 0x53},
    {"keypadDivide", KeyForm::key, 75, 98, detail::keyboardPage, 0x54},
    {"keypadMultiply", KeyForm::key, 67, 55, detail::keyboardPage, 0x55},
    {"keypadMinus", KeyForm::key, 78, 74, detail::keyboardPage, 0x56},
    {"keypadPlus", KeyForm::key, 69, 78, detail::keyboardPage, 0x57},
    {"keypadEnter", KeyForm::key, 76, 96, detail::keyboardPage, 0x58},
    {"keypad1", KeyForm::key, 83, 79, detail::keyboardPage, 0x59},
    {"keypad2", KeyForm::key, 84, 80, detail::keyboardPage, 0x5A},
    {"keypad3", KeyForm::key, 85, 81, detail::keyboardPage, 0x5B},
    {"keypad4", KeyForm::key, 86, 75, detail::keyboardPage, 0x5C},
    {"keypad5", KeyForm::key, 87, 76, detail::keyboardPage, 0x5D},
    {"keypad6", KeyForm::key, 88, 77, detail::keyboardPage, 0x5E},
    {"keypad7", KeyForm::key, 89, 71, detail::keyboardPage, 0x5F},
    {"keypad8", KeyForm::key, 91, 72, detail::keyboardPage, 0x60},
    {"keypad9", KeyForm::key, 92, 73, detail::keyboardPage, 0x61},
    {"keypad0", KeyForm::key, 82, 82, detail::keyboardPage, 0x62},
    {"keypadDecimal", KeyForm::key, 65, 83, detail::keyboardPage, 0x63},
    {"keypadEqual", KeyForm::key, 81, 117, detail::keyboardPage, 0x67},
    {"keypadComma", KeyForm::key, 95, 121, detail::keyboardPage, 0x85},

    // Japanese keyboards.
    {"underscore", KeyForm::key, 94, 89, detail::keyboardPage, 0x87},
    {"yen", KeyForm::key, 93, 124, detail::keyboardPage, 0x89},
    {"kana", KeyForm::key, 104, 122, detail::keyboardPage, 0x90},
    {"eisu", KeyForm::key, 102, 123, detail::keyboardPage, 0x91},

    {"leftControl", KeyForm::modifier, 59, 29, detail::keyboardPage, 0xE0},
    {"leftShift", KeyForm::modifier, 56, 42, detail::keyboardPage, 0xE1},
    {"leftOption", KeyForm::modifier, 58, 56, detail::keyboardPage, 0xE2},
    {"leftCommand", KeyForm::modifier, 55, 125, detail::keyboardPage, 0xE3},
    {"rightControl", KeyForm::modifier, 62, 97, detail::keyboardPage, 0xE4},
    {"rightShift", KeyForm::modifier, 60, 54, detail::keyboardPage, 0xE5},
    {"rightOption", KeyForm::modifier, 61, 100, detail::keyboardPage, 0xE6},
    {"rightCommand", KeyForm::modifier, 54, 126, detail::keyboardPage, 0xE7},
    {"capsLock", KeyForm::modifier, 57, 58, detail::keyboardPage, 0x39},
    {"function", KeyForm::modifier, 63, 464, detail::vendorTopRow, 0x03},

    // The top row's printed functions that come as key codes of their own.
    {"globe", KeyForm::key, 179, 584, detail::consumer, 0x29D},
    {"missionControl", KeyForm::key, 160, 120, detail::consumer, 0x29F},
    {"launchpad", KeyForm::key, 131, 204, detail::consumer, 0x2A2},
    {"search", KeyForm::key, 177, 217, detail::consumer, 0x221},
    {"dictation", KeyForm::key, 178, 586, detail::consumer, 0xD8},

    // And those that come as media keys. A disc player's keys are the only ones that some keyboards have.
    {"volumeUp", KeyForm::mediaKey, 0, 115, detail::consumer, 0xE9},
    {"volumeDown", KeyForm::mediaKey, 1, 114, detail::consumer, 0xEA},
    {"brightnessUp", KeyForm::mediaKey, 2, 225, detail::consumer, 0x70},
    {"brightnessDown", KeyForm::mediaKey, 3, 224, detail::consumer, 0x6F},
    {"mute", KeyForm::mediaKey, 7, 113, detail::consumer, 0xE2},
    {"playPause", KeyForm::mediaKey, 16, 164, detail::consumer, 0xCD},
    {"play", KeyForm::mediaKey, 16, 207, detail::consumer, 0xB0},
    {"discPlay", KeyForm::mediaKey, 16, 200, 0, 0},
    {"discPause", KeyForm::mediaKey, 16, 201, 0, 0},
    {"nextTrack", KeyForm::mediaKey, 17, 163, detail::consumer, 0xB5},
    {"previousTrack", KeyForm::mediaKey, 18, 165, detail::consumer, 0xB6},
    {"illuminationUp", KeyForm::mediaKey, 21, 230, detail::consumer, 0x79},
    {"illuminationDown", KeyForm::mediaKey, 22, 229, detail::consumer, 0x7A},
});

/// The X keycode of a key; the X protocol has no place for keys above evdev code 247.
[[nodiscard]] constexpr std::optional<std::uint8_t> xKeycodeOf(const KeyCodeRow& row) noexcept
{
    constexpr std::uint16_t offset = 8; // what every evdev-based X keymap adds
    constexpr std::uint16_t largest = 255;
    if (row.evdevCode + offset > largest)
        return std::nullopt;
    return static_cast<std::uint8_t>(row.evdevCode + offset);
}

/// The customisable key that this key means.
[[nodiscard]] constexpr std::optional<FKey> fKeyOf(const KeyCodeRow& row) noexcept
{
    return row.form == KeyForm::mediaKey ? fromSystemKeyType(row.code) : fromKeyCode(row.code);
}

namespace detail {

[[nodiscard]] constexpr const KeyCodeRow* findKeyRow(auto matches) noexcept
{
    const auto* const found = std::ranges::find_if(keyCodeTable, matches);
    return found == keyCodeTable.end() ? nullptr : &*found;
}

[[nodiscard]] constexpr bool noTwoKeyRows(auto clash) noexcept
{
    for (const auto* first = keyCodeTable.begin(); first != keyCodeTable.end(); ++first) {
        for (const auto* second = first + 1; second != keyCodeTable.end(); ++second) {
            if (clash(*first, *second))
                return false;
        }
    }
    return true;
}
static_assert(noTwoKeyRows([](const KeyCodeRow& a, const KeyCodeRow& b) { return a.name == b.name; }));
static_assert(noTwoKeyRows([](const KeyCodeRow& a, const KeyCodeRow& b) { return a.evdevCode == b.evdevCode; }));
static_assert(noTwoKeyRows([](const KeyCodeRow& a, const KeyCodeRow& b) {
    return a.hidPage != 0 && a.hidPage == b.hidPage && a.hidUsage == b.hidUsage;
}));
static_assert(noTwoKeyRows([](const KeyCodeRow& a, const KeyCodeRow& b) {
    return a.form != KeyForm::mediaKey && b.form != KeyForm::mediaKey && a.code == b.code;
}));
// Whatever way a press comes in, it ends at one and the same customisable key.
static_assert(std::ranges::all_of(keyCodeTable, [](const KeyCodeRow& row) {
    const std::optional<FKey> byUsage = row.hidPage == 0 ? std::nullopt : fromPageUsage(row.hidPage, row.hidUsage);
    return !byUsage || byUsage == fKeyOf(row);
}));

inline constexpr std::size_t xKeycodeCount = 256;

/// The table laid out by X keycode, because every keystroke of the session is looked up.
inline constexpr auto keyRowByXKeycode = [] {
    std::array<const KeyCodeRow*, xKeycodeCount> rows{};
    for (const KeyCodeRow& row : keyCodeTable) {
        if (const auto keycode = xKeycodeOf(row))
            rows[*keycode] = &row;
    }
    return rows;
}();

} // namespace detail

/// The key with this X keycode, null for keys that the program has no word for.
[[nodiscard]] constexpr const KeyCodeRow* keyRowOfXKeycode(std::uint8_t keycode) noexcept
{
    return detail::keyRowByXKeycode[keycode];
}

[[nodiscard]] constexpr const KeyCodeRow* keyRowOfEvdevCode(std::uint16_t evdevCode) noexcept
{
    return detail::findKeyRow([=](const KeyCodeRow& row) { return row.evdevCode == evdevCode; });
}

/// The key that a virtual key code stands for, modifiers included and media keys not.
[[nodiscard]] constexpr const KeyCodeRow* keyRowOfKeyCode(KeyCode keyCode) noexcept
{
    return detail::findKeyRow(
        [=](const KeyCodeRow& row) { return row.form != KeyForm::mediaKey && row.code == keyCode; });
}

/// The media key to post for an NX key type.
[[nodiscard]] constexpr const KeyCodeRow* keyRowOfSystemKeyType(std::uint16_t keyType) noexcept
{
    return detail::findKeyRow(
        [=](const KeyCodeRow& row) { return row.form == KeyForm::mediaKey && row.code == keyType; });
}

} // namespace tarvin
