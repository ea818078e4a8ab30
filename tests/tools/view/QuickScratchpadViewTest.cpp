#include "tools/scratchpad/view/QuickScratchpadView.h"

#include "support/QtPrinters.h"
#include "tools/scratchpad/ScratchpadNote.h"
#include "tools/view/PanelProbe.h"

#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace tarvin {
namespace {

using namespace std::chrono_literals;

class ScratchpadView : public testing::Test
{
protected:
    ScratchpadView() { view.fadeIn(0ms); }

    [[nodiscard]] QPlainTextEdit& editor() { return *view.findChild<QPlainTextEdit*>(); }
    [[nodiscard]] QAbstractButton* button(const QString& name) { return test::buttonNamed(view, name); }

    test::ToolsDesktop desktop;
    ScratchpadNote note{desktop.ports.preferences, desktop.platform.pasteboard(), desktop.ports.scheduler};
    QuickScratchpadView view{note, [] { return true; }};
};

TEST_F(ScratchpadView, whatIsTypedIsTheNote)
{
    QTest::keyClicks(view.focusWidget(), u"buy milk"_qs);
    QTest::keyClick(view.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(note.text(), u"buy milk\n"_qs);
    EXPECT_TRUE(test::textsOf(view).contains(u"9 characters  •  2 lines"_qs));
}

TEST_F(ScratchpadView, aNewNoteCountsNothing)
{
    EXPECT_EQ(test::textsOf(view),
        (QStringList{u"Quick Scratchpad"_qs, u"0 characters  •  0 lines"_qs, u"Auto-saved  •  Press Esc to close"_qs}));
}

TEST_F(ScratchpadView, aNoteThatIsLoadedAppears)
{
    desktop.platform.preferences().stage(ScratchpadNote::storageKey.toString(), u"from the last run"_qs);
    note.load();
    EXPECT_EQ(editor().toPlainText(), u"from the last run"_qs);
}

TEST_F(ScratchpadView, clearEmptiesIt)
{
    note.setText(u"a"_qs);
    QTest::mouseClick(button(u"Clear"_qs), Qt::LeftButton);
    EXPECT_EQ(editor().toPlainText(), QString());
    EXPECT_EQ(note.text(), QString());
}

TEST_F(ScratchpadView, copyAllConfirmsInThePlaceOfItsName)
{
    note.setText(u"a"_qs);
    const QRect before = test::placeOf(view, *button(u"Copy All"_qs));
    QTest::mouseClick(button(u"Copy All"_qs), Qt::LeftButton);
    ASSERT_NE(button(u"Copied!"_qs), nullptr);
    EXPECT_EQ(test::placeOf(view, *button(u"Copied!"_qs)).right(), before.right());
    EXPECT_EQ(desktop.platform.pasteboard().content(), (PasteboardText{.text = u"a"_qs}));
    desktop.advance(1200ms);
    EXPECT_NE(button(u"Copy All"_qs), nullptr);
}

TEST_F(ScratchpadView, escapeAndTheCloseButtonDismissIt)
{
    QSignalSpy dismissed(&view, &ToolPlate::dismissed);
    QTest::keyClick(&editor(), Qt::Key_Escape);
    EXPECT_EQ(dismissed.size(), 1);
    QTest::mouseClick(button(u"Close"_qs), Qt::LeftButton);
    EXPECT_EQ(dismissed.size(), 2);
}

TEST_F(ScratchpadView, itsPartsStandWhereTheyShould)
{
    EXPECT_EQ(view.plate().size(), QSize(520, 380));
    EXPECT_EQ(test::placeOf(view, *button(u"Close"_qs)), QRect(480, 12, 24, 24));
    // Twelve around the editor, between the header with its line and the line with the footer.
    EXPECT_EQ(test::placeOf(view, editor()), QRect(12, 49 + 12, 496, 380 - 49 - 29 - 24));
    const QRect copy = test::placeOf(view, *button(u"Copy All"_qs));
    const QRect clear = test::placeOf(view, *button(u"Clear"_qs));
    EXPECT_EQ(clear.right() + 1 + 10, 480);
    EXPECT_EQ(copy.right() + 1 + 10, clear.left());
    EXPECT_EQ(copy.height(), 20);
}

TEST_F(ScratchpadView, itsColoursAreThoseOfItsAreas)
{
    const test::Canvas picture = test::pictureOf(view);
    EXPECT_EQ(picture.at(300, 200), QColor(18, 18, 23)) << "editor";
    EXPECT_EQ(picture.at(250, 10), QColor(23, 23, 28)) << "header";
    EXPECT_EQ(picture.at(250, 375), QColor(20, 20, 26)) << "footer";
}

} // namespace
} // namespace tarvin
