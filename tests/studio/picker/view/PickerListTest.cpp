#include "studio/picker/view/PickerMetrics.h"
#include "studio/picker/view/PickerScene.h"

#include <QScrollBar>

#include <array>

namespace tarvin {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PickersList : public PickerScene
{
protected:
    /// Where it is on the screen, counted from the pane's top.
    int topOf(const QWidget& widget) { return widget.mapTo(&view(), QPoint()).y(); }
};

TEST_F(PickersList, fiveSectionsStandInTheirOrder)
{
    view();
    const std::array headings{u"FREQUENTLY USED"_qs, u"RECOMMENDED"_qs, u"SMART ACTIONS & TEXT"_qs,
        u"WINDOW MANAGEMENT"_qs, u"OTHER ACTIONS"_qs};
    int above = 0;
    for (const PickerSection each : allPickerSections) {
        EXPECT_EQ(section(each).header().text(), headings[static_cast<std::size_t>(each)]);
        EXPECT_EQ(shown(section(each).stack()), actionsOf(picker().rows(each)));
        EXPECT_GT(topOf(section(each)), above);
        above = topOf(section(each)) + section(each).height() - 2 * PickerSectionHeader::reach;
    }
}

TEST_F(PickersList, aSectionFoldsAndUnfoldsUnderItsHeading)
{
    view();
    PickerSectionView& smart = section(PickerSection::smartActions);
    const PickerSectionView& windows = section(PickerSection::windowManagement);
    const int open = smart.currentHeight();
    const int below = topOf(windows);
    smart.header().click();
    EXPECT_EQ(smart.currentHeight(), open) << "it starts where it was";
    EXPECT_FALSE(smart.header().isExpanded());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !smart.stack().isVisible(); }));
    EXPECT_EQ(smart.currentHeight(), PickerSectionHeader::lineHeight);
    EXPECT_EQ(topOf(windows), below - (open - PickerSectionHeader::lineHeight));
    EXPECT_EQ(section(PickerSection::recommended).header().isExpanded(), true);
    smart.header().click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return smart.currentHeight() == open; }));
    EXPECT_TRUE(smart.stack().isVisible());
    EXPECT_EQ(topOf(windows), below);
}

TEST_F(PickersList, theFirstSectionSwitchesBetweenFrequentAndRecent)
{
    usage.recordUsage(KeyAction::terminal);
    view();
    EXPECT_NE(shown(section(PickerSection::frequentlyUsed).stack()).first(), KeyAction::terminal);
    button(u"Recent"_qs)->click();
    EXPECT_EQ(usage.currentFilter(), ActionUsageFilter::recentlyUsed);
    EXPECT_EQ(section(PickerSection::frequentlyUsed).header().text(), u"RECENTLY USED");
    EXPECT_EQ(shown(section(PickerSection::frequentlyUsed).stack()).first(), KeyAction::terminal);
    EXPECT_TRUE(button(u"Recent"_qs)->isChecked());
    EXPECT_FALSE(button(u"Frequent"_qs)->isChecked());
    // The new rows fade in, and nothing is left of that afterwards.
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return section(PickerSection::frequentlyUsed).stack().graphicsEffect() == nullptr; }));
}

TEST_F(PickersList, theFirstSectionFollowsWhatIsUsed)
{
    view();
    for (int use = 0; use < 1000; ++use)
        usage.recordUsage(KeyAction::terminal);
    EXPECT_EQ(shown(section(PickerSection::frequentlyUsed).stack()).first(), KeyAction::terminal);
}

TEST_F(PickersList, aListWithoutRowsTakesNoRoom)
{
    const MakeCardBody none;
    EntryStack stack(picker(), none, nullptr);
    stack.showRows({}, RowDetail::titleOnly);
    EXPECT_EQ(stack.currentHeight(), 0);
    stack.showRows({rowFor(KeyAction::copy)}, RowDetail::titleOnly);
    EXPECT_EQ(stack.currentHeight(), 28);
    stack.showRows({}, RowDetail::titleOnly);
    EXPECT_EQ(stack.currentHeight(), 0);
}

