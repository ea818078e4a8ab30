#include "tools/clipboard/view/ClipboardHistoryView.h"

#include "support/QtPrinters.h"
#include "tools/clipboard/view/ClipList.h"
#include "tools/clipboard/view/ClipRow.h"
#include "tools/view/PanelProbe.h"
#include "ui/TextField.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace tarvin {
namespace {

class ClipboardView : public testing::Test
{
protected:
    ClipboardView() { view.fadeIn(std::chrono::milliseconds(0)); }

    void copy(const QStringList& texts)
    {
        for (const QString& text : texts)
            desktop.copy(text);
        QApplication::processEvents();
    }
    [[nodiscard]] ClipboardHistoryManager& history() { return desktop.history(); }
    [[nodiscard]] std::vector<ClipRow*> rows() { return view.findChild<ClipList*>()->rows(); }
    [[nodiscard]] TextField& search() { return *view.findChild<TextField*>(); }
    [[nodiscard]] QStringList shown()
    {
        QStringList names;
        for (const ClipRow* row : rows())
            names << row->accessibleName();
        return names;
    }
    [[nodiscard]] QAbstractButton* clearHistory() { return test::buttonNamed(view, u"Clear History"_qs); }
    [[nodiscard]] static QAbstractButton* inRow(const ClipRow& row, const QString& name)
    {
        return test::buttonNamed(row, name);
    }

