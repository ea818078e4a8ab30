#include "model/CustomShortcut.h"

#include "model/ModelPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

TEST(CustomShortcut, theModifiersStandInTheirOwnOrderAndTheKeyInUpperCase)
{
    EXPECT_EQ((CustomShortcut{.command = true, .shift = true, .keyDisplay = u"a"_qs}).displayString(), u"⇧ ⌘ A");
    EXPECT_EQ((CustomShortcut{.command = true, .option = true, .control = true, .shift = true, .keyDisplay = u"F5"_qs})
                  .displayString(),
        u"⌃ ⌥ ⇧ ⌘ F5");
    EXPECT_EQ((CustomShortcut{.option = true, .control = true, .keyDisplay = u"é"_qs}).displayString(), u"⌃ ⌥ É");
}

TEST(CustomShortcut, aKeyAloneStandsAlone)
{
    EXPECT_EQ((CustomShortcut{.keyCode = 49, .keyDisplay = u"Space"_qs}).displayString(), u"SPACE");
}

TEST(CustomShortcut, modifiersAloneHaveNoTrailingBlank)
{
    EXPECT_EQ((CustomShortcut{.command = true, .control = true, .keyCode = 8}).displayString(), u"⌃ ⌘");
}

TEST(CustomShortcut, nothingToShowIsAnEmptyText)
{
    EXPECT_EQ(CustomShortcut().displayString(), u"");
    EXPECT_EQ((CustomShortcut{.keyCode = 8}).displayString(), u"");
}

TEST(CustomShortcut, keyCodeZeroIsAKeyOnlyUnderAName)
{
    EXPECT_FALSE(CustomShortcut().namesKey());
    EXPECT_FALSE((CustomShortcut{.command = true}).namesKey());
    EXPECT_TRUE((CustomShortcut{.keyCode = 0, .keyDisplay = u"A"_qs}).namesKey());
    EXPECT_TRUE((CustomShortcut{.keyCode = 8}).namesKey());
}

TEST(CustomShortcut, equalityComparesEveryField)
{
    const CustomShortcut shortcut{.id = QUuid::createUuid(), .command = true, .keyCode = 8, .keyDisplay = u"C"_qs};
    CustomShortcut other = shortcut;
    EXPECT_EQ(other, shortcut);

    other = shortcut;
    other.id = QUuid::createUuid();
    EXPECT_NE(other, shortcut);
    for (bool CustomShortcut::*modifier :
        {&CustomShortcut::command, &CustomShortcut::option, &CustomShortcut::control, &CustomShortcut::shift}) {
        other = shortcut;
        other.*modifier = !(other.*modifier);
        EXPECT_NE(other, shortcut);
    }
    other = shortcut;
    other.keyCode = 9;
    EXPECT_NE(other, shortcut);
    other = shortcut;
    other.keyDisplay = u"c"_qs;
    EXPECT_NE(other, shortcut);
}

} // namespace

} // namespace tarvin
