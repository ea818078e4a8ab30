#include "platform/keycodes/KeyCodeTable.h"
#include "model/FKey.h"

#include "model/FKey.h"

#include <gtest/gtest.h>

#include <linux/input-event-codes.h>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tarvin {

namespace {

const KeyCodeRow& row(std::string_view name)
{
    const auto* const found = std::ranges::find(keyCodeTable, name, &KeyCodeRow::name);
    if (found == keyCodeTable.end())
        throw std::out_of_range(std::string(name));
    return *found;
}

/// The kernel's own numbers under the table's names.
const std::map<std::string_view, int>& kernelCodes()
{
    static const std::map<std::string_view, int> codes{{"a", KEY_A}, {"b", KEY_B}, {"c", KEY_C}, {"d", KEY_D},
        {"e", KEY_E}, {"f", KEY_F}, {"g", KEY_G}, {"h", KEY_H}, {"i", KEY_I}, {"j", KEY_J}, {"k", KEY_K}, {"l", KEY_L},
        {"m", KEY_M}, {"n", KEY_N}, {"o", KEY_O}, {"p", KEY_P}, {"q", KEY_Q}, {"r", KEY_R}, {"s", KEY_S}, {"t", KEY_T},
        {"u", KEY_U}, {"v", KEY_V}, {"w", KEY_W}, {"x", KEY_X}, {"y", KEY_Y}, {"z", KEY_Z}, {"1", KEY_1}, {"2", KEY_2},
        {"3", KEY_3}, {"4", KEY_4}, {"5", KEY_5}, {"6", KEY_6}, {"7", KEY_7}, {"8", KEY_8}, {"9", KEY_9}, {"0", KEY_0},
        {"return", KEY_ENTER}, {"escape", KEY_ESC}, {"backspace", KEY_BACKSPACE}, {"tab", KEY_TAB},
        {"space", KEY_SPACE}, {"minus", KEY_MINUS}, {"equal", KEY_EQUAL}, {"leftBracket", KEY_LEFTBRACE},
        {"rightBracket", KEY_RIGHTBRACE}, {"backslash", KEY_BACKSLASH}, {"semicolon", KEY_SEMICOLON},
        {"quote", KEY_APOSTROPHE}, {"grave", KEY_GRAVE}, {"comma", KEY_COMMA}, {"period", KEY_DOT},
        {"slash", KEY_SLASH}, {"section", KEY_102ND}, {"f1", KEY_F1}, {"f2", KEY_F2}, {"f3", KEY_F3}, {"f4", KEY_F4},
        {"f5", KEY_F5}, {"f6", KEY_F6}, {"f7", KEY_F7}, {"f8", KEY_F8}, {"f9", KEY_F9}, {"f10", KEY_F10},
        {"f11", KEY_F11}, {"f12", KEY_F12}, {"f13", KEY_F13}, {"f14", KEY_F14}, {"f15", KEY_F15}, {"f16", KEY_F16},
        {"f17", KEY_F17}, {"f18", KEY_F18}, {"f19", KEY_F19}, {"f20", KEY_F20}, {"insert", KEY_INSERT},
        {"home", KEY_HOME}, {"pageUp", KEY_PAGEUP}, {"forwardDelete", KEY_DELETE}, {"end", KEY_END},
        {"pageDown", KEY_PAGEDOWN}, {"right", KEY_RIGHT}, {"left", KEY_LEFT}, {"down", KEY_DOWN}, {"up", KEY_UP},
        {"contextMenu", KEY_COMPOSE}, {"keypadClear", KEY_NUMLOCK}, {"keypadDivide", KEY_KPSLASH},
        {"keypadMultiply", KEY_KPASTERISK}, {"keypadMinus", KEY_KPMINUS}, {"keypadPlus", KEY_KPPLUS},
        {"keypadEnter", KEY_KPENTER}, {"keypad1", KEY_KP1}, {"keypad2", KEY_KP2}, {"keypad3", KEY_KP3},
        {"keypad4", KEY_KP4}, {"keypad5", KEY_KP5}, {"keypad6", KEY_KP6}, {"keypad7", KEY_KP7}, {"keypad8", KEY_KP8},
        {"keypad9", KEY_KP9}, {"keypad0", KEY_KP0}, {"keypadDecimal", KEY_KPDOT}, {"keypadEqual", KEY_KPEQUAL},
        {"keypadComma", KEY_KPCOMMA}, {"underscore", KEY_RO}, {"yen", KEY_YEN}, {"kana", KEY_HANGEUL},
        {"eisu", KEY_HANJA}, {"leftControl", KEY_LEFTCTRL}, {"leftShift", KEY_LEFTSHIFT}, {"leftOption", KEY_LEFTALT},
        {"leftCommand", KEY_LEFTMETA}, {"rightControl", KEY_RIGHTCTRL}, {"rightShift", KEY_RIGHTSHIFT},
        {"rightOption", KEY_RIGHTALT}, {"rightCommand", KEY_RIGHTMETA}, {"capsLock", KEY_CAPSLOCK},
        {"function", KEY_FN}, {"globe", KEY_KBD_LAYOUT_NEXT}, {"missionControl", KEY_SCALE},
        {"launchpad", KEY_DASHBOARD}, {"search", KEY_SEARCH}, {"dictation", KEY_DICTATE}, {"volumeUp", KEY_VOLUMEUP},
        {"volumeDown", KEY_VOLUMEDOWN}, {"brightnessUp", KEY_BRIGHTNESSUP}, {"brightnessDown", KEY_BRIGHTNESSDOWN},
        {"mute", KEY_MUTE}, {"playPause", KEY_PLAYPAUSE}, {"play", KEY_PLAY}, {"discPlay", KEY_PLAYCD},
        {"discPause", KEY_PAUSECD}, {"nextTrack", KEY_NEXTSONG}, {"previousTrack", KEY_PREVIOUSSONG},
        {"illuminationUp", KEY_KBDILLUMUP}, {"illuminationDown", KEY_KBDILLUMDOWN}};
    return codes;
}

TEST(KeyCodeTable, theEvdevColumnIsTheKernels)
{
    EXPECT_EQ(kernelCodes().size(), keyCodeTable.size());
    for (const auto& [name, code] : kernelCodes())
        EXPECT_EQ(row(name).evdevCode, code) << name;
}

TEST(KeyCodeTable, theXColumnIsTheEvdevColumnPlusEightWhereTheProtocolHasRoom)
{
    EXPECT_EQ(xKeycodeOf(row("escape")), 9);
    EXPECT_EQ(xKeycodeOf(row("f5")), 71);
    EXPECT_EQ(xKeycodeOf(row("rightOption")), 108);
    EXPECT_EQ(xKeycodeOf(row("illuminationUp")), 238);
    for (const std::string_view unseen : {"function", "globe", "dictation"})
        EXPECT_FALSE(xKeycodeOf(row(unseen)).has_value()) << unseen;
}

TEST(KeyCodeTable, everyXKeycodeLeadsToItsRow)
{
    for (int keycode = 0; keycode < 256; ++keycode) {
        const KeyCodeRow* const found = keyRowOfXKeycode(static_cast<std::uint8_t>(keycode));
        const auto* const expected =
            std::ranges::find(keyCodeTable, keycode - 8, [](const KeyCodeRow& each) { return int{each.evdevCode}; });
        EXPECT_EQ(found, expected == keyCodeTable.end() ? nullptr : expected) << keycode;
    }
}

// The usage tables number the keys of a row one after the other, which the kernel's numbers do not.
TEST(KeyCodeTable, theKeyboardPageRunsOnWithinEachBlock)
{
    const auto expectRun = [](const std::vector<std::string>& names, int first) {
        for (const std::string& name : names) {
            EXPECT_EQ(row(name).hidPage, 0x07) << name;
            EXPECT_EQ(row(name).hidUsage, first++) << name;
        }
    };
    std::vector<std::string> letters;
    for (char letter = 'a'; letter <= 'z'; ++letter)
        letters.emplace_back(1, letter);
    expectRun(letters, 0x04);
    expectRun({"1", "2", "3", "4", "5", "6", "7", "8", "9", "0", "return", "escape", "backspace", "tab", "space",
                  "minus", "equal", "leftBracket", "rightBracket", "backslash"},
        0x1E);
    expectRun({"semicolon", "quote", "grave", "comma", "period", "slash", "capsLock", "f1", "f2", "f3", "f4", "f5",
                  "f6", "f7", "f8", "f9", "f10", "f11", "f12"},
        0x33);
    expectRun({"insert", "home", "pageUp", "forwardDelete", "end", "pageDown", "right", "left", "down", "up",
                  "keypadClear", "keypadDivide", "keypadMultiply", "keypadMinus", "keypadPlus", "keypadEnter",
                  "keypad1", "keypad2", "keypad3", "keypad4", "keypad5", "keypad6", "keypad7", "keypad8", "keypad9",
                  "keypad0", "keypadDecimal", "section", "contextMenu"},
        0x49);
    expectRun({"keypadEqual", "f13", "f14", "f15", "f16", "f17", "f18", "f19", "f20"}, 0x67);
    expectRun({"leftControl", "leftShift", "leftOption", "leftCommand", "rightControl", "rightShift", "rightOption",
                  "rightCommand"},
        0xE0);
}

// The identifiers of the drawn keyboard are worded after the virtual key codes, quite apart from this table.
TEST(KeyCodeTable, theVirtualKeyCodesAreThoseOfTheDrawnKeyboard)
{
    constexpr std::string_view firstRows = "asdfhgzxcv bqweryt123465 97 80 ou ip lj k    nm";
    for (KeyCode code = 0; code < firstRows.size(); ++code) {
        if (firstRows[code] == ' ')
            continue;
        ASSERT_NE(keyRowOfKeyCode(code), nullptr) << code;
        EXPECT_EQ(keyRowOfKeyCode(code)->name, firstRows.substr(code, 1)) << code;
    }
    const std::map<KeyCode, std::string_view> others{{36, "return"}, {48, "tab"}, {49, "space"}, {51, "backspace"},
        {53, "escape"}, {55, "leftCommand"}, {56, "leftShift"}, {58, "leftOption"}, {59, "leftControl"},
        {60, "rightShift"}, {62, "rightControl"}, {117, "forwardDelete"}, {33, "leftBracket"}, {123, "left"},
        {124, "right"}, {125, "down"}, {126, "up"}};
    for (const auto& [code, name] : others)
        EXPECT_EQ(keyRowOfKeyCode(code)->name, name);
}

TEST(KeyCodeTable, everyCustomisableKeyIsInTheTableUnderItsPrimaryCode)
{
    for (const FKey key : allFKeys) {
        const KeyCodeRow* const found = keyRowOfKeyCode(virtualKeyCode(key));
        ASSERT_NE(found, nullptr) << orderOf(key);
        EXPECT_EQ(fKeyOf(*found), key);
    }
}

TEST(KeyCodeTable, aKeyAndItsPrintedFunctionMeanTheSameCustomisableKey)
{
    const std::map<FKey, std::vector<std::string_view>> names{{FKey::f1, {"f1", "brightnessDown"}},
        {FKey::f2, {"f2", "brightnessUp"}}, {FKey::f3, {"f3", "missionControl"}},
        {FKey::f4, {"f4", "launchpad", "search"}}, {FKey::f5, {"f5", "dictation", "illuminationDown"}},
        {FKey::f6, {"f6", "illuminationUp"}}, {FKey::f7, {"f7", "previousTrack"}},
        {FKey::f8, {"f8", "playPause", "play", "discPlay", "discPause"}}, {FKey::f9, {"f9", "nextTrack"}},
        {FKey::f10, {"f10", "mute"}}, {FKey::f11, {"f11", "volumeDown"}}, {FKey::f12, {"f12", "volumeUp"}},
        {FKey::capsLock, {"capsLock"}}, {FKey::rightOption, {"rightOption"}}, {FKey::rightCommand, {"rightCommand"}},
        {FKey::fnGlobe, {"function", "globe"}}, {FKey::section, {"section"}}, {FKey::f13, {"f13"}},
        {FKey::f14, {"f14"}}, {FKey::f15, {"f15"}}, {FKey::f16, {"f16"}}, {FKey::f17, {"f17"}}, {FKey::f18, {"f18"}},
        {FKey::f19, {"f19"}}};
    std::map<FKey, std::vector<std::string_view>> found;
    for (const KeyCodeRow& each : keyCodeTable) {
        if (const auto key = fKeyOf(each))
            found[*key].push_back(each.name);
    }
    EXPECT_EQ(found, names);
}

TEST(KeyCodeTable, everyMediaKeyTypeThatMeansAKeyCanBePosted)
{
    for (std::uint16_t type = 0; type <= 22; ++type) {
        const KeyCodeRow* const found = keyRowOfSystemKeyType(type);
        EXPECT_EQ(found != nullptr, fromSystemKeyType(type).has_value()) << type;
    }
    EXPECT_EQ(keyRowOfSystemKeyType(16)->name, "playPause");
}

TEST(KeyCodeTable, onlyTheBrightnessUsagesDifferFromTheUsbTables)
{
    // Display Brightness Increment is 0x6F, Decrement 0x70.
    EXPECT_EQ(row("brightnessDown").hidUsage, 0x6F);
    EXPECT_EQ(row("brightnessUp").hidUsage, 0x70);
    EXPECT_EQ(fromPageUsage(0x0C, row("brightnessDown").hidUsage), FKey::f1);
    EXPECT_EQ(row("volumeUp").hidUsage, 0xE9);
    EXPECT_EQ(row("nextTrack").hidUsage, 0xB5);
}

TEST(KeyCodeTable, aCodeThatNobodyHasLeadsNowhere)
{
    EXPECT_EQ(keyRowOfKeyCode(0xFFFF), nullptr);
    EXPECT_EQ(keyRowOfEvdevCode(KEY_RESERVED), nullptr);
    EXPECT_EQ(keyRowOfEvdevCode(KEY_SYSRQ), nullptr);
    EXPECT_EQ(keyRowOfXKeycode(0), nullptr);
    EXPECT_EQ(keyRowOfSystemKeyType(4), nullptr);
    EXPECT_EQ(keyRowOfEvdevCode(KEY_F5)->name, "f5");
}

} // namespace

} // namespace tarvin
