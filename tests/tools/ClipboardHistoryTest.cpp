#include "tools/clipboard/ClipboardHistoryManager.h"

#include "support/QtPrinters.h"
#include "support/SignalCount.h"
#include "tools/clipboard/ClipboardItemJson.h"
#include "tools/support/ClipboardDesktop.h"

#include <QJsonArray>

#include <gmock/gmock.h>

namespace tarvin {
namespace {

using namespace std::chrono_literals;
using simulated::SettingStored;

const QString itemsKey = u"Tarvin_ClipboardHistory_Items"_qs;

class ClipboardHistory : public testing::Test
{
protected:
    [[nodiscard]] ClipboardHistoryManager& history() { return desktop.history(); }
    [[nodiscard]] ClipboardItem head() { return history().items().first(); }
    /// As many captures as told, the oldest first; the texts are numbers from 1 on.
    void fill(int count)
    {
        for (int number = 1; number <= count; ++number)
            desktop.copy(QString::number(number));
    }
    [[nodiscard]] std::size_t savings() { return desktop.effects().count<SettingStored>(); }

    test::ClipboardDesktop desktop;
};

TEST_F(ClipboardHistory, copyingTheNewestTextAgainLeavesItAsItIs)
{
    (void)history();
    desktop.copy(u"a"_qs);
    const ClipboardItem before = head();
    const std::size_t savingsBefore = savings();
    desktop.copy(u"a"_qs);
    EXPECT_EQ(history().items(), QList{before});
    EXPECT_EQ(savings(), savingsBefore);
}

TEST_F(ClipboardHistory, theNewestTextWrittenInAnotherWayIsTheSame)
{
    (void)history();
    desktop.copy(u"caf\u00e9"_qs);
    desktop.copy(u"cafe\u0301"_qs);
    EXPECT_EQ(desktop.texts(), (QStringList{u"caf\u00e9"_qs}));
    desktop.copy(u"CAF\u00c9"_qs);
    EXPECT_EQ(history().items().size(), 2);
}

TEST_F(ClipboardHistory, copyingAnOlderTextBringsItToTheHeadAsANewItem)
{
    (void)history();
    fill(3);
    const ClipboardItem before = history().items().last();
    desktop.copy(u"1"_qs);
    EXPECT_EQ(desktop.texts(), (QStringList{u"1"_qs, u"3"_qs, u"2"_qs}));
    EXPECT_NE(head().id, before.id);
    EXPECT_GT(head().timestamp, before.timestamp);
}

TEST_F(ClipboardHistory, copyingAPinnedOlderTextLeavesItInPlaceAndAddsAnother)
{
    (void)history();
    fill(2);
    history().togglePin(history().items().last());
    const ClipboardItem pinned = history().items().last();
    desktop.copy(u"1"_qs);
    EXPECT_EQ(desktop.texts(), (QStringList{u"1"_qs, u"2"_qs, u"1"_qs}));
    EXPECT_FALSE(head().isPinned);
    EXPECT_EQ(history().items().last(), pinned);
}

TEST_F(ClipboardHistory, aPinnedHeadIsAHeadToo)
{
    (void)history();
    desktop.copy(u"a"_qs);
    history().togglePin(head());
    desktop.copy(u"a"_qs);
    EXPECT_EQ(history().items().size(), 1);
}

TEST_F(ClipboardHistory, onlyBlanksAddNothingAndAreNotLookedAtAgain)
{
    (void)history();
    desktop.copy(u" \n\t"_qs);
    EXPECT_TRUE(history().items().isEmpty());
    const int readings = desktop.pasteboard().readings();
    desktop.advance(5s);
    EXPECT_EQ(desktop.pasteboard().readings(), readings);
    EXPECT_EQ(savings(), 0u);
}

TEST_F(ClipboardHistory, surroundingBlanksMakeAnotherText)
{
    (void)history();
    desktop.copy(u" a\n"_qs);
    EXPECT_EQ(head().text, u" a\n"_qs);
    desktop.copy(u"a"_qs);
    EXPECT_EQ(desktop.texts(), (QStringList{u"a"_qs, u" a\n"_qs}));
}

TEST_F(ClipboardHistory, theFortyFirstCaptureRemovesTheOldestEvenIfPinned)
{
    (void)history();
    fill(40);
    history().togglePin(history().items().last());
    desktop.copy(u"41"_qs);
    EXPECT_EQ(history().items().size(), 40);
    EXPECT_EQ(head().text, u"41"_qs);
    EXPECT_EQ(history().items().last().text, u"2"_qs);
}

TEST_F(ClipboardHistory, withFortyPinnedItemsANewCaptureStillEnters)
{
    (void)history();
    fill(40);
    for (const ClipboardItem& item : history().items())
        history().togglePin(item);
    desktop.copy(u"41"_qs);
    EXPECT_EQ(history().items().size(), 40);
    EXPECT_FALSE(head().isPinned);
    EXPECT_FALSE(desktop.texts().contains(u"1"_qs));
}

TEST_F(ClipboardHistory, clearingOnlyPinnedItemsChangesNothingButSaves)
{
    (void)history();
    desktop.copy(u"a"_qs);
    history().togglePin(head());
    const QList<ClipboardItem> before = history().items();
    const std::size_t savingsBefore = savings();
    history().clearAllClips();
    EXPECT_EQ(history().items(), before);
    EXPECT_EQ(savings(), savingsBefore + 1);
}

TEST_F(ClipboardHistory, clearingRemovesWhatIsNotPinned)
{
    (void)history();
    fill(3);
    history().togglePin(history().items()[1]);
    history().clearAllClips();
    EXPECT_EQ(desktop.texts(), (QStringList{u"2"_qs}));
}

TEST_F(ClipboardHistory, pinningMovesNothing)
{
    (void)history();
    fill(3);
    history().togglePin(history().items()[1]);
    EXPECT_EQ(desktop.texts(), (QStringList{u"3"_qs, u"2"_qs, u"1"_qs}));
    EXPECT_TRUE(history().items()[1].isPinned);
    history().togglePin(history().items()[1]);
    EXPECT_FALSE(history().items()[1].isPinned);
}

TEST_F(ClipboardHistory, anUnknownItemIsNotPinnedAndNothingIsSaved)
{
    (void)history();
    desktop.copy(u"a"_qs);
    const std::size_t savingsBefore = savings();
    history().togglePin({.id = QUuid::createUuid(), .text = u"a"_qs, .timestamp = {}});
    EXPECT_FALSE(head().isPinned);
    EXPECT_EQ(savings(), savingsBefore);
}

TEST_F(ClipboardHistory, deletingSavesAlsoWhenThereIsNoSuchItem)
{
    (void)history();
    fill(2);
    history().deleteClip(head());
    EXPECT_EQ(desktop.texts(), (QStringList{u"1"_qs}));
    const std::size_t savingsBefore = savings();
    history().deleteClip({.id = QUuid::createUuid(), .text = u"1"_qs, .timestamp = {}});
    EXPECT_EQ(history().items().size(), 1);
    EXPECT_EQ(savings(), savingsBefore + 1);
}

TEST_F(ClipboardHistory, aTextAddedByHandReplacesAnEqualHead)
{
    (void)history();
    desktop.copy(u"a"_qs);
    const QUuid before = head().id;
    history().addClipManually(u"a"_qs);
    EXPECT_EQ(history().items().size(), 1);
    EXPECT_NE(head().id, before);
    history().addClipManually(u"  "_qs);
    EXPECT_EQ(history().items().size(), 1);
    EXPECT_EQ(history().lastChangeCount(), desktop.pasteboard().changeCount());
}

TEST_F(ClipboardHistory, whatWasCopiedBeforeItsMakingIsNotInIt)
{
    desktop.copy(u"before"_qs);
    (void)history();
    desktop.advance(5s);
    EXPECT_TRUE(history().items().isEmpty());
    EXPECT_EQ(desktop.pasteboard().readings(), 0);
}

TEST_F(ClipboardHistory, aLookThatFindsNoChangeTouchesNoText)
{
    (void)history();
    desktop.copy(u"a"_qs);
    desktop.advance(60s);
    EXPECT_EQ(desktop.pasteboard().readings(), 1);
}

TEST_F(ClipboardHistory, itLooksEveryHalfSecondUntilItIsStopped)
{
    (void)history();
    desktop.pasteboard().copy({.text = u"a"_qs});
    desktop.advance(499ms);
    EXPECT_TRUE(history().items().isEmpty());
    desktop.advance(1ms);
    EXPECT_EQ(history().items().size(), 1);
    history().stopMonitoring();
    desktop.copy(u"b"_qs);
    EXPECT_EQ(history().items().size(), 1);
    history().startMonitoring();
    history().startMonitoring();
    desktop.advance(500ms);
    EXPECT_EQ(history().items().size(), 2);
    EXPECT_EQ(desktop.platform.scheduler().runningTimers(), 1u);
}

TEST_F(ClipboardHistory, anImageIsSeenOnceAndAddsNothing)
{
    (void)history();
    desktop.pasteboard().copyWithoutText();
    desktop.advance(5s);
    EXPECT_TRUE(history().items().isEmpty());
    EXPECT_EQ(desktop.pasteboard().readings(), 1);
}

TEST_F(ClipboardHistory, aSecretIsNotRecorded)
{
    (void)history();
    desktop.pasteboard().copy({.text = u"password"_qs, .isSecret = true});
    desktop.advance(5s);
    EXPECT_TRUE(history().items().isEmpty());
    EXPECT_EQ(desktop.pasteboard().readings(), 1);
    EXPECT_EQ(savings(), 0u);
}

TEST_F(ClipboardHistory, aTextThatComesLateIsCapturedWhenItIsThere)
{
    (void)history();
    desktop.pasteboard().setAnswerDelay(700ms);
    desktop.pasteboard().copy({.text = u"slow"_qs});
    desktop.advance(1199ms);
    EXPECT_TRUE(history().items().isEmpty());
    desktop.advance(1ms);
    EXPECT_EQ(desktop.texts(), (QStringList{u"slow"_qs}));
    desktop.advance(5s);
    EXPECT_EQ(desktop.pasteboard().readings(), 1);
}

TEST_F(ClipboardHistory, aVeryLongTextIsCapturedWholeWithoutHoldingUpTheTurn)
{
    (void)history();
    const QString text(2'000'000, u'x');
    desktop.pasteboard().copy({.text = text});
    history().checkForNewClips();
    EXPECT_TRUE(history().items().isEmpty());
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(head().text, text);
    EXPECT_EQ(desktop.ports.preferences.value(itemsKey).toArray().first(), QJsonValue(toJson(head())));
    EXPECT_EQ(savings(), 1u);
}

TEST_F(ClipboardHistory, everyChangeIsStoredAtOnceAndComesBackAfterARestart)
{
    (void)history();
    fill(2);
    history().togglePin(head());
    const QList<ClipboardItem> before = history().items();
    const QJsonArray stored = desktop.ports.preferences.value(itemsKey).toArray();
    EXPECT_EQ(stored, (QJsonArray{toJson(before[0]), toJson(before[1])}));

    test::ClipboardDesktop next;
    next.platform.preferences().stage(itemsKey, stored);
    EXPECT_EQ(next.history().items(), before);
}

TEST_F(ClipboardHistory, moreThanFortyStoredItemsAreTakenAsTheyAre)
{
    QJsonArray stored;
    for (int number = 0; number < 45; ++number)
        stored.append(toJson({.id = QUuid::createUuid(), .text = QString::number(number), .timestamp = {}}));
    desktop.platform.preferences().stage(itemsKey, stored);
    EXPECT_EQ(history().items().size(), 45);
    desktop.copy(u"new"_qs);
    EXPECT_EQ(history().items().size(), 40);
}

TEST_F(ClipboardHistory, damagedDataAreReportedAndKeptUntilTheNextSaving)
{
    const QJsonArray damaged{QJsonObject{{u"id"_qs, 1}}};
    desktop.platform.preferences().stage(itemsKey, damaged);
    EXPECT_TRUE(history().items().isEmpty());
    EXPECT_EQ(
        desktop.logLines(), (QStringList{u"[] [Tarvin] Failed to load clipboard history: entry 1 is not a clip"_qs}));
    EXPECT_EQ(desktop.ports.preferences.value(itemsKey), QJsonValue(damaged));
    desktop.copy(u"a"_qs);
    EXPECT_EQ(desktop.ports.preferences.value(itemsKey).toArray().size(), 1);
}

TEST_F(ClipboardHistory, eachChangeOfTheItemsIsTold)
{
    const test::SignalCount changes(history(), &ClipboardHistoryManager::itemsChanged);
    desktop.copy(u"a"_qs);
    desktop.copy(u"a"_qs);
    history().togglePin(head());
    history().deleteClip(head());
    EXPECT_EQ(changes.count(), 3);
}

} // namespace
} // namespace tarvin
