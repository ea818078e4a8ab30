#include "platform/linux/x11/KeyboardMap.h"

#include "platform/linux/x11/EffectText.h"
#include "platform/linux/x11/XkbHandles.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvin::x11 {

namespace {

constexpr ModifierMask mod1 = 0x08;
constexpr ModifierMask mod4 = 0x40;
constexpr ModifierMask mod5 = 0x80;

XkbKeymap keymapOf(const char* layout, const char* option = "", const char* rules = "evdev")
{
    const XkbContext context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    const xkb_rule_names names{rules, "pc105", layout, "", option};
    return XkbKeymap(xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
}

class Keymaps : public ::testing::Test
{
protected:
    [[nodiscard]] static KeyboardMap mapOf(const char* layout, const char* option = "")
    {
        const XkbKeymap keymap = keymapOf(layout, option);
        EXPECT_TRUE(keymap);
        return {*keymap, *keymap};
    }
};

TEST_F(Keymaps, theModifiersOfTheAmericanLayout)
{
    const KeyboardMap map = mapOf("us");
    EXPECT_EQ(map.masks(), (ModifierMasks{.levelThree = mod5}));
    EXPECT_EQ(map.modifierKeys().shift, keycodeNamed("leftShift"));
    EXPECT_EQ(map.modifierKeys().control, keycodeNamed("leftControl"));
    EXPECT_EQ(map.modifierKeys().option, keycodeNamed("leftOption"));
    EXPECT_EQ(map.modifierKeys().command, keycodeNamed("leftCommand"));
    EXPECT_EQ(map.modifierKeys().maskOf[keycodeNamed("rightOption")], mod1);
    EXPECT_EQ(map.modifierKeys().maskOf[keycodeNamed("rightCommand")], mod4);
    EXPECT_EQ(map.modifierKeys().maskOf[keycodeNamed("a")], 0);
}

TEST_F(Keymaps, withoutAKeymapTheModifiersAreThoseOfTheAmericanLayout)
{
    const KeyboardMap none;
    const KeyboardMap map = mapOf("us");
    EXPECT_EQ(none.modifierKeys().shift, map.modifierKeys().shift);
    EXPECT_EQ(none.modifierKeys().command, map.modifierKeys().command);
    for (const char* name : {"leftShift", "rightShift", "leftControl", "rightControl", "leftOption", "rightOption",
             "leftCommand", "rightCommand", "a", "f5"})
        EXPECT_EQ(none.modifierKeys().maskOf[keycodeNamed(name)], map.modifierKeys().maskOf[keycodeNamed(name)])
            << name;
    EXPECT_EQ(none.keycodeTyping('a', 0), std::nullopt);
    EXPECT_EQ(none.fakingKeycode(113), 113);
}

TEST_F(Keymaps, aRightAltKeyThatSelectsAThirdLevelIsOptionAllTheSame)
{
    const KeyboardMap map = mapOf("de");
    EXPECT_EQ(map.modifierKeys().maskOf[keycodeNamed("rightOption")], mod5);
    EXPECT_EQ(map.masks().flagsOf(mod5), EventFlags::option);
    EXPECT_EQ(map.masks().maskFor(EventFlags::option), mod1);
}

TEST_F(Keymaps, aModifierCountsByWhatItSays)
{
    const KeyboardMap swapped = mapOf("us", "ctrl:swapcaps");
    EXPECT_EQ(swapped.modifierKeys().control, keycodeNamed("capsLock"));
    EXPECT_EQ(swapped.modifierKeys().maskOf[keycodeNamed("capsLock")], 0x04);
    EXPECT_EQ(mapOf("us", "altwin:swap_alt_win").modifierKeys().option, keycodeNamed("leftCommand"));
}

TEST_F(Keymaps, lettersAreWhereTheLayoutHasThem)
{
    EXPECT_EQ(mapOf("us").keycodeTyping('a', 0), keycodeNamed("a"));
    EXPECT_EQ(mapOf("fr").keycodeTyping('a', 0), keycodeNamed("q"));
    EXPECT_EQ(mapOf("de").keycodeTyping('z', 0), keycodeNamed("y"));
    const KeyboardMap two = mapOf("us,ru");
    EXPECT_EQ(two.keycodeTyping('c', 0), keycodeNamed("c"));
    EXPECT_EQ(two.keycodeTyping('c', 1), std::nullopt);
    EXPECT_EQ(two.keycodeTyping('c', 2), std::nullopt);
    EXPECT_EQ(two.keycodeTyping('\0', 0), std::nullopt);
}

TEST_F(Keymaps, thereIsAKeyThatMeansNothing)
{
    const XkbKeymap keymap = keymapOf("us");
    const Keycode blank = KeyboardMap(*keymap, *keymap).modifierKeys().blank;
    ASSERT_NE(blank, 0);
    EXPECT_EQ(keyRowOfXKeycode(blank), nullptr);
    EXPECT_EQ(xkb_keymap_num_layouts_for_key(keymap.get(), blank), 0U);
}

// Until a session has set a keymap, the faking device of some servers counts its keys as old drivers did.
TEST_F(Keymaps, aKeyIsTheSameKeyOnADeviceThatCountsInAnotherWay)
{
    const XkbKeymap keyboard = keymapOf("us");
    const XkbKeymap faking = keymapOf("us", "", "base");
    ASSERT_TRUE(keyboard && faking);
    const KeyboardMap map(*keyboard, *faking);
    EXPECT_EQ(map.fakingKeycode(keycodeNamed("a")), keycodeNamed("a"));
    EXPECT_NE(map.fakingKeycode(keycodeNamed("left")), keycodeNamed("left"));
    EXPECT_STREQ(xkb_keymap_key_get_name(faking.get(), map.fakingKeycode(keycodeNamed("left"))), "LEFT");
    EXPECT_EQ(map.modifierKeys().command, keycodeNamed("leftCommand"));
    EXPECT_STREQ(xkb_keymap_key_get_name(faking.get(), map.fakingKeycode(map.modifierKeys().command)), "LWIN");
    EXPECT_EQ(map.masks().command, mod4);
}

} // namespace

} // namespace tarvin::x11