TEST_F(PickersList, aClickChoosesAtOnceAndOpensTheRow)
{
    view();
    PickerEntry& left = entry(PickerSection::windowManagement, KeyAction::snapWindowLeft);
    EXPECT_EQ(left.testButton(), nullptr);
    left.row().click();
    EXPECT_EQ(profile().actionConfig(FKey::f5).action, KeyAction::snapWindowLeft);
    EXPECT_TRUE(left.row().isSelected());
    EXPECT_TRUE(comesToRest(left));
    ASSERT_NE(left.testButton(), nullptr);
    EXPECT_EQ(
        left.testButton()->geometry().translated(left.testButton()->parentWidget()->pos()), QRect(20, 28 + 6, 268, 24));
    EXPECT_EQ(left.height(), 28 + 6 + 24 + 8);
}

TEST_F(PickersList, choosingAnotherClosesTheFirst)
{
    view();
    PickerEntry& left = entry(PickerSection::windowManagement, KeyAction::snapWindowLeft);
    PickerEntry& right = entry(PickerSection::windowManagement, KeyAction::snapWindowRight);
    left.row().click();
    right.row().click();
    EXPECT_FALSE(left.row().isSelected());
    EXPECT_TRUE(comesToRest(left));
    EXPECT_TRUE(comesToRest(right));
    EXPECT_EQ(left.height(), 28);
    EXPECT_EQ(left.testButton(), nullptr);
    EXPECT_EQ(right.y(), left.geometry().bottom() + 2);
}

TEST_F(PickersList, choosingWhatIsChosenIsNoDeselection)
{
    view();
    PickerEntry& left = entry(PickerSection::windowManagement, KeyAction::snapWindowLeft);
    left.row().click();
    left.row().click();
    EXPECT_EQ(profile().actionConfig(FKey::f5).action, KeyAction::snapWindowLeft);
    EXPECT_TRUE(left.row().isSelected());
}

TEST_F(PickersList, anActionInTwoSectionsIsSelectedInBoth)
{
    for (int use = 0; use < 1000; ++use)
        usage.recordUsage(KeyAction::toggleMicMute);
    view();
    entry(PickerSection::recommended, KeyAction::toggleMicMute).row().click();
    EXPECT_TRUE(entry(PickerSection::frequentlyUsed, KeyAction::toggleMicMute).row().isSelected());
}

TEST_F(PickersList, theFactorysActionIsSelected)
{
    view(FKey::f10);
    EXPECT_TRUE(entry(PickerSection::otherActions, KeyAction::mute).row().isSelected());
}

TEST_F(PickersList, whatOthersChangeShows)
{
    view();
    PickerEntry& copy = entry(PickerSection::otherActions, KeyAction::copy);
    profile().setAction(KeyAction::copy, FKey::f5);
    EXPECT_TRUE(copy.row().isSelected());
    profile().setCurrentProfile(AppProfile::safari());
    EXPECT_FALSE(copy.row().isSelected());
}

TEST_F(PickersList, aCardsBodyIsMadeWhenTheCardIsChosenAndGoesWithTheChoice)
{
    view();
    EXPECT_THAT(cardsMade, IsEmpty());
    PickerEntry& card = entry(PickerSection::smartActions, KeyAction::clipboardHistory);
    card.row().click();
    EXPECT_THAT(cardsMade, ElementsAre(ParameterCard::clipboardHistory));
    EXPECT_TRUE(comesToRest(card));
    ASSERT_NE(card.body(), nullptr);
    EXPECT_EQ(card.body()->geometry(), QRect(20, 0, 268, 40));
    EXPECT_EQ(card.height(), 28 + 40 + 6 + 24 + 8);
    entry(PickerSection::windowManagement, KeyAction::snapWindowLeft).row().click();
    EXPECT_FALSE(card.body()->isEnabled()) << "what is on its way out takes no input";
    EXPECT_TRUE(comesToRest(card));
    EXPECT_EQ(card.body(), nullptr);
    EXPECT_EQ(card.height(), 28);
}

