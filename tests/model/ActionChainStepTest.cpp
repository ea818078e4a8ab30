#include "model/ActionChainStep.h"

#include "model/ModelPrinters.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarvin {

namespace {

using Type = ActionChainStepType;

QString labelOfText(const QString& text)
{
    return ActionChainStep{.type = Type::textSnippet, .textSnippet = text}.displayLabel();
}

TEST(ActionChainStep, aShortcutIsNamedByItsKeys)
{
    const CustomShortcut shortcut{.command = true, .keyDisplay = u"c"_qs};
    EXPECT_EQ((ActionChainStep{.type = Type::shortcut, .customShortcut = shortcut}).displayLabel(), u"Shortcut: ⌘ C");
}

TEST(ActionChainStep, aShortcutWithNothingToShowIsJustAShortcut)
{
    EXPECT_EQ((ActionChainStep{.type = Type::shortcut}).displayLabel(), u"Shortcut");
    EXPECT_EQ((ActionChainStep{.type = Type::shortcut, .customShortcut = CustomShortcut{.keyCode = 8}}).displayLabel(),
        u"Shortcut");
}

TEST(ActionChainStep, aDelayIsToldInMilliseconds)
{
    EXPECT_EQ((ActionChainStep{.type = Type::delay, .delayMs = 250}).displayLabel(), u"Wait 250ms");
    EXPECT_EQ((ActionChainStep{.type = Type::delay}).displayLabel(), u"Wait 0ms");
    EXPECT_EQ((ActionChainStep{.type = Type::delay, .delayMs = -5}).displayLabel(), u"Wait -5ms");
    EXPECT_EQ(
        (ActionChainStep{.type = Type::delay, .delayMs = std::numeric_limits<std::int64_t>::max()}).displayLabel(),
        u"Wait 9223372036854775807ms");
}

TEST(ActionChainStep, textIsQuotedUpTo16CharactersAndCutFrom17On)
{
    EXPECT_EQ((ActionChainStep{.type = Type::textSnippet}).displayLabel(), u"Insert Text");
    EXPECT_EQ(labelOfText(u""_qs), u"Insert Text");
    EXPECT_EQ(labelOfText(u"Hello"_qs), u"Text: \"Hello\"");
    EXPECT_EQ(labelOfText(u"1234567890123456"_qs), u"Text: \"1234567890123456\"");
    EXPECT_EQ(labelOfText(u"12345678901234567"_qs), u"Text: \"12345678901234...\"");
}

TEST(ActionChainStep, theLengthOfATextIsCountedInCharactersOfTheReader)
{
    EXPECT_EQ(labelOfText(u"👍🏽"_qs.repeated(16)), u"Text: \""_qs + u"👍🏽"_qs.repeated(16) + u'"');
    EXPECT_EQ(labelOfText(u"👍🏽"_qs.repeated(17)), u"Text: \""_qs + u"👍🏽"_qs.repeated(14) + u"...\""_qs);
}

TEST(ActionChainStep, anAddressIsShownWhole)
{
    EXPECT_EQ((ActionChainStep{.type = Type::openURL}).displayLabel(), u"Open URL");
    EXPECT_EQ((ActionChainStep{.type = Type::openURL, .customURL = u""_qs}).displayLabel(), u"Open URL");
    EXPECT_EQ(
        (ActionChainStep{.type = Type::openURL, .customURL = u"https://example.org/a/long/path"_qs}).displayLabel(),
        u"URL: https://example.org/a/long/path");
}

TEST(ActionChainStep, anActionIsNamedByItsTitle)
{
    EXPECT_EQ((ActionChainStep{.type = Type::keyAction}).displayLabel(), u"Action");
    EXPECT_EQ(
        (ActionChainStep{.type = Type::keyAction, .keyAction = KeyAction::mute}).displayLabel(), u"Action: Mute audio");
}

TEST(ActionChainStep, onlyTheFieldOfTheTypeIsShown)
{
    const ActionChainStep step{.type = Type::delay,
        .customShortcut = CustomShortcut{.keyDisplay = u"A"_qs},
        .textSnippet = u"text"_qs,
        .customURL = u"address"_qs,
        .delayMs = 10,
        .keyAction = KeyAction::mute};
    EXPECT_EQ(step.displayLabel(), u"Wait 10ms");
}

TEST(ActionChainStep, equalityComparesEveryFieldInDepth)
{
    const ActionChainStep step{.type = Type::shortcut, .customShortcut = CustomShortcut{.keyCode = 1}};
    const auto changed = [&step](auto change) {
        ActionChainStep other = step;
        change(other);
        return other;
    };
    EXPECT_EQ(changed([](ActionChainStep&) {}), step);
    EXPECT_NE(changed([](ActionChainStep& other) { other.id = QUuid::createUuid(); }), step);
    EXPECT_NE(changed([](ActionChainStep& other) { other.type = Type::delay; }), step);
    EXPECT_NE(changed([](ActionChainStep& other) { other.customShortcut->id = QUuid::createUuid(); }), step);
    EXPECT_NE(changed([](ActionChainStep& other) { other.textSnippet = u""_qs; }), step);
    EXPECT_NE(changed([](ActionChainStep& other) { other.customURL = u""_qs; }), step);
    EXPECT_NE(changed([](ActionChainStep& other) { other.delayMs = 1; }), step);
    EXPECT_NE(changed([](ActionChainStep& other) { other.keyAction = KeyAction::mute; }), step);
}

} // namespace

} // namespace tarvin
