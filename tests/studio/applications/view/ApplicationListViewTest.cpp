#include "studio/applications/view/ApplicationListView.h"

#include "platform/simulated/SimulatedPlatform.h"
#include "studio/applications/view/ApplicationIcons.h"
#include "support/QtPrinters.h"
#include "ui/TextField.h"

#include <QAccessible>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

namespace {

QList<InstalledApplication> applications(int count)
{
    QList<InstalledApplication> list;
    for (int number = 0; number < count; ++number)
        list.append({.name = QStringLiteral("Application %1").arg(number),
            .bundleIdentifier = QStringLiteral("org.example.a%1").arg(number),
            .path = {},
            .icon = QStringLiteral("icon%1").arg(number)});
    return list;
}

/// A search field above a list.
class List : public testing::Test
{
protected:
    List()
    {
        auto* const layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(&field);
        layout->addWidget(&view);
        window.resize(440, 380);
        view.attachSearchField(field);
        QObject::connect(&view, &ApplicationListView::chosen, &view,
            [this](const InstalledApplication& application) { chosen += application.name; });
    }

    void show(int count)
    {
        view.setApplications(applications(count));
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    [[nodiscard]] QPoint middleOf(int row) const
    {
        const QRect item = view.visualRect(view.model()->index(row, 0));
        return {view.width() / 2, item.top() + ApplicationRowLook().height / 2};
    }
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    simulated::SimulatedPlatform desktop;
    QSet<QString> readIcons;
    ApplicationIcons icons{desktop.scheduler(), [this](const QString& icon, int /*pixels*/) {
                               readIcons += icon;
                               return QImage();
                           }};
    QWidget window;
    TextField field{u"Search"_qs};
    ApplicationListView view{icons, {}, u"Applications"_qs};
    QStringList chosen;
};

TEST_F(List, aClickOnARowChoosesItsApplication)
{
    show(3);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middleOf(1));
    EXPECT_EQ(chosen, QStringList{u"Application 1"_qs});
}

TEST_F(List, aClickBesideTheRowsChoosesNothing)
{
    show(3);
    const ApplicationRowLook look;
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middleOf(0) + QPoint(0, look.height / 2 + look.spacing / 2));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {look.margins.left() / 2, middleOf(0).y()});
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {view.width() / 2, look.margins.top() / 2});
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(List, theFirstRowStandsBelowTheMarginAndTheLastKeepsItAtTheEnd)
{
    show(40);
    const ApplicationRowLook look;
    EXPECT_EQ(view.visualRect(view.model()->index(0, 0)).top(), look.margins.top());
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    const int bottom = view.visualRect(view.model()->index(39, 0)).top() + look.height;
    EXPECT_EQ(bottom, view.viewport()->height() - look.margins.bottom());
    view.verticalScrollBar()->setValue(30);
    EXPECT_EQ(view.visualRect(view.model()->index(0, 0)).top(), look.margins.top() - 30);
}

TEST_F(List, returnOrSpaceChoosesTheRowThatHasTheKeyboard)
{
    show(3);
    view.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_EQ(chosen, (QStringList{u"Application 0"_qs, u"Application 2"_qs}));
}

TEST_F(List, downLeadsFromTheFieldIntoTheListAndUpBack)
{
    show(3);
    field.setFocus();
    press(Qt::Key_Down);
    EXPECT_TRUE(view.hasFocus());
    EXPECT_EQ(view.currentIndex().row(), 0);
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    EXPECT_TRUE(view.hasFocus());
    press(Qt::Key_Up);
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(List, returnInTheFieldTakesTheFirstRowOnlyWhereItIsProposed)
{
    show(3);
    field.setFocus();
    press(Qt::Key_Return);
    EXPECT_TRUE(chosen.isEmpty());
    view.setProposing(true);
    press(Qt::Key_Return);
    EXPECT_EQ(chosen, QStringList{u"Application 0"_qs});
    press(Qt::Key_Down);
    EXPECT_EQ(view.currentIndex().row(), 1) << "the first was marked already";
    view.setApplications({});
    field.setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(chosen.size(), 1);
}

TEST_F(List, whatIsTypedInTheListGoesToTheField)
{
    show(3);
    view.setFocus(Qt::TabFocusReason);
    press(Qt::Key_P);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(field.text(), u"p");
    press(Qt::Key_Down);
    press(Qt::Key_Backspace);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(field.text(), QString());
}

TEST_F(List, onlyTheIconsOfRowsThatShowAreRead)
{
    show(2000);
    static_cast<void>(window.grab());
    desktop.scheduler().runPosted();
    EXPECT_TRUE(readIcons.contains(u"icon0"_qs));
    EXPECT_LT(readIcons.size(), 12);
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    static_cast<void>(window.grab());
    desktop.scheduler().runPosted();
    EXPECT_TRUE(readIcons.contains(u"icon1999"_qs));
    EXPECT_LT(readIcons.size(), 24);
}

TEST_F(List, otherApplicationsStartAtTheTop)
{
    show(100);
    view.verticalScrollBar()->setValue(500);
    view.setApplications(applications(90));
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

TEST_F(List, assistiveTechnologyFindsAListWithNamedRows)
{
    show(3);
    view.setChosen(u"org.example.a1"_qs);
    view.setFocus(Qt::TabFocusReason);
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->text(QAccessible::Name), u"Applications");
    ASSERT_EQ(list->childCount(), 3);
    QAccessibleInterface* const row = list->child(1);
    EXPECT_EQ(row->role(), QAccessible::ListItem);
    EXPECT_EQ(row->text(QAccessible::Name), u"Application 1");
    EXPECT_EQ(row->text(QAccessible::Description), u"org.example.a1");
    EXPECT_TRUE(row->state().checked);
    EXPECT_FALSE(list->child(0)->state().checked);
    EXPECT_TRUE(list->child(0)->state().focused);
}

TEST_F(List, assistiveTechnologyChoosesByDoingWhatARowOffers)
{
    show(3);
    view.setFocus();
    press(Qt::Key_Down);
    EXPECT_TRUE(view.selectionModel()->selectedIndexes().isEmpty()) << "the keyboard moves without selecting";
    QAccessibleInterface* const row = QAccessible::queryAccessibleInterface(&view)->child(1);
    QAccessibleActionInterface* const actions = row->actionInterface();
    ASSERT_NE(actions, nullptr);
    actions->doAction(actions->actionNames().value(0));
    EXPECT_EQ(chosen, QStringList()) << "not before the next turn";
    QTest::qWait(0);
    EXPECT_EQ(chosen, QStringList{u"Application 1"_qs});
    EXPECT_TRUE(view.selectionModel()->selectedIndexes().isEmpty());
}

TEST_F(List, isAsHighAsItsRowsWantIt)
{
    const ApplicationRowLook look;
    EXPECT_EQ(view.fullHeight(), look.margins.top() + look.margins.bottom());
    view.setApplications(applications(3));
    EXPECT_EQ(view.fullHeight(), look.margins.top() + 3 * look.height + 2 * look.spacing + look.margins.bottom());
}

} // namespace

} // namespace tarvin
