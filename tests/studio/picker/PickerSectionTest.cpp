#include "studio/picker/PickerSection.h"

#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tarvin {

namespace {

QStringList titlesOf(PickerSection section)
{
    QStringList titles;
    for (const PickerRow& row : fixedRows(section))
        titles += title(row.action).toString() + (row.card ? u"*"_qs : QString()) + text(row.badge).toString();
    return titles;
}

TEST(PickerSections, theRecommendedOnesBeginWithTheScreenCaptureCard)
{
    EXPECT_EQ(titlesOf(PickerSection::recommended),
        (QStringList{u"Screen capture*"_qs, u"Open application*"_qs, u"Mute microphone"_qs, u"Show Actions RingNEW"_qs,
            u"Keyboard shortcut*"_qs, u"Open website URL*"_qs, u"AI Assistant / PromptAI"_qs}));
}

TEST(PickerSections, theSmartOnesBeginWithTheClipboardAndEndWithTheSnippet)
{
    EXPECT_EQ(titlesOf(PickerSection::smartActions),
        (QStringList{u"Clipboard History*"_qs, u"Quick-Flip Apps*"_qs, u"Action Chain (Macro)*"_qs,
            u"Quick Scratchpad*"_qs, u"Smart: Work Focus"_qs, u"Smart: Quick Mute & Clean"_qs,
            u"Smart: Tidy Desktop"_qs, u"Insert Text Snippet*"_qs}));
}

TEST(PickerSections, fullScreenStandsWithTheWindows)
{
    EXPECT_EQ(titlesOf(PickerSection::windowManagement),
        (QStringList{u"Snap window left"_qs, u"Snap window right"_qs, u"Maximize window (not full screen)"_qs,
            u"Full-screen mode"_qs}));
}

TEST(PickerSections, theOthersAreWhatIsLeftInCatalogueOrder)
{
    const QList<KeyAction> others = otherActionsList();
    EXPECT_EQ(others.size(), 43);
    EXPECT_EQ(others.first(), KeyAction::advancedClick);
    EXPECT_EQ(others.last(), KeyAction::volumeUp);
    EXPECT_FALSE(others.contains(KeyAction::toggleFullscreen));
    EXPECT_TRUE(std::ranges::is_sorted(others));
    EXPECT_EQ(rowFor(KeyAction::forceQuit).card, ParameterCard::forceQuit);
}

TEST(PickerSections, everyOfferedActionStandsInExactlyOneOfThem)
{
    QList<KeyAction> all;
    for (const PickerSection section : allPickerSections) {
        for (const PickerRow& row : fixedRows(section))
            all.append(row.action);
    }
    std::ranges::sort(all);
    EXPECT_TRUE(std::ranges::equal(all, allConfigurableKeyActions));
}

TEST(PickerSections, theFirstIsThereWithItsHeaderAlsoWithoutRows)
{
    EXPECT_EQ(allPickerSections.front(), PickerSection::frequentlyUsed);
    EXPECT_TRUE(fixedRows(PickerSection::frequentlyUsed).isEmpty());
    EXPECT_FALSE(heading(PickerSection::frequentlyUsed, ActionUsageFilter::frequentlyUsed).isEmpty());
}

TEST(PickerSections, theFirstIsNamedAfterItsFilter)
{
    EXPECT_EQ(heading(PickerSection::frequentlyUsed, ActionUsageFilter::frequentlyUsed), u"FREQUENTLY USED");
    EXPECT_EQ(heading(PickerSection::frequentlyUsed, ActionUsageFilter::recentlyUsed), u"RECENTLY USED");
    EXPECT_EQ(heading(PickerSection::smartActions, ActionUsageFilter::recentlyUsed), u"SMART ACTIONS & TEXT");
    EXPECT_EQ(heading(PickerSection::otherActions, ActionUsageFilter::recentlyUsed), u"OTHER ACTIONS");
}

TEST(PickerRows, theRetiredScreenshotsAreShownAsTheScreenCaptureCard)
{
    const PickerRow capture{.action = KeyAction::screenCapture, .card = ParameterCard::screenCapture};
    EXPECT_EQ(rowFor(KeyAction::screenshotArea), capture);
    EXPECT_EQ(rowFor(KeyAction::screenshotFull), capture);
}

} // namespace

} // namespace tarvin
