#include "studio/picker/view/RowBadges.h"

#include "model/ConfiguredAction.h"
#include "ui/Palette.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

QString badgeText(KeyAction action, const ConfiguredAction& config = ConfiguredAction{KeyAction::mute})
{
    const auto pill = badgeOf(rowFor(action), config);
    return pill ? pill->text : QString();
}

TEST(RowBadges, twoPlainRowsHaveOne)
{
    const auto ring = badgeOf(rowFor(KeyAction::showActionsRing), ConfiguredAction{KeyAction::mute});
    ASSERT_TRUE(ring.has_value());
    EXPECT_EQ(ring->text, u"NEW");
    EXPECT_EQ(ring->fill, palette::green);
    EXPECT_EQ(ring->textColour, palette::black);
    const auto assistant = badgeOf(rowFor(KeyAction::aiAssistant), ConfiguredAction{KeyAction::mute});
    ASSERT_TRUE(assistant.has_value());
    EXPECT_EQ(assistant->text, u"AI");
    EXPECT_EQ(assistant->fill, palette::mintTeal);
    EXPECT_EQ(badgeText(KeyAction::mute), QString());
}

TEST(RowBadges, cardsCountWhatTheyHold)
{
    ConfiguredAction config{KeyAction::mute};
    EXPECT_EQ(badgeText(KeyAction::keyboardShortcut, config), QString());
    config.customShortcuts = QList<CustomShortcut>(3);
    EXPECT_EQ(badgeText(KeyAction::keyboardShortcut, config), u"3 KEYS");
    config.chainSteps = QList<ActionChainStep>(2);
    EXPECT_EQ(badgeText(KeyAction::actionChain, config), u"2 STEPS");
    EXPECT_EQ(badgeText(KeyAction::quickAppFlip, config), u"INSTANT");
    EXPECT_EQ(badgeText(KeyAction::openWebURL, config), QString());
}

TEST(RowBadges, thoseOfCardsAreQuieter)
{
    const auto pill = badgeOf(rowFor(KeyAction::quickAppFlip), ConfiguredAction{KeyAction::mute});
    ASSERT_TRUE(pill.has_value());
    EXPECT_EQ(pill->fill, palette::mintTeal.at(0.15));
    EXPECT_EQ(pill->textColour, palette::mintTeal);
    EXPECT_EQ(pill->style.size, 8.5);
}

} // namespace

} // namespace tarvin
