#include "studio/picker/view/PickerHeader.h"
#include "studio/picker/view/PickerScene.h"
#include "ui/OutlinedButton.h"

#include <algorithm>
#include <vector>

namespace tarvin {

namespace {

class PickerKeyboard : public PickerScene
{
protected:
    /// The window is active, as far as this platform goes.
    ActionPickerView& activeView(FKey key = FKey::f5)
    {
        view(key).activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(&view()));
        return view();
    }
    [[nodiscard]] QWidget* focused() { return view().focusWidget(); }
    void type(Qt::Key key) { QTest::keyClick(focused(), key); }
    /// What Tab leads to, from the close button on.
    std::vector<QWidget*> tabStops()
    {
        std::vector<QWidget*> stops;
        QWidget* const first = &view().header().closeButton();
        QWidget* widget = first;
        do {
            if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && widget->isEnabled())
                stops.push_back(widget);
            widget = widget->nextInFocusChain();
        } while (widget != first);
        return stops;
    }
};

TEST_F(PickerKeyboard, tabGoesFromTopToBottomAndToOneRowOfEachSection)
{
    profile().setAction(KeyAction::snapWindowRight, FKey::f5);
    activeView();
    QTest::qWait(0);
    std::vector<QWidget*> expected{&view().header().closeButton(), &view().searchField()};
    for (const PickerSection each : allPickerSections) {
        expected.push_back(&section(each).header());
        if (each == PickerSection::frequentlyUsed) {
            expected.push_back(button(u"Frequent"_qs));
            expected.push_back(button(u"Recent"_qs));
        }
        if (each == PickerSection::windowManagement) {
            PickerEntry& selected = entry(each, KeyAction::snapWindowRight);
            expected.push_back(&selected.row());
            expected.push_back(selected.testButton());
        } else {
            expected.push_back(&section(each).stack().entries().front()->row());
        }
    }
    expected.push_back(&view().resetButton());
    EXPECT_EQ(tabStops(), expected);
}

TEST_F(PickerKeyboard, tabGoesFromACardIntoItsBodyAndToTheTestButton)
{
    activeView();
    PickerEntry& card = entry(PickerSection::recommended, KeyAction::openWebURL);
    card.row().setFocus();
    type(Qt::Key_Space);
    EXPECT_EQ(profile().actionConfig(FKey::f5).action, KeyAction::openWebURL);
    EXPECT_TRUE(comesToRest(card));
    QTest::qWait(0);
    const std::vector<QWidget*> stops = tabStops();
    const auto place = std::ranges::find(stops, &card.row());
    ASSERT_GT(stops.end() - place, 2);
    EXPECT_EQ(*(place + 1), card.body());
    EXPECT_EQ(*(place + 2), card.testButton());
}

TEST_F(PickerKeyboard, theArrowsLeadThroughRowsAndHeadings)
{
    activeView();
    const auto& rows = section(PickerSection::recommended).stack().entries();
    rows.front()->row().setFocus();
    type(Qt::Key_Down);
    EXPECT_EQ(focused(), &rows[1]->row());
    EXPECT_TRUE(rows[1]->row().focusPolicy() & Qt::TabFocus) << "Tab comes back to it";
    EXPECT_FALSE(rows[0]->row().focusPolicy() & Qt::TabFocus);
    type(Qt::Key_Up);
    type(Qt::Key_Up);
    EXPECT_EQ(focused(), &section(PickerSection::recommended).header());
    type(Qt::Key_Up);
    EXPECT_EQ(focused(), &section(PickerSection::frequentlyUsed).stack().entries().back()->row());
    type(Qt::Key_End);
    EXPECT_EQ(focused(), &section(PickerSection::otherActions).stack().entries().back()->row());
    EXPECT_TRUE(view().list().viewport()->rect().contains(
        focused()->mapTo(view().list().viewport(), focused()->rect().center())))
        << "it is scrolled into sight";
    type(Qt::Key_Down);
    EXPECT_EQ(focused(), &section(PickerSection::otherActions).stack().entries().back()->row());
    type(Qt::Key_Home);
    EXPECT_EQ(focused(), &section(PickerSection::frequentlyUsed).header());
    type(Qt::Key_Up);
    EXPECT_EQ(focused(), &view().searchField());
}

TEST_F(PickerKeyboard, rightAndLeftUnfoldAndFold)
{
    activeView();
    section(PickerSection::recommended).header().setFocus();
    type(Qt::Key_Right);
    EXPECT_TRUE(picker().isExpanded(PickerSection::recommended));
    type(Qt::Key_Left);
    EXPECT_FALSE(picker().isExpanded(PickerSection::recommended));
    type(Qt::Key_Left);
    EXPECT_FALSE(picker().isExpanded(PickerSection::recommended));
    type(Qt::Key_Down);
    EXPECT_EQ(focused(), &section(PickerSection::smartActions).header()) << "folded rows are passed over";
    type(Qt::Key_Up);
    type(Qt::Key_Return);
    EXPECT_TRUE(picker().isExpanded(PickerSection::recommended));
}

TEST_F(PickerKeyboard, spaceAndReturnChoose)
{
    activeView();
    entry(PickerSection::windowManagement, KeyAction::snapWindowLeft).row().setFocus();
    type(Qt::Key_Space);
    EXPECT_EQ(profile().actionConfig(FKey::f5).action, KeyAction::snapWindowLeft);
    type(Qt::Key_Down);
    EXPECT_EQ(profile().actionConfig(FKey::f5).action, KeyAction::snapWindowLeft) << "moving chooses nothing";
    type(Qt::Key_Return);
    EXPECT_EQ(profile().actionConfig(FKey::f5).action, KeyAction::snapWindowRight);
}

TEST_F(PickerKeyboard, escapeClearsTheSearchAndThenClosesThePane)
{
    activeView();
    view().searchField().setFocus();
    QTest::keyClicks(&view().searchField(), u"mute"_qs);
    EXPECT_EQ(picker().searchText(), u"mute");
    type(Qt::Key_Escape);
    EXPECT_EQ(picker().searchText(), QString());
    EXPECT_EQ(closings, 0);
    type(Qt::Key_Escape);
    EXPECT_EQ(closings, 1);
}

TEST_F(PickerKeyboard, escapeInAResultGoesBackToTheSearch)
{
    activeView();
    search(u"mute"_qs);
    view().searchField().setFocus();
    type(Qt::Key_Down);
    EXPECT_EQ(focused(), &results().entries().front()->row());
    type(Qt::Key_Escape);
    EXPECT_EQ(picker().searchText(), QString());
    EXPECT_EQ(focused(), &view().searchField());
    EXPECT_EQ(closings, 0);
}

TEST_F(PickerKeyboard, theSearchAndItsResultsAreOneForTheArrows)
{
    activeView();
    search(u"snap"_qs);
    view().searchField().setFocus();
    type(Qt::Key_Down);
    type(Qt::Key_Down);
    type(Qt::Key_Return);
    EXPECT_EQ(profile().actionConfig(FKey::f5).action, results().entries()[1]->row().action());
    type(Qt::Key_Up);
    type(Qt::Key_Up);
    EXPECT_EQ(focused(), &view().searchField());
}

TEST_F(PickerKeyboard, whatHasTheKeyboardIsMarked)
{
    activeView();
    ActionRow& row = entry(PickerSection::recommended, KeyAction::toggleMicMute).row();
    const auto edge = [&] { return row.grab().toImage().pixelColor(row.width() / 2, 0).value(); };
    const int plain = edge();
    row.setFocus();
    EXPECT_GT(edge(), plain + 80);
}

} // namespace

} // namespace tarvin
