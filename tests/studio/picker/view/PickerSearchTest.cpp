#include "studio/picker/view/NoResultsView.h"
#include "studio/picker/view/PickerScene.h"
#include "ui/OutlinedButton.h"

#include <QScrollBar>

namespace tarvin {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::SizeIs;

class PickerSearch : public PickerScene
{
protected:
    [[nodiscard]] bool isMintStroke()
    {
        const QRect field = view().searchField().geometry();
        const QColor edge = colourAt(field.center().x(), field.top());
        return edge.green() > edge.red() + 20;
    }
};

TEST_F(PickerSearch, aSearchTakesThePlaceOfTheSections)
{
    view();
    EXPECT_TRUE(section(PickerSection::recommended).isVisible());
    EXPECT_FALSE(view().list().results().isVisible());
    search(u"mute"_qs);
    EXPECT_FALSE(section(PickerSection::recommended).isVisible());
    EXPECT_TRUE(view().list().results().isVisible());
    EXPECT_EQ(shown(results()), actionsOf(picker().searchResults()));
    EXPECT_EQ(shown(results()).first(), KeyAction::mute);
    EXPECT_THAT(texts(), Contains(u"SEARCH RESULTS"_qs));
    EXPECT_THAT(texts(), Not(Contains(u"No actions found"_qs)));
    EXPECT_THAT(texts(), Contains(u"%1 found"_qs.arg(picker().searchResults().size())));
    search({});
    EXPECT_TRUE(section(PickerSection::recommended).isVisible());
    EXPECT_FALSE(view().list().results().isVisible());
}

TEST_F(PickerSearch, anAllBlankTextIsNoSearch)
{
    view();
    search(u"  \t "_qs);
    EXPECT_TRUE(section(PickerSection::recommended).isVisible());
    EXPECT_FALSE(view().list().results().isVisible());
    EXPECT_FALSE(isMintStroke());
}

TEST_F(PickerSearch, theFieldIsMintWhileItSearches)
{
    EXPECT_EQ(view().searchField().placeholderText(), u"Search actions...");
    EXPECT_FALSE(isMintStroke());
    search(u"mute"_qs);
    EXPECT_TRUE(isMintStroke());
    search({});
    EXPECT_FALSE(isMintStroke());
}

TEST_F(PickerSearch, theButtonInTheFieldClearsIt)
{
    view();
    EXPECT_THROW(static_cast<void>(button(u"Clear"_qs)), std::invalid_argument);
    search(u" "_qs);
    button(u"Clear"_qs)->click();
    EXPECT_EQ(picker().searchText(), QString());
    EXPECT_EQ(view().searchField().text(), QString());
}

TEST_F(PickerSearch, rowsSayWhatTheyDoWhileSearchingOnly)
{
    view();
    EXPECT_EQ(entry(PickerSection::recommended, KeyAction::toggleMicMute).row().detail(), RowDetail::titleOnly);
    EXPECT_EQ(entry(PickerSection::recommended, KeyAction::toggleMicMute).row().height(), 28);
    search(u"mute"_qs);
    EXPECT_EQ(entryIn(results(), KeyAction::toggleMicMute).row().detail(), RowDetail::withSubtitle);
    EXPECT_EQ(entryIn(results(), KeyAction::toggleMicMute).row().height(), 41);
}

TEST_F(PickerSearch, eachChangeJumpsToTheTop)
{
    view();
    view().list().verticalScrollBar()->setValue(300);
    search(u"m"_qs);
    EXPECT_EQ(view().list().verticalScrollBar()->value(), 0);
    view().list().verticalScrollBar()->setValue(60);
    search({});
    EXPECT_EQ(view().list().verticalScrollBar()->value(), 0);
}

TEST_F(PickerSearch, aSearchThatFindsNothingSaysSo)
{
    view();
    search(u" Xyzzy plugh "_qs);
    EXPECT_THAT(texts(), Not(Contains(u"SEARCH RESULTS"_qs)));
    EXPECT_THAT(texts(), Not(Contains(u"0 found"_qs)));
    EXPECT_THAT(texts(), Contains(u"No actions found"_qs));
    EXPECT_THAT(texts(), Contains(u"No results match \" Xyzzy plugh \"."_qs));
    EXPECT_THAT(texts(), Contains(u"Try \"mute\", \"screen\", \"window\", or \"volume\"."_qs));
    button(u"Clear Search"_qs)->click();
    EXPECT_EQ(view().searchField().text(), QString());
    EXPECT_TRUE(section(PickerSection::recommended).isVisible());
}

TEST_F(PickerSearch, aLongSearchThatFindsNothingTakesMoreLines)
{
    view();
    search(u"xyzzy"_qs);
    const int height = view().list().results().height();
    search(QString(30, u'x') + u' ' + QString(30, u'y') + u' ' + QString(30, u'z'));
    EXPECT_GT(view().list().results().height(), height + 10);
}

TEST_F(PickerSearch, choosingAResultStoresItAndOpensIt)
{
    view();
    search(u"clip"_qs);
    PickerEntry& found = entryIn(results(), KeyAction::clipboardHistory);
    found.row().click();
    EXPECT_EQ(profile().actionConfig(FKey::f5).action, KeyAction::clipboardHistory);
    EXPECT_TRUE(comesToRest(found));
    EXPECT_NE(found.body(), nullptr);
    EXPECT_EQ(found.height(), 41 + 40 + 6 + 24 + 8);
    EXPECT_EQ(view().searchField().text(), u"clip") << "the search stays";
}

TEST_F(PickerSearch, aCardThatIsFoundAgainKeepsItsBody)
{
    profile().setAction(KeyAction::textSnippet, FKey::f5);
    view();
    search(u"t"_qs);
    const QWidget* const body = entryIn(results(), KeyAction::textSnippet).body();
    ASSERT_NE(body, nullptr);
    search(u"te"_qs);
    search(u"tex"_qs);
    EXPECT_EQ(entryIn(results(), KeyAction::textSnippet).body(), body);
}

TEST_F(PickerSearch, resultsThatGoLeaveNoRoom)
{
    view();
    search(u"m"_qs);
    const int many = view().list().widget()->height();
    search(u"mute"_qs);
    EXPECT_LT(view().list().widget()->height(), many);
    EXPECT_EQ(shown(results()), actionsOf(picker().searchResults()));
}

TEST_F(PickerSearch, badgesStandInTheResultsToo)
{
    view();
    search(u"AI Assistant"_qs);
    const ActionRow& row = entryIn(results(), KeyAction::aiAssistant).row();
    ASSERT_TRUE(row.badge().has_value());
    EXPECT_EQ(row.badge()->text, u"AI");
}

} // namespace

} // namespace tarvin