    test::ClipboardDesktop desktop;
    QStringList pasted;
    ClipboardHistoryView view{
        desktop.history(), [this](const ClipboardItem& item) { pasted << item.text; }, [] { return true; }};
};

TEST_F(ClipboardView, anEmptyHistorySaysSo)
{
    EXPECT_EQ(test::textsOf(view),
        (QStringList{u"Clipboard History"_qs, u"No items in clipboard history yet"_qs,
            u"Copy text or code anywhere on your Mac"_qs, u"0 clips saved"_qs, u"Press 1–9 or click to paste"_qs}));
    EXPECT_EQ(clearHistory(), nullptr);
    EXPECT_EQ(search().placeholderText(), u"Search copied text, code, URLs..."_qs);
}

TEST_F(ClipboardView, theNewestStandsFirstAndEntersAtOnce)
{
    copy({u"one"_qs, u"two"_qs});
    EXPECT_EQ(shown(), (QStringList{u"two"_qs, u"one"_qs}));
    EXPECT_TRUE(test::textsOf(view).contains(u"2 clips saved"_qs));
}

TEST_F(ClipboardView, typingSearchesAtOnceAndNumbersTheFindsAnew)
{
    copy({u"apple pie"_qs, u"banana"_qs, u"Pineapple"_qs});
    QTest::keyClicks(&search(), u"APPLE"_qs);
    EXPECT_EQ(shown(), (QStringList{u"Pineapple"_qs, u"apple pie"_qs}));
    EXPECT_TRUE(test::textsOf(view).contains(u"2 clips saved"_qs));
    EXPECT_EQ(clipBadge(0), u"1"_qs);
    EXPECT_EQ(clipBadge(1), u"2"_qs);
}

TEST_F(ClipboardView, theTenthRowHasADotInsteadOfANumber)
{
    EXPECT_EQ(clipBadge(8), u"9"_qs);
    EXPECT_EQ(clipBadge(9), QString());
    for (int i = 0; i < 11; ++i)
        copy({QString::number(i)});
    ClipRow* const tenth = rows()[9];
    const test::Canvas picture(tenth->grab().toImage());
    // Within the dot, in the middle of the badge's place, and where a number's plate would begin.
    EXPECT_GT(picture.lightAt(19, 17), picture.lightAt(12, 17) + 0.05);
    const test::Canvas ninth(rows()[8]->grab().toImage());
    EXPECT_GT(ninth.at(11.5, 17).green(), picture.at(11.5, 17).green() + 15);
}

TEST_F(ClipboardView, aDigitGoesIntoTheSearchField)
{
    copy({u"one"_qs});
    EXPECT_TRUE(search().hasFocus() || view.focusWidget() == &search());
    QTest::keyClicks(view.focusWidget(), u"1"_qs);
    EXPECT_EQ(view.searchText(), u"1"_qs);
    EXPECT_TRUE(pasted.isEmpty());
}

TEST_F(ClipboardView, aClickOnARowPastesIt)
{
    copy({u"one"_qs, u"two"_qs});
    QTest::mouseClick(rows()[1], Qt::LeftButton, {}, QPoint(100, 20));
    EXPECT_EQ(pasted, (QStringList{u"one"_qs}));
}

TEST_F(ClipboardView, theKeyboardPastesTheRowThatHasIt)
{
    copy({u"one"_qs, u"two"_qs});
    rows()[0]->setFocus();
    QTest::keyClick(rows()[0], Qt::Key_Return);
    EXPECT_EQ(pasted, (QStringList{u"two"_qs}));
}

TEST_F(ClipboardView, thePinOfARowPinsAndDoesNotPaste)
{
    copy({u"one"_qs});
    QTest::mouseClick(inRow(*rows()[0], u"Pin"_qs), Qt::LeftButton);
    EXPECT_TRUE(history().items().first().isPinned);
    QTest::mouseClick(inRow(*rows()[0], u"Unpin"_qs), Qt::LeftButton);
    EXPECT_FALSE(history().items().first().isPinned);
    EXPECT_TRUE(pasted.isEmpty());
}

TEST_F(ClipboardView, theTrashOfARowDeletesAndDoesNotPaste)
{
    copy({u"one"_qs, u"two"_qs});
    QTest::mouseClick(inRow(*rows()[0], u"Delete"_qs), Qt::LeftButton);
    EXPECT_EQ(shown(), (QStringList{u"one"_qs}));
    EXPECT_TRUE(pasted.isEmpty());
}

TEST_F(ClipboardView, clearHistoryStaysWhileASearchShowsNothing)
{
    copy({u"one"_qs});
    search().setText(u"nowhere"_qs);
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_TRUE(test::textsOf(view).contains(u"No matching clips found"_qs));
    EXPECT_TRUE(test::textsOf(view).contains(u"0 clips saved"_qs));
    EXPECT_NE(clearHistory(), nullptr);
}

TEST_F(ClipboardView, afterClearHistoryPinnedItemsRemainAndSoDoesTheButton)
{
    copy({u"one"_qs, u"two"_qs});
    history().togglePin(history().items().first());
    QTest::mouseClick(clearHistory(), Qt::LeftButton);
    EXPECT_EQ(shown(), (QStringList{u"two"_qs}));
    ASSERT_NE(clearHistory(), nullptr);
    history().togglePin(history().items().first());
    QTest::mouseClick(clearHistory(), Qt::LeftButton);
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_EQ(clearHistory(), nullptr);
}

TEST_F(ClipboardView, theSearchStaysWhileThePanelIsHidden)
{
    copy({u"one"_qs, u"two"_qs});
    search().setText(u"one"_qs);
    view.hide();
    view.fadeIn(std::chrono::milliseconds(0));
    EXPECT_EQ(view.searchText(), u"one"_qs);
    EXPECT_EQ(shown(), (QStringList{u"one"_qs}));
}

TEST_F(ClipboardView, theButtonInTheFieldClearsTheSearch)
{
    QAbstractButton* const clear = search().findChild<QAbstractButton*>();
    EXPECT_FALSE(clear->isVisibleTo(&search()));
    search().setText(u"a"_qs);
    EXPECT_TRUE(clear->isVisibleTo(&search()));
    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_EQ(view.searchText(), QString());
}

TEST_F(ClipboardView, escapeAndTheCloseButtonDismissIt)
{
    QSignalSpy dismissed(&view, &ToolPlate::dismissed);
    QTest::keyClick(&search(), Qt::Key_Escape);
    EXPECT_EQ(dismissed.size(), 1);
    QTest::mouseClick(test::buttonNamed(view, u"Close"_qs), Qt::LeftButton);
    EXPECT_EQ(dismissed.size(), 2);
}

TEST_F(ClipboardView, itsPartsStandWhereTheyShould)
{
    copy({u"one"_qs, QString(60, u'x')});
    EXPECT_EQ(view.plate().size(), QSize(460, 480));
    EXPECT_EQ(test::placeOf(view, *test::buttonNamed(view, u"Close"_qs)), QRect(420, 12, 24, 24));
    EXPECT_EQ(test::placeOf(view, search()), QRect(0, 49, 460, 32));
    // Eight within the body, four apart; the second line of a preview makes its row taller.
    const QRect first = test::placeOf(view, *rows()[0]);
    const QRect second = test::placeOf(view, *rows()[1]);
    EXPECT_EQ(first.topLeft(), QPoint(8, 82 + 8));
    EXPECT_EQ(first.width(), 444);
    EXPECT_EQ(second.top(), first.bottom() + 1 + 4);
    EXPECT_EQ(first.height() - second.height(), 15);
}

TEST_F(ClipboardView, itsColoursAreThoseOfItsAreas)
{
    const test::Canvas picture = test::pictureOf(view);
    EXPECT_EQ(picture.at(230, 20), QColor(23, 23, 28)) << "header";
    EXPECT_EQ(picture.at(200, 470), QColor(20, 20, 26)) << "footer";
    const QColor body = picture.at(30, 300);
    EXPECT_GE(body.alphaF(), 0.96) << "its own, and that of the shadow below";
    EXPECT_NEAR(body.blueF(), 0.10, 0.01);
    EXPECT_GT(picture.at(230, 65).value(), body.value()) << "the search row is lighter";
    EXPECT_GT(picture.at(230, 0).greenF(), picture.at(230, 0).redF() + 0.2) << "the rim";
    EXPECT_LT(picture.at(0, 0).alphaF(), 0.6) << "the corner is round";
}

TEST_F(ClipboardView, aPinnedRowHasARimOfTheAccent)
{
    copy({u"one"_qs});
    const test::Canvas plain(rows()[0]->grab().toImage());
    history().togglePin(history().items().first());
    const test::Canvas pinned(rows()[0]->grab().toImage());
    EXPECT_GT(pinned.at(200, 0).green(), plain.at(200, 0).green() + 30);
}

TEST_F(ClipboardView, aLongListScrolls)
{
    for (int i = 0; i < 40; ++i)
        copy({QString::number(i)});
    auto* const list = view.findChild<ClipList*>();
    EXPECT_GT(list->verticalScrollBar()->maximum(), 0);
    list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum());
    EXPECT_TRUE(
        list->viewport()->rect().intersects(QRect(rows()[39]->mapTo(list->viewport(), QPoint()), rows()[39]->size())));
}

