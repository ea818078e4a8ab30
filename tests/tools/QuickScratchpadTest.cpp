#include "tools/scratchpad/QuickScratchpadManager.h"

#include "support/QtPrinters.h"
#include "tools/support/ToolsDesktop.h"

#include <gmock/gmock.h>

namespace tarvin {
namespace {

using namespace std::chrono_literals;
using simulated::PasteboardSet;
using simulated::SettingStored;
using testing::ElementsAre;

const QString noteKey = u"Tarvin_QuickScratchpadContent"_qs;

class QuickScratchpad : public testing::Test
{
protected:
    [[nodiscard]] QJsonValue stored() { return desktop.ports.preferences.value(noteKey); }

    test::ToolsDesktop desktop;
    QuickScratchpadManager scratchpad{desktop.panelCollaborators(QuickScratchpadManager::traits),
        desktop.platform.screens(), desktop.ports.preferences, desktop.platform.pasteboard()};
    ScratchpadNote& note = scratchpad.note();
};

TEST_F(QuickScratchpad, anEmptyNoteHasNoCharactersAndNoLines)
{
    EXPECT_EQ(noteCounters(u""), u"0 characters  •  0 lines"_qs);
}

TEST_F(QuickScratchpad, aNoteOfOneLineFeedHasOneCharacterAndTwoLines)
{
    EXPECT_EQ(noteCounters(u"\n"), u"1 characters  •  2 lines"_qs);
}

TEST_F(QuickScratchpad, aTrailingLineFeedCountsAsOneMoreLine)
{
    EXPECT_EQ(noteLineCount(u"a\nb"), 2);
    EXPECT_EQ(noteLineCount(u"a\nb\n"), 3);
    EXPECT_EQ(noteCounters(u"cafe\u0301 \U0001F44D\U0001F3FD"), u"6 characters  •  1 lines"_qs);
}

TEST_F(QuickScratchpad, everyChangeIsStoredAtOnce)
{
    note.setText(u"a"_qs);
    EXPECT_EQ(stored(), QJsonValue(u"a"_qs));
    note.setText(u"ab"_qs);
    EXPECT_EQ(stored(), QJsonValue(u"ab"_qs));
    EXPECT_EQ(desktop.effects().count<SettingStored>(), 2u);
}

TEST_F(QuickScratchpad, clearEmptiesTheNoteAndWhatIsStored)
{
    note.setText(u"a"_qs);
    note.clear();
    EXPECT_EQ(note.text(), QString());
    EXPECT_EQ(stored(), QJsonValue(QString()));
}

TEST_F(QuickScratchpad, theStoredNoteAppearsWithThePanel)
{
    desktop.platform.preferences().stage(noteKey, u"from the last run"_qs);
    EXPECT_EQ(note.text(), QString());
    scratchpad.show();
    EXPECT_EQ(note.text(), u"from the last run"_qs);
}

TEST_F(QuickScratchpad, withoutAStoredNoteTheTextStaysAsItIs)
{
    note.setText(u"a"_qs);
    desktop.platform.preferences().stage(noteKey, QJsonValue(QJsonValue::Undefined));
    scratchpad.show();
    EXPECT_EQ(note.text(), u"a"_qs);
}

TEST_F(QuickScratchpad, theStoredNoteCanBeReadAndWrittenPastThePanel)
{
    EXPECT_EQ(scratchpad.storedContent(), QString());
    scratchpad.setStoredContent(u"a"_qs);
    EXPECT_EQ(scratchpad.storedContent(), u"a"_qs);
    EXPECT_EQ(note.text(), QString());
    scratchpad.clear();
    EXPECT_EQ(stored(), QJsonValue(QString()));
}

TEST_F(QuickScratchpad, copyingConfirmsForAMoment)
{
    note.setText(u"a"_qs);
    note.copyAll();
    EXPECT_THAT(desktop.effects().all<PasteboardSet>(), ElementsAre(PasteboardSet{{.text = u"a"_qs}}));
    desktop.advance(1199ms);
    EXPECT_TRUE(note.copiedFeedback());
    desktop.advance(1ms);
    EXPECT_FALSE(note.copiedFeedback());
}

TEST_F(QuickScratchpad, copyingAnEmptyNoteEmptiesTheClipboardAndConfirms)
{
    desktop.platform.pasteboard().copy({.text = u"old"_qs});
    note.copyAll();
    EXPECT_EQ(desktop.platform.pasteboard().content(), (PasteboardText{.text = QString()}));
    EXPECT_TRUE(note.copiedFeedback());
}

TEST_F(QuickScratchpad, aSecondCopyingIsConfirmedOnlyUntilTheMomentOfTheFirst)
{
    note.copyAll();
    desktop.advance(1s);
    note.copyAll();
    desktop.advance(200ms);
    EXPECT_FALSE(note.copiedFeedback());
}

TEST_F(QuickScratchpad, itOpensCentredAndFiftyAboveTheMiddleOfTheMainScreen)
{
    scratchpad.show();
    // The visible part of the main screen is 1440 wide and 875 high from 25 down.
    EXPECT_EQ(desktop.panel->frame(), (Rect{{460, 222.5}, {520, 380}}));
}

TEST_F(QuickScratchpad, openedAgainItStandsAtItsPlace)
{
    scratchpad.toggle();
    const Rect place = desktop.panel->frame();
    desktop.panel->setFrame({{3, 4}, {100, 100}});
    scratchpad.toggle();
    desktop.advance(1s);
    scratchpad.toggle();
    EXPECT_EQ(desktop.panel->frame(), place);
}

TEST_F(QuickScratchpad, itHasTheSameSizeOnEveryScreen)
{
    desktop.platform.screens().setScreens({{.frame = {{0, 0}, {400, 300}}, .visibleFrame = {{0, 0}, {400, 300}}}});
    scratchpad.show();
    EXPECT_EQ(desktop.panel->frame(), (Rect{{-60, -90}, {520, 380}}));
}

TEST_F(QuickScratchpad, withoutAMainScreenItKeepsItsLastFrame)
{
    scratchpad.show();
    scratchpad.hide();
    desktop.advance(1s);
    const Rect place = desktop.panel->frame();
    desktop.platform.screens().setScreens({});
    scratchpad.show();
    EXPECT_EQ(desktop.panel->frame(), place);
    EXPECT_TRUE(scratchpad.isVisible());
}

TEST_F(QuickScratchpad, itFadesInAndOutAtItsOwnPace)
{
    scratchpad.show();
    scratchpad.hide();
    desktop.advance(1s);
    EXPECT_THAT(desktop.effects().all<simulated::PanelFaded>(),
        ElementsAre(simulated::PanelFaded{u"Panel"_qs, 1, 160ms}, simulated::PanelFaded{u"Panel"_qs, 0, 120ms}));
}

TEST_F(QuickScratchpad, itStandsOnAllDesktopsAndStaysWhenTheProgramIsLeft)
{
    EXPECT_EQ(QuickScratchpadManager::traits.spaces, PanelSpaces::all);
    scratchpad.show();
    desktop.advance(1s);
    desktop.bringToFront(test::ToolsDesktop::safariProcess);
    EXPECT_TRUE(desktop.panel->isOnScreen());
}

} // namespace
} // namespace tarvin
