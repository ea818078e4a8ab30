#include "ui/OutlinedButton.h"
#include "ui/SwitchControl.h"
#include "ui/TextField.h"
#include "ui/support/Canvas.h"

#include "support/QtPrinters.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvin {

namespace {

QAccessibleInterface& accessible(QWidget& widget)
{
    return *QAccessible::queryAccessibleInterface(&widget);
}

QImage grabbed(QWidget& widget)
{
    return widget.grab().toImage();
}

} // namespace

TEST(PaintedButton, isPressedByReturnAsBySpace)
{
    OutlinedButton button;
    QSignalSpy clicks(&button, &QAbstractButton::clicked);
    QTest::keyClick(&button, Qt::Key_Return);
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks.size(), 3);
}

TEST(PaintedButton, isCalledByItsTextOrElseByItsTip)
{
    OutlinedButton worded;
    worded.setText(QStringLiteral("Settings"));
    worded.setTip(QStringLiteral("Open the settings"));
    EXPECT_EQ(accessible(worded).text(QAccessible::Name), QStringLiteral("Settings"));
    EXPECT_EQ(accessible(worded).role(), QAccessible::Button);
    OutlinedButton bare;
    bare.setTip(QStringLiteral("Mute"));
    EXPECT_EQ(accessible(bare).text(QAccessible::Name), QStringLiteral("Mute"));
}

TEST(OutlinedButton, aCompactOneShowsTheSymbolAloneAndKeepsItsName)
{
    OutlinedButton button;
    button.setSymbol(Symbol(u"gearshape.fill"));
    button.setText(QStringLiteral("Settings"));
    const int wide = button.sizeHint().width();
    button.setCompact(true);
    EXPECT_LT(button.sizeHint().width(), wide - 30);
    EXPECT_EQ(button.sizeHint().height(), 28);
    EXPECT_EQ(accessible(button).text(QAccessible::Name), QStringLiteral("Settings"));
}

TEST(SwitchControl, isACheckBoxThatSaysWhetherItIsOn)
{
    SwitchControl control(QStringLiteral("Other Keys"));
    EXPECT_EQ(accessible(control).role(), QAccessible::CheckBox);
    EXPECT_EQ(accessible(control).text(QAccessible::Name), QStringLiteral("Other Keys"));
    EXPECT_FALSE(accessible(control).state().checked);
    QTest::keyClick(&control, Qt::Key_Space);
    EXPECT_TRUE(control.isChecked());
    EXPECT_TRUE(accessible(control).state().checked);
}

TEST(SwitchControl, isMintWhenOnAndItsKnobIsAtTheOtherEnd)
{
    SwitchControl control(QStringLiteral("Other Keys"));
    control.resize(control.sizeHint());
    const auto at = [&](int x) { return grabbed(control).pixelColor(x, control.height() / 2); };
    EXPECT_GT(at(9).valueF(), 0.8) << "the knob";
    EXPECT_LT(at(22).valueF(), 0.5);
    control.setChecked(true);
    EXPECT_GT(at(21).blueF(), 0.9);
    EXPECT_NEAR(at(8).greenF(), 0.94, 0.02);
    EXPECT_NEAR(at(8).blueF(), 0.71, 0.02);
    EXPECT_LT(at(8).redF(), 0.05);
}

TEST(TextField, offersToClearWhatItHolds)
{
    TextField field(QStringLiteral("Search actions..."), Symbol(u"magnifyingglass"));
    field.resize(300, field.sizeHint().height());
    field.show();
    auto* const clear = field.findChild<OutlinedButton*>();
    EXPECT_FALSE(clear->isVisible());
    QTest::keyClicks(&field, QStringLiteral("mute"));
    EXPECT_EQ(field.text(), QStringLiteral("mute"));
    EXPECT_TRUE(clear->isVisible());
    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_EQ(field.text(), QString());
    EXPECT_FALSE(clear->isVisible());
}

TEST(TextField, canBeReadAndWrittenByAssistiveTechnology)
{
    TextField field(QStringLiteral("Search actions..."));
    EXPECT_EQ(accessible(field).role(), QAccessible::EditableText);
    EXPECT_EQ(accessible(field).text(QAccessible::Name), QStringLiteral("Search actions..."));
    ASSERT_NE(accessible(field).editableTextInterface(), nullptr);
    accessible(field).editableTextInterface()->insertText(0, QStringLiteral("mute"));
    EXPECT_EQ(field.text(), QStringLiteral("mute"));
}

} // namespace tarvin
