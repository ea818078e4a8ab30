#include "platform/linux/desktop/FieldPasting.h"

#include "platform/simulated/EffectLog.h"
#include "platform/simulated/SimulatedPasteboard.h"
#include "platform/simulated/SimulatedScheduler.h"
#include "support/QtPrinters.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvin::desktop {

namespace {

using namespace std::chrono_literals;

/// The text is with an application that needs a second for its answer.
class FieldPastingTest : public testing::Test
{
protected:
    FieldPastingTest()
    {
        pasteboard.setAnswerDelay(1s);
        pasteboard.copy({.text = u"late"_qs});
    }

    static QAction* actionOf(const QMenu& menu, const QString& title)
    {
        const QList<QAction*> actions = menu.actions();
        const auto found = std::ranges::find(actions, title, &QAction::text);
        return found == actions.end() ? nullptr : *found;
    }

    simulated::SimulatedScheduler scheduler;
    simulated::EffectLog log{scheduler};
    simulated::SimulatedPasteboard pasteboard{log, scheduler};
    FieldPasting pasting{pasteboard};
};

} // namespace

TEST_F(FieldPastingTest, theFieldGoesOnUntilTheTextComes)
{
    QLineEdit field;
    QTest::keyClicks(&field, u"ab"_qs);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClicks(&field, u"c"_qs);
    EXPECT_EQ(field.text(), u"abc"_qs);
    scheduler.advance(1s);
    EXPECT_EQ(field.text(), u"abclate"_qs);
    field.undo();
    EXPECT_EQ(field.text(), u"abc"_qs);
}

TEST_F(FieldPastingTest, theTextReplacesWhatIsSelected)
{
    QPlainTextEdit field;
    field.setPlainText(u"old"_qs);
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Insert, Qt::ShiftModifier);
    scheduler.advance(1s);
    EXPECT_EQ(field.toPlainText(), u"late"_qs);
}

TEST_F(FieldPastingTest, aHeldKeyAsksOnceAtATime)
{
    QLineEdit field;
    for (int press = 0; press < 5; ++press)
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(pasteboard.readings(), 1);
    scheduler.advance(1s);
    EXPECT_EQ(field.text(), u"late"_qs);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    scheduler.advance(1s);
    EXPECT_EQ(field.text(), u"latelate"_qs);
}

TEST_F(FieldPastingTest, nothingIsPastedWhereTheClipboardHasNoText)
{
    QLineEdit field(u"kept"_qs);
    pasteboard.copyWithoutText();
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    scheduler.advance(1s);
    EXPECT_EQ(pasteboard.readings(), 1);
    EXPECT_EQ(field.text(), u"kept"_qs);
}

TEST_F(FieldPastingTest, aFieldThatCannotBeEditedStaysAsItIs)
{
    QLineEdit field(u"kept"_qs);
    field.setReadOnly(true);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    scheduler.advance(1s);
    EXPECT_EQ(field.text(), u"kept"_qs);
}

TEST_F(FieldPastingTest, aTextThatComesAfterTheFieldHasGoneIsDropped)
{
    {
        QLineEdit field;
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        ASSERT_EQ(pasteboard.readings(), 1);
    }
    scheduler.advance(1s);
}

TEST_F(FieldPastingTest, otherKeysAndOtherWidgetsGoTheirWay)
{
    QWidget widget;
    QLineEdit field;
    QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_V);
    EXPECT_EQ(pasteboard.readings(), 0);
    EXPECT_EQ(field.text(), u"v"_qs);
    EXPECT_EQ(pasting.menuOf(widget), nullptr);
}

TEST_F(FieldPastingTest, theMenuAsksNobodyAndOffersWhatCanBeDone)
{
    QLineEdit field(u"some"_qs);
    const auto menu = pasting.menuOf(field);
    ASSERT_TRUE(menu);
    EXPECT_EQ(pasteboard.readings(), 0);
    EXPECT_FALSE(actionOf(*menu, u"Undo"_qs)->isEnabled());
    EXPECT_FALSE(actionOf(*menu, u"Redo"_qs)->isEnabled());
    EXPECT_FALSE(actionOf(*menu, u"Cut"_qs)->isEnabled());
    EXPECT_FALSE(actionOf(*menu, u"Copy"_qs)->isEnabled());
    EXPECT_TRUE(actionOf(*menu, u"Select All"_qs)->isEnabled());
    actionOf(*menu, u"Select All"_qs)->trigger();
    EXPECT_EQ(field.selectedText(), u"some"_qs);
    actionOf(*menu, u"Paste"_qs)->trigger();
    scheduler.advance(1s);
    EXPECT_EQ(field.text(), u"late"_qs);
    EXPECT_TRUE(actionOf(*pasting.menuOf(field), u"Undo"_qs)->isEnabled());
}

TEST_F(FieldPastingTest, theMenuOpensWhereItIsAskedForAndGoesWhenItCloses)
{
    QLineEdit field;
    field.show();
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 4}, field.mapToGlobal(QPoint(3, 4)));
    QCoreApplication::sendEvent(&field, &event);
    QPointer<QMenu> menu = field.findChild<QMenu*>();
    ASSERT_TRUE(menu);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(menu->pos(), field.mapToGlobal(QPoint(3, 4)));
    EXPECT_EQ(pasteboard.readings(), 0);
    menu->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(menu);
}

TEST_F(FieldPastingTest, theMenuOfAPlainTextOpensOverWhereItIsWritten)
{
    QPlainTextEdit field;
    field.setReadOnly(true);
    const auto menu = pasting.menuOf(*field.viewport());
    ASSERT_TRUE(menu);
    EXPECT_FALSE(actionOf(*menu, u"Paste"_qs)->isEnabled());
    EXPECT_FALSE(actionOf(*menu, u"Select All"_qs)->isEnabled());
}

} // namespace tarvin::desktop
