#include "studio/picker/PickerDesktop.h"

#include "support/SignalCount.h"

namespace tarvin {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::SizeIs;

class ActionPicker : public PickerDesktop
{ };

PickerRow rowOf(KeyAction action)
{
    return rowFor(action);
}

TEST_F(ActionPicker, anAllBlankQueryIsNoSearch)
{
    picker().setSearchText(u" \t\n "_qs);
    EXPECT_FALSE(picker().isSearching());
    EXPECT_TRUE(picker().searchResults().isEmpty());
    picker().setSearchText(u" m "_qs);
    EXPECT_TRUE(picker().isSearching());
}

TEST_F(ActionPicker, aTitleTypedInFullComesFirst)
{
    EXPECT_EQ(find(u"Paste"_qs).first(), KeyAction::paste);
    EXPECT_EQ(find(u"NOTES"_qs).first(), KeyAction::notes);
}

TEST_F(ActionPicker, micFindsTheMicrophone)
{
    EXPECT_EQ(find(u"mic"_qs).first(), KeyAction::dictation);
    EXPECT_TRUE(find(u"mic"_qs).contains(KeyAction::toggleMicMute));
}

TEST_F(ActionPicker, equalScoresStandInTheOrderOfTheirTitles)
{
    // Each has the word "left" or "right" in its title and nothing else to tell them apart.
    EXPECT_THAT(find(u"snap"_qs).first(3),
        ElementsAre(KeyAction::snapWindowMaximize, KeyAction::snapWindowLeft, KeyAction::snapWindowRight));
}

TEST_F(ActionPicker, fourWordsOfWhichOneIsForeignFindNothing)
{
    EXPECT_TRUE(find(u"snap window left xyzzy"_qs).isEmpty());
    EXPECT_FALSE(find(u"snap window xyzzy"_qs).isEmpty());
}

TEST_F(ActionPicker, aSearchBeginsAtTheTopOfTheList)
{
    const test::SignalCount jumps(picker(), &ActionPickerModel::scrolledToTop);
    picker().setSearchText(u"m"_qs);
    picker().setSearchText(u"mu"_qs);
    picker().setSearchText(u"mu"_qs);
    EXPECT_EQ(jumps.count(), 2);
}

TEST_F(ActionPicker, resultsAreCountedInWords)
{
    EXPECT_EQ(resultCountText(0), u"0 found");
    EXPECT_EQ(resultCountText(picker().searchResults().size() + 7), u"7 found");
    EXPECT_EQ(noResultsLine(u" Xyz%1 "_qs), u"No results match \" Xyz%1 \".");
    EXPECT_EQ(noResultsExamples, u"Try \"mute\", \"screen\", \"window\", or \"volume\".");
}

TEST_F(ActionPicker, aChoiceIsStoredAtOnce)
{
    picker().choose(rowOf(KeyAction::mute));
    EXPECT_EQ(profile().actionConfig(FKey::f5).action, KeyAction::mute);
    quit();
    EXPECT_EQ(profile().actionConfig(FKey::f5).action, KeyAction::mute);
}

TEST_F(ActionPicker, choosingAgainChangesNothing)
{
    picker().choose(rowOf(KeyAction::mute));
    const ConfiguredAction before = profile().actionConfig(FKey::f5);
    picker().choose(rowOf(KeyAction::mute));
    EXPECT_EQ(profile().actionConfig(FKey::f5), before);
    EXPECT_TRUE(picker().isSelected(rowOf(KeyAction::mute)));
}

TEST_F(ActionPicker, aChangeOfActionKeepsTheParameters)
{
    profile().setConfig(typing(u"a word"_qs), FKey::f5);
    picker().choose(rowOf(KeyAction::mute));
    picker().choose(rowOf(KeyAction::screenCapture));
    picker().choose(rowOf(KeyAction::textSnippet));
    EXPECT_EQ(profile().actionConfig(FKey::f5), typing(u"a word"_qs));
}

TEST_F(ActionPicker, theFactoryActionOfAnUncustomisedKeyIsSelected)
{
    EXPECT_TRUE(picker(FKey::f10).isSelected(rowOf(KeyAction::mute)));
    EXPECT_EQ(picker().banner().title, u"Customizable Key (Default Apple Behavior)");
}

TEST_F(ActionPicker, theBannerSaysWhatTheKeyDoes)
{
    EXPECT_EQ(picker().banner(),
        (StatusBanner{StatusBanner::Tone::factory, u"Customizable Key (Default Apple Behavior)"_qs,
            u"Choose any action below to customize (turns key Mint Teal)"_qs}));
    picker().choose(rowOf(KeyAction::clipboardHistory));
    EXPECT_EQ(picker().banner(),
        (StatusBanner{StatusBanner::Tone::customized, u"Customized • Clipboard History"_qs,
            u"Keycap turns Mint Teal on keyboard studio"_qs}));
    profile().setFunctionKeysEnabled(false);
    EXPECT_EQ(picker().banner(),
        (StatusBanner{StatusBanner::Tone::paused, u"Customized • Clipboard History"_qs,
            u"Portion paused in settings • Saved configuration preserved"_qs}));
    picker().reset();
    EXPECT_EQ(picker().banner().tone, StatusBanner::Tone::factory);
}

TEST_F(ActionPicker, theChipNamesThePausedPortion)
{
    EXPECT_EQ(picker().pausedChip(), std::nullopt);
    profile().setFunctionKeysEnabled(false);
    EXPECT_EQ(picker().pausedChip(), u"F1–F12 Off");
    closePicker();
    EXPECT_EQ(picker(FKey::f13).pausedChip(), std::nullopt);
    profile().setInterceptionEnabled(false);
    EXPECT_EQ(picker().pausedChip(), u"Other Off");
}

TEST_F(ActionPicker, theFirstSectionHoldsTheFiveMostUsed)
{
    EXPECT_THAT(picker().rows(PickerSection::frequentlyUsed), SizeIs(5));
    for (int use = 0; use < 1000; ++use)
        usage.recordUsage(KeyAction::terminal);
    EXPECT_EQ(picker().rows(PickerSection::frequentlyUsed).first(), rowOf(KeyAction::terminal));
}

TEST_F(ActionPicker, theSwitchOfTheFirstSectionChangesTheTrackersFilter)
{
    const test::SignalCount changes(picker(), &ActionPickerModel::changed);
    picker().setUsageFilter(ActionUsageFilter::recentlyUsed);
    EXPECT_EQ(usage.currentFilter(), ActionUsageFilter::recentlyUsed);
    EXPECT_EQ(picker().sectionHeading(PickerSection::frequentlyUsed), u"RECENTLY USED");
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(ActionPicker, sectionsFoldOneByOneAndAreOpenInANewPicker)
{
    picker().toggle(PickerSection::otherActions);
    EXPECT_FALSE(picker().isExpanded(PickerSection::otherActions));
    EXPECT_TRUE(picker().isExpanded(PickerSection::recommended));
    picker().setSearchText(u"mute"_qs);
    closePicker();
    EXPECT_TRUE(picker().isExpanded(PickerSection::otherActions));
    EXPECT_EQ(picker().searchText(), QString());
}

TEST_F(ActionPicker, aTestPerformsTheRecordAsItStands)
{
    profile().setConfig(typing(u"a word"_qs), FKey::f5);
    picker().test();
    EXPECT_THAT(executor.performed, ElementsAre(typing(u"a word"_qs)));
}

TEST_F(ActionPicker, aTestIsConfirmedForTwoSeconds)
{
    EXPECT_EQ(picker().testButtonText(), u"Test Action Now");
    picker().test();
    EXPECT_EQ(picker().testButtonText(), u"✓ Triggered!");
    desktop.scheduler().advance(1999ms);
    EXPECT_TRUE(picker().hasTestMessage());
    desktop.scheduler().advance(1ms);
    EXPECT_EQ(picker().testButtonText(), u"Test Action Now");
}

TEST_F(ActionPicker, theFirstOfTwoTestsTakesTheConfirmationAway)
{
    picker().test();
    desktop.scheduler().advance(1500ms);
    picker().test();
    desktop.scheduler().advance(500ms);
    EXPECT_FALSE(picker().hasTestMessage());
}

TEST_F(ActionPicker, theConfirmationMayOutliveThePicker)
{
    picker().test();
    closePicker();
    desktop.scheduler().advance(3s);
    EXPECT_EQ(desktop.scheduler().nextDueOnce(), std::nullopt);
}

TEST_F(ActionPicker, aResetRemovesTheCustomisation)
{
    picker().choose(rowOf(KeyAction::terminal));
    EXPECT_TRUE(picker().canReset());
    picker().reset();
    EXPECT_FALSE(profile().isCustomized(FKey::f5));
    EXPECT_FALSE(picker().canReset());
}

TEST_F(ActionPicker, aResetOfAKeyThatIsNotCustomisedDoesNothing)
{
    const std::size_t before = desktop.effects().count<simulated::FileChanged>();
    EXPECT_FALSE(picker().canReset());
    picker().reset();
    EXPECT_EQ(desktop.effects().count<simulated::FileChanged>(), before);
}

TEST_F(ActionPicker, thePickerFollowsWhatOthersChange)
{
    const test::SignalCount changes(picker(), &ActionPickerModel::changed);
    profile().setAction(KeyAction::terminal, FKey::f5);
    EXPECT_EQ(changes.count(), 1);
    profile().setCurrentProfile(AppProfile::safari());
    profile().setOtherKeysEnabled(false);
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(ActionPicker, theRecordShownIsThatOfTheProfileUnderEdit)
{
    picker().choose(rowOf(KeyAction::terminal));
    profile().setCurrentProfile(AppProfile::safari());
    EXPECT_FALSE(picker().isSelected(rowOf(KeyAction::terminal)));
    picker().choose(rowOf(KeyAction::mute));
    profile().setCurrentProfile(AppProfile::global());
    EXPECT_TRUE(picker().isSelected(rowOf(KeyAction::terminal)));
}

} // namespace

} // namespace tarvin
