#include "platform/linux/x11/RecordedKeyName.h"

#include "platform/linux/x11/XkbHandles.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <linux/input-event-codes.h>

namespace tarvin::x11 {

namespace {

constexpr Keycode offset = 8;

/// The name of a key on a keyboard with the given layout.
QString nameOn(const char* layout, std::uint16_t key, EventFlags modifiers = EventFlags::none, const char* variant = "",
    std::uint32_t group = 0)
{
    const XkbContext context(xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES));
    const xkb_rule_names names{.rules = "evdev", .model = "pc105", .layout = layout, .variant = variant, .options = ""};
    const XkbKeymap keymap(xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
    return keymap ? recordedKeyName(*keymap, static_cast<Keycode>(key + offset), group, modifiers) : u"no keymap"_qs;
}

TEST(RecordedKeyNames, aKeyIsCalledByWhatItTypes)
{
    EXPECT_EQ(nameOn("us", KEY_C), u"c");
    EXPECT_EQ(nameOn("fr", KEY_Q), u"a");
    EXPECT_EQ(nameOn("de", KEY_SEMICOLON), u"ö");
}

TEST(RecordedKeyNames, onlyShiftChangesIt)
{
    EXPECT_EQ(nameOn("us", KEY_4, EventFlags::shift), u"$");
    EXPECT_EQ(nameOn("us", KEY_4, EventFlags::control | EventFlags::command), u"4");
    EXPECT_EQ(nameOn("de", KEY_E, EventFlags::option), u"e");
}

TEST(RecordedKeyNames, aDeadKeyIsCalledByItsAccent)
{
    EXPECT_EQ(nameOn("de", KEY_EQUAL), u"´");
    EXPECT_EQ(nameOn("de", KEY_EQUAL, EventFlags::shift), u"`");
    EXPECT_EQ(nameOn("de", KEY_GRAVE), u"^");
    EXPECT_EQ(nameOn("cz", KEY_EQUAL), u"´");
    EXPECT_EQ(nameOn("us", KEY_APOSTROPHE, EventFlags::none, "intl"), u"´");
}

TEST(RecordedKeyNames, aNonLatinLayoutNamesItsOwnLetters)
{
    EXPECT_EQ(nameOn("ru", KEY_A), u"ф");
    EXPECT_EQ(nameOn("gr", KEY_A), u"α");
    EXPECT_EQ(nameOn("us,ru", KEY_A, EventFlags::none, ",", 1), u"ф");
    EXPECT_EQ(nameOn("us,ru", KEY_A, EventFlags::none, ",", 0), u"a");
}

TEST(RecordedKeyNames, theKeypadIsReadAsDigitsWhateverIsHeld)
{
    EXPECT_EQ(nameOn("us", KEY_KP7), u"7");
    EXPECT_EQ(nameOn("us", KEY_KP7, EventFlags::shift), u"7");
    EXPECT_EQ(nameOn("us", KEY_KPPLUS), u"+");
}

TEST(RecordedKeyNames, aKeyThatTypesNothingIsCalledByItsMeaning)
{
    EXPECT_EQ(nameOn("us", KEY_F13), u"Tools");
    EXPECT_EQ(nameOn("us", KEY_INSERT), u"Insert");
    EXPECT_EQ(nameOn("us", KEY_COMPOSE), u"Menu");
    EXPECT_EQ(nameOn("us", KEY_ENTER), u"Return");
}

} // namespace

} // namespace tarvin::x11