TEST(ClipPreviewLines, aLongPreviewIsBrokenBetweenWords)
{
    EXPECT_EQ(clipPreviewLines(u"short"_qs), (QStringList{u"short"_qs}));
    const QStringList lines = clipPreviewLines(u"The meeting moved to Thursday at 14:30; the room stays th..."_qs);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines.join(u' '), u"The meeting moved to Thursday at 14:30; the room stays th..."_qs);
    EXPECT_EQ(clipPreviewLines(QString(60, u'x')).join(QString()), QString(60, u'x'));
}

TEST(ClipText, aRowTellsTheLengthOfTheWholeTextAndTheTime)
{
    const Scheduler::WallClock moment(
        std::chrono::seconds(QDateTime(QDate(2026, 1, 15), QTime(9, 57, 30)).toSecsSinceEpoch()));
    const ClipboardItem item{.id = QUuid::createUuid(), .text = QString(64, u'x'), .timestamp = moment};
    const ClipText text = ClipText::of(item, QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(text.length, u"64 chars"_qs);
    EXPECT_EQ(text.preview, QString(57, u'x') + u"..."_qs);
    EXPECT_EQ(text.time, u"9:57 AM"_qs);
    EXPECT_EQ(ClipText::of(item, QLocale(QLocale::German)).time, u"09:57"_qs);
    EXPECT_EQ(ClipText::of(item, QLocale::c()).time, u"09:57"_qs);
}

} // namespace
} // namespace tarvin
