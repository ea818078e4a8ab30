#include "ui/Sheet.h"

#include "support/QtPrinters.h"
#include "ui/OutlinedButton.h"
#include "ui/SheetPanel.h"
#include "ui/support/Canvas.h"

#include <QAccessible>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvin {

namespace {

/// Two buttons.
class Panel : public SheetPanel
{
public:
    Panel()
        : SheetPanel(u"Choices"_qs, {200, 100}, palette::panelBackground)
    {
        first->setText(u"First"_qs);
        last->setText(u"Last"_qs);
        first->setGeometry(10, 10, 60, 28);
        last->setGeometry(10, 50, 60, 28);
    }

    OutlinedButton* first = new OutlinedButton({}, this);
    OutlinedButton* last = new OutlinedButton({}, this);

protected:
    void paintGround(QPainter& painter) override { painter.fillRect(0, 0, 200, 4, Qt::red); }
};

/// A window with a field and a button, and a sheet that comes over it.
class Sheets : public testing::Test
{
protected:
    Sheets()
    {
        window.resize(400, 300);
        field.setGeometry(10, 10, 100, 30);
        below.setGeometry(10, 200, 100, 28);
        below.setText(u"Below"_qs);
        window.show();
        window.activateWindow();
        QObject::connect(&below, &QAbstractButton::clicked, &window, [this] { ++clicksBelow; });
    }
    /// The sheet and what is in it go first, as they do in the program.
    ~Sheets() override { delete Sheet::over(window); }

    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(&window)); }

    Sheet* present()
    {
        return Sheet::present(window, [this](Sheet::Close closeIt) {
            close = std::move(closeIt);
            panel = new Panel;
            return panel;
        });
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    QWidget window;
    QLineEdit field{&window};
    OutlinedButton below{{}, &window};
    Panel* panel = nullptr;
    Sheet::Close close;
    int clicksBelow = 0;
};

TEST_F(Sheets, standsInTheMiddleOfTheWindowAndFollowsItsSize)
{
    Sheet* const sheet = present();
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel->pos() == QPoint(100, 100); }));
    window.resize(600, 500);
    EXPECT_EQ(sheet->geometry(), QRect(0, 0, 600, 500));
    EXPECT_EQ(panel->pos(), QPoint(200, 200));
}

TEST_F(Sheets, aWindowHasOneAtATime)
{
    Sheet* const sheet = present();
    EXPECT_EQ(Sheet::over(window), sheet);
    EXPECT_EQ(present(), nullptr);
    sheet->leave();
    EXPECT_EQ(Sheet::over(window), nullptr);
    EXPECT_NE(present(), nullptr) << "also while the other is on its way out";
}

TEST_F(Sheets, escapeTakesItAwayAndTheKeyboardIsWhereItWas)
{
    field.setFocus();
    const QPointer<Sheet> sheet = present();
    EXPECT_TRUE(panel->hasFocus());
    press(Qt::Key_Tab);
    press(Qt::Key_Escape);
    EXPECT_EQ(Sheet::over(window), nullptr);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_TRUE(QTest::qWaitFor([&] { return sheet.isNull(); })) << "it is gone when it has faded";
}

TEST_F(Sheets, whatWasFocusedBeforeMayBeGone)
{
    auto* const passing = new QLineEdit(&window);
    passing->show();
    passing->setFocus();
    present();
    delete passing;
    close();
    EXPECT_FALSE(panel->isAncestorOf(QApplication::focusWidget()));
    close();
}

TEST_F(Sheets, tabGoesRoundInTheSheet)
{
    present();
    press(Qt::Key_Tab);
    EXPECT_TRUE(panel->first->hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(panel->last->hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(panel->first->hasFocus());
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(panel->last->hasFocus());
    panel->first->setEnabled(false);
    press(Qt::Key_Tab);
    EXPECT_TRUE(panel->last->hasFocus()) << "there is no other";
}

TEST_F(Sheets, whatIsBehindGetsNeitherTheKeyboardNorThePointer)
{
    present();
    press(Qt::Key_Tab);
    field.setFocus();
    EXPECT_TRUE(panel->first->hasFocus());
    // At the place of the button, as the server would deliver it.
    EXPECT_EQ(window.childAt(below.geometry().center()), Sheet::over(window));
    QTest::mouseClick(Sheet::over(window), Qt::LeftButton, {}, below.geometry().center());
    press(Qt::Key_X);
    EXPECT_EQ(clicksBelow, 0);
    EXPECT_EQ(field.text(), QString());
    EXPECT_NE(Sheet::over(window), nullptr) << "a click beside it doesn't take it away";
}

TEST_F(Sheets, aControlThatGoesGivesTheKeyboardToAnotherInTheSheet)
{
    present();
    panel->first->setFocus();
    panel->first->hide();
    EXPECT_TRUE(panel->last->hasFocus());
    delete std::exchange(panel->last, nullptr);
    EXPECT_TRUE(panel->hasFocus());
}

TEST_F(Sheets, mayGoAtOnceWithTheKeyboardInIt)
{
    Sheet* const sheet = present();
    panel->first->setFocus();
    delete sheet;
    EXPECT_EQ(Sheet::over(window), nullptr);
}

TEST_F(Sheets, dimsWhatIsBehindIt)
{
    window.setPalette(QPalette(Qt::white));
    window.setAutoFillBackground(true);
    present();
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel->graphicsEffect() == nullptr; }));
    const test::Canvas picture(window.grab().toImage());
    EXPECT_NEAR(picture.lightAt(390, 5), 0.5 * QColor(Qt::white).valueF(), 0.05);
    EXPECT_EQ(picture.at(200, 102), QColor(Qt::red));
    EXPECT_NE(picture.at(100, 100), QColor(Qt::red)) << "the corner is cut off";
}

TEST_F(Sheets, aHiddenWindowGetsAndLosesItWithoutMovement)
{
    window.hide();
    const QPointer<Sheet> sheet = present();
    EXPECT_EQ(panel->pos(), QPoint(100, 100));
    EXPECT_EQ(panel->graphicsEffect(), nullptr);
    sheet->leave();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(sheet.isNull());
}

TEST_F(Sheets, assistiveTechnologyFindsAModalDialog)
{
    present();
    QAccessibleInterface* const dialog = QAccessible::queryAccessibleInterface(panel);
    EXPECT_EQ(dialog->role(), QAccessible::Dialog);
    EXPECT_EQ(dialog->text(QAccessible::Name), u"Choices");
    EXPECT_TRUE(dialog->state().modal);
}

} // namespace

} // namespace tarvin
