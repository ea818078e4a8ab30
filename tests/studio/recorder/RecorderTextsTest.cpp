#include "studio/recorder/RecorderTexts.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::recorder_texts {

namespace {

TEST(RecorderTexts, countTheKeysOfTheList)
{
    EXPECT_EQ(addKey(0), u"Click to record shortcut");
    EXPECT_EQ(addKey(1), u"+ Add another key");
    EXPECT_EQ(playbackHeading(3), u"TRIGGER BEHAVIOR (3 KEYS)");
    EXPECT_EQ(
        playbackExplanation(MultiKeyPlaybackMode::simultaneous, 3), u"Presses and holds all 3 keys together at once.");
    EXPECT_EQ(playbackExplanation(MultiKeyPlaybackMode::sequential, 3),
        u"Plays each of the 3 keys one after another in order.");
    EXPECT_EQ(test(MultiKeyPlaybackMode::simultaneous, 3), u"Test 3 Keys (Simultaneous)");
    EXPECT_EQ(keyTag(0), u"Key 1");
}

TEST(RecorderTexts, theChipsOfARowStandInTheirOwnOrder)
{
    const CustomShortcut all{
        .command = true, .option = true, .control = true, .shift = true, .keyCode = 49, .keyDisplay = u"Space"_qs};
    EXPECT_EQ(modifierChips(all), (QStringList{u"⌃"_qs, u"⌥"_qs, u"⇧"_qs, u"⌘"_qs}));
    EXPECT_EQ(keyChip(all), u"SPACE");
    EXPECT_EQ(modifierChips(CustomShortcut{}), QStringList());
    EXPECT_EQ(keyChip(CustomShortcut{}), u"?");
}

TEST(RecorderTexts, aRowIsReadOutWithItsModifiersAndItsKey)
{
    EXPECT_EQ(recorder_texts::rowName(1, {.command = true, .control = true, .keyDisplay = u"Page Up"_qs}),
        u"Key 2: ⌃ ⌘ PAGE UP");
    EXPECT_EQ(recorder_texts::rowName(0, {}), u"Key 1: ?");
}

} // namespace

} // namespace tarvin::recorder_texts