TEST_F(PickersList, aCardChosenAgainWhileItClosesKeepsItsBody)
{
    view();
    PickerEntry& card = entry(PickerSection::smartActions, KeyAction::clipboardHistory);
    card.row().click();
    EXPECT_TRUE(comesToRest(card));
    const QWidget* const body = card.body();
    entry(PickerSection::windowManagement, KeyAction::snapWindowLeft).row().click();
    card.row().click();
    EXPECT_TRUE(comesToRest(card));
    EXPECT_EQ(card.body(), body);
    EXPECT_TRUE(card.body()->isEnabled());
}

TEST_F(PickersList, aRowGrowsWithWhatItHolds)
{
    view();
    PickerEntry& card = entry(PickerSection::smartActions, KeyAction::clipboardHistory);
    card.row().click();
    EXPECT_TRUE(comesToRest(card));
    const int below = topOf(section(PickerSection::otherActions));
    dynamic_cast<CardBodyStandIn&>(*card.body()).setBodyHeight(90);
    EXPECT_TRUE(QTest::qWaitFor([&] { return card.height() == 28 + 90 + 6 + 24 + 8; }));
    EXPECT_EQ(topOf(section(PickerSection::otherActions)), below + 50);
}

TEST_F(PickersList, aCardsParametersComeBackWithIt)
{
    profile().setConfig(typing(u"a word"_qs), FKey::f5);
    view();
    entry(PickerSection::recommended, KeyAction::toggleMicMute).row().click();
    entry(PickerSection::smartActions, KeyAction::textSnippet).row().click();
    EXPECT_EQ(profile().actionConfig(FKey::f5), typing(u"a word"_qs));
}

TEST_F(PickersList, aRowThatIsChosenStaysUnderThePointerWhileOthersClose)
{
    view();
    entry(PickerSection::recommended, KeyAction::keyboardShortcut).row().click();
    EXPECT_TRUE(comesToRest(entry(PickerSection::recommended, KeyAction::keyboardShortcut)));
    view().list().verticalScrollBar()->setValue(600);
    PickerEntry& copy = entry(PickerSection::otherActions, KeyAction::copy);
    const int before = topOf(copy.row());
    copy.row().click();
    EXPECT_TRUE(comesToRest(copy));
    EXPECT_TRUE(comesToRest(entry(PickerSection::recommended, KeyAction::keyboardShortcut)));
    EXPECT_EQ(topOf(copy.row()), before);
}

TEST_F(PickersList, rowsTellAssistiveTechnologyWhatTheyAre)
{
    view();
    PickerEntry& ring = entry(PickerSection::recommended, KeyAction::showActionsRing);
    QAccessibleInterface* const row = QAccessible::queryAccessibleInterface(&ring.row());
    EXPECT_EQ(row->role(), QAccessible::RadioButton);
    EXPECT_EQ(row->text(QAccessible::Name), u"Show Actions Ring");
    EXPECT_TRUE(row->text(QAccessible::Description).startsWith(u"NEW, "));
    EXPECT_TRUE(row->state().checkable);
    EXPECT_TRUE(row->state().focusable);
    EXPECT_FALSE(row->state().checked);
    row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(profile().actionConfig(FKey::f5).action, KeyAction::showActionsRing);
    EXPECT_TRUE(row->state().checked);
    EXPECT_EQ(row->parent()->role(), QAccessible::ListItem);
    EXPECT_EQ(row->parent()->parent()->role(), QAccessible::List);
    EXPECT_EQ(row->parent()->parent()->text(QAccessible::Name), u"RECOMMENDED");
}

TEST_F(PickersList, headingsTellAssistiveTechnologyThatTheyFold)
{
    view();
    QAccessibleInterface* const header =
        QAccessible::queryAccessibleInterface(&section(PickerSection::smartActions).header());
    EXPECT_EQ(header->text(QAccessible::Name), u"SMART ACTIONS & TEXT");
    EXPECT_TRUE(header->state().expandable);
    EXPECT_TRUE(header->state().expanded);
    header->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(header->state().collapsed);
    EXPECT_FALSE(header->state().expanded);
    QAccessibleInterface* const frequent = QAccessible::queryAccessibleInterface(button(u"Frequent"_qs));
    EXPECT_EQ(frequent->role(), QAccessible::RadioButton);
    EXPECT_TRUE(frequent->state().checked);
}

} // namespace

} // namespace tarvin
