#include "tools/clipboard/ClipboardHistoryManager.h"

#include "support/QtPrinters.h"
#include "tools/support/ClipboardDesktop.h"

#include <gmock/gmock.h>

namespace tarvin {
namespace {

using namespace std::chrono_literals;
using simulated::ApplicationActivated;
using simulated::KeyPosted;
using testing::ElementsAre;

class ClipboardPaste : public testing::Test
{
protected:
    ClipboardPaste()
    {
        (void)desktop.history();
        for (const QString& text : {u"oldest"_qs, u"middle"_qs, u"newest"_qs})
            desktop.copy(text);
        desktop.effects().clear();
    }

    [[nodiscard]] ClipboardHistoryManager& history() { return desktop.history(); }
    [[nodiscard]] QStringList pasted()
    {
        QStringList texts;
        for (const simulated::PasteboardSet& set : desktop.effects().all<simulated::PasteboardSet>())
            texts << set.content.text;
        return texts;
    }
    static KeyPosted keyOfV(KeyState state)
    {
        return {.keyCode = 9,
            .state = state,
            .flags = EventFlags::command,
            .userData = selfPostedMarker,
            .location = TapLocation::hid,
            .origin = KeystrokeOrigin::builtIn};
    }

    test::ClipboardDesktop desktop;
};

TEST_F(ClipboardPaste, theTextGoesToTheClipboardAndTheKeystrokeFollowsTheActivation)
{
    history().pasteItem(history().items()[1], test::ToolsDesktop::safariProcess);
    EXPECT_EQ(pasted(), (QStringList{u"middle"_qs}));
    EXPECT_THAT(desktop.effects().all<ApplicationActivated>(),
        ElementsAre(ApplicationActivated{test::ToolsDesktop::safariProcess, u"Safari"_qs}));
    desktop.advance(119ms);
    EXPECT_EQ(desktop.effects().count<KeyPosted>(), 0u);
    desktop.advance(1ms);
    EXPECT_THAT(desktop.effects().all<KeyPosted>(), ElementsAre(keyOfV(KeyState::down), keyOfV(KeyState::up)));
}

TEST_F(ClipboardPaste, whatWasPastedIsNotCapturedAndKeepsItsPlace)
{
    const QList<ClipboardItem> before = history().items();
    history().pasteItem(before[2], std::nullopt);
    EXPECT_EQ(history().lastChangeCount(), desktop.pasteboard().changeCount());
    desktop.advance(5s);
    EXPECT_EQ(history().items(), before);
}

TEST_F(ClipboardPaste, withoutATargetTheKeystrokeGoesToWhateverIsInFront)
{
    history().pasteItem(history().items()[0], std::nullopt);
    desktop.advance(120ms);
    EXPECT_EQ(desktop.effects().count<ApplicationActivated>(), 0u);
    EXPECT_EQ(desktop.effects().count<KeyPosted>(), 2u);
}

TEST_F(ClipboardPaste, inTestSafeModeOnlyTheClipboardChanges)
{
    desktop.runInTestSafeMode();
    history().pasteItem(history().items()[1], test::ToolsDesktop::safariProcess);
    EXPECT_EQ(pasted(), (QStringList{u"middle"_qs}));
    EXPECT_EQ(history().lastChangeCount(), desktop.pasteboard().changeCount());
    desktop.advance(5s);
    EXPECT_EQ(desktop.effects().count<ApplicationActivated>(), 0u);
    EXPECT_EQ(desktop.effects().count<KeyPosted>(), 0u);
}

TEST_F(ClipboardPaste, testSafeModeThatBeginsMeanwhileHoldsTheKeystrokeBack)
{
    history().pasteItem(history().items()[1], std::nullopt);
    desktop.runInTestSafeMode();
    desktop.advance(1s);
    EXPECT_EQ(desktop.effects().count<KeyPosted>(), 0u);
}

TEST_F(ClipboardPaste, aKeyThatCannotBeMadeIsNotPosted)
{
    desktop.platform.poster().setCanMakeKey(9, false);
    history().pasteItem(history().items()[1], std::nullopt);
    desktop.advance(1s);
    EXPECT_EQ(desktop.effects().count<KeyPosted>(), 0u);
    EXPECT_EQ(desktop.effects().count<simulated::PortMisused>(), 0u);
}

TEST_F(ClipboardPaste, theQueueGoesRoundFromTheNewestToTheOldest)
{
    for (int i = 0; i < 4; ++i)
        history().pasteNextInQueue(std::nullopt);
    EXPECT_EQ(pasted(), (QStringList{u"newest"_qs, u"middle"_qs, u"oldest"_qs, u"newest"_qs}));
    EXPECT_EQ(history().queueIndex(), 4);
}

TEST_F(ClipboardPaste, nothingResetsTheQueue)
{
    history().pasteNextInQueue(std::nullopt);
    desktop.copy(u"brand new"_qs);
    EXPECT_EQ(history().queueIndex(), 1);
    history().pasteNextInQueue(std::nullopt);
    EXPECT_EQ(pasted().last(), u"newest"_qs);
    history().clearAllClips();
    EXPECT_EQ(history().queueIndex(), 2);
}

TEST_F(ClipboardPaste, anEmptyQueueStandsStill)
{
    history().clearAllClips();
    desktop.effects().clear();
    history().pasteNextInQueue(test::ToolsDesktop::safariProcess);
    desktop.advance(1s);
    EXPECT_EQ(history().queueIndex(), 0);
    EXPECT_TRUE(pasted().isEmpty());
    EXPECT_EQ(desktop.effects().count<KeyPosted>(), 0u);
}

} // namespace
} // namespace tarvin
