#include "studio/keyboard/KeyButton.h"
#include "studio/keyboard/MacBookAirKeyboardView.h"
#include "studio/support/StudioDesktop.h"

#include "support/QtPrinters.h"

#include <QAccessible>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvin {

namespace {

/// Notes which part of a widget is painted.
class PaintWatcher : public QObject
{
public:
    explicit PaintWatcher(QWidget& widget) { widget.installEventFilter(this); }

    QRegion painted;
    int count = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent*>(event)->region();
            ++count;
        }
        return false;
    }
};

class KeyboardView : public testing::Test
{
protected:
    KeyboardView()
    {
        view.resize(1260, MacBookAirKeyboardView::heightForViewWidth(1260));
        view.show();
        QTest::qWait(0);
    }

    static std::size_t indexOf(QStringView id)
    {
        for (std::size_t index = 0; index < keycapCount; ++index) {
            if (keycaps[index].id == id)
                return index;
        }
        throw std::invalid_argument("no such keycap");
    }
    void click(QStringView id) { QTest::mouseClick(&view.button(indexOf(id)), Qt::LeftButton); }
    [[nodiscard]] const KeycapState& state(QStringView id) const { return view.drawnKey(indexOf(id)).state(); }

    test::StudioDesktop desktop;
    MacBookAirKeyboardView view{desktop.profile, desktop.tactileEngine};
};

} // namespace

TEST_F(KeyboardView, aClickOnALiveKeySelectsItAndAnotherClickClearsIt)
{
    QSignalSpy changes(&view, &MacBookAirKeyboardView::selectedKeyChanged);
    click(u"F5");
    EXPECT_EQ(view.selectedKey(), FKey::f5);
    EXPECT_TRUE(state(u"F5").isSelected);
    click(u"F5");
    EXPECT_EQ(view.selectedKey(), std::nullopt);
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(KeyboardView, aClickOnAnotherLiveKeyMovesTheSelection)
{
    click(u"F5");
    click(u"RightOption");
    EXPECT_EQ(view.selectedKey(), FKey::rightOption);
    EXPECT_FALSE(state(u"F5").isSelected);
}

TEST_F(KeyboardView, aClickOnAStandardKeyLeavesTheSelectionAndIsFelt)
{
    click(u"F5");
    click(u"control");
    EXPECT_EQ(view.selectedKey(), FKey::f5);
    EXPECT_EQ(desktop.tactileEngine.pressedKeyId(), u"control"_qs);
    EXPECT_TRUE(state(u"control").isDepressed);
    EXPECT_FALSE(state(u"F5").isDepressed);
}

TEST_F(KeyboardView, everyClickIsPassedOnUnderTheNameOfTheKey)
{
    click(u"caps lock");
    EXPECT_EQ(desktop.tactileEngine.pressedKeyId(), u"caps lock"_qs);
    click(u"F7");
    EXPECT_EQ(desktop.tactileEngine.pressedKeyId(), u"F7"_qs);
}

TEST_F(KeyboardView, aPhysicalPressMovesTheDrawnKeyAndItsReleaseMovesItBack)
{
    desktop.tactileEngine.triggerKeyPress(u"CapsLock"_qs, PressSound::silent);
    EXPECT_TRUE(state(u"caps lock").isDepressed);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.drawnKey(indexOf(u"caps lock")).look().faceShift == 1.6; }));
    desktop.tactileEngine.releaseKey(u"CapsLock"_qs);
    EXPECT_FALSE(state(u"caps lock").isDepressed);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.drawnKey(indexOf(u"caps lock")).look().faceShift == 0; }));
}

TEST_F(KeyboardView, thePointerLightsTheKeyUnderIt)
{
    QHoverEvent enter(QEvent::HoverEnter, QPointF(5, 5), QPointF(5, 5), QPointF(-1, -1));
    QHoverEvent leave(QEvent::HoverLeave, QPointF(-1, -1), QPointF(-1, -1), QPointF(5, 5));
    QCoreApplication::sendEvent(&view.button(indexOf(u"F5")), &enter);
    EXPECT_TRUE(state(u"F5").isHovered);
    QCoreApplication::sendEvent(&view.button(indexOf(u"F6")), &enter);
    EXPECT_TRUE(state(u"F6").isHovered);
    EXPECT_FALSE(state(u"F5").isHovered);
    QCoreApplication::sendEvent(&view.button(indexOf(u"F5")), &leave);
    EXPECT_FALSE(state(u"F6").isHovered) << "to leave one key clears the light, whichever key has it by then";
}

TEST_F(KeyboardView, aMappingTurnsTheKeyAndTellsItsTexts)
{
    desktop.profile.setAction(KeyAction::clipboardHistory, FKey::f5);
    EXPECT_TRUE(state(u"F5").isCustomized);
    EXPECT_EQ(view.button(indexOf(u"F5")).accessibleName(), u"F5, customised: Clipboard History"_qs);
    EXPECT_EQ(view.button(indexOf(u"F5")).toolTip(), u"F5 • Customized: Clipboard History (Mint Teal)"_qs);
    EXPECT_EQ(view.drawnKey(indexOf(u"F5")).content().icon, Symbol(u"doc.on.clipboard.fill"));
    desktop.profile.resetToDefault(FKey::f5);
    EXPECT_FALSE(state(u"F5").isCustomized);
    EXPECT_EQ(view.drawnKey(indexOf(u"F5")).content().icon, Symbol(u"mic.fill"));
}

TEST_F(KeyboardView, aPausedKeyIsOrangeEvenWhileTheOtherGroupIsActive)
{
    desktop.profile.setAction(KeyAction::clipboardHistory, FKey::f5);
    desktop.profile.setAction(KeyAction::clipboardHistory, FKey::capsLock);
    desktop.profile.setFunctionKeysEnabled(false);
    EXPECT_FALSE(state(u"F5").isActive);
    EXPECT_TRUE(state(u"caps lock").isActive);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.drawnKey(indexOf(u"F5")).look().icon == keyAccent(false); }));
    EXPECT_EQ(view.button(indexOf(u"F5")).toolTip(),
        u"F5 • Custom (Paused): Clipboard History — Function keys deactivated"_qs);
}

TEST_F(KeyboardView, aSelectedCustomisedKeyKeepsTheTooltipOfACustomisedOne)
{
    desktop.profile.setAction(KeyAction::clipboardHistory, FKey::f5);
    view.setSelectedKey(FKey::f5);
    EXPECT_EQ(view.button(indexOf(u"F5")).toolTip(), u"F5 • Customized: Clipboard History (Mint Teal)"_qs);
    EXPECT_EQ(keycapLook(keycaps[indexOf(u"F5")], state(u"F5")).face.top, (Colour{0.0, 0.94, 0.71}));
}

TEST_F(KeyboardView, tabReachesOneKeyAndTheArrowsLeadOn)
{
    QWidget* const first = &view.button(indexOf(u"F1"));
    EXPECT_EQ(first->focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(view.button(indexOf(u"F2")).focusPolicy(), Qt::NoFocus);
    first->setFocus(Qt::TabFocusReason);
    QTest::keyClick(first, Qt::Key_Right);
    EXPECT_EQ(QApplication::focusWidget(), &view.button(indexOf(u"F2")));
    EXPECT_EQ(first->focusPolicy(), Qt::NoFocus);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &view.button(indexOf(u"caps lock")));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(view.selectedKey(), FKey::capsLock);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(view.selectedKey(), std::nullopt);
}

TEST_F(KeyboardView, assistiveTechnologyFindsPressesAndReadsTheKeys)
{
    QAccessibleInterface* const key = QAccessible::queryAccessibleInterface(&view.button(indexOf(u"F5")));
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(key->role(), QAccessible::Button);
    EXPECT_EQ(key->text(QAccessible::Name), u"F5, customisable: Dictation"_qs);
    EXPECT_TRUE(key->state().selectable);
    EXPECT_FALSE(key->state().selected);
    ASSERT_NE(key->actionInterface(), nullptr);
    key->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(view.selectedKey(), FKey::f5);
    EXPECT_TRUE(key->state().selected);
    QAccessibleInterface* const letter = QAccessible::queryAccessibleInterface(&view.button(indexOf(u"Q")));
    EXPECT_EQ(letter->text(QAccessible::Name), u"Q"_qs);
    EXPECT_FALSE(letter->state().selectable);
}

TEST_F(KeyboardView, aPressPaintsOnlyTheKeyAndItsGlow)
{
    QTest::qWait(50);
    PaintWatcher watcher(view);
    desktop.tactileEngine.triggerKeyPress(u"Q"_qs, PressSound::silent);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.drawnKey(indexOf(u"Q")).look().faceShift == 1.6; }));
    QTest::qWait(20);
    EXPECT_GT(watcher.count, 0);
    const QRect painted = watcher.painted.boundingRect();
    EXPECT_TRUE(painted.contains(view.button(indexOf(u"Q")).geometry()));
    EXPECT_LT(painted.width(), view.button(indexOf(u"Q")).width() + 60);
    EXPECT_LT(painted.height(), view.button(indexOf(u"Q")).height() + 60);
}

TEST_F(KeyboardView, paintsNothingWhileNothingChanges)
{
    click(u"F5");
    QTest::qWait(900);
    PaintWatcher watcher(view);
    QTest::qWait(300);
    EXPECT_EQ(watcher.count, 0);
}

TEST_F(KeyboardView, followsTheWidthOfItsContainerButNotItsJitter)
{
    EXPECT_EQ(view.containerWidth(), 1204);
    view.resize(1261, view.height());
    EXPECT_EQ(view.containerWidth(), 1204);
    view.resize(1300, view.height());
    EXPECT_EQ(view.containerWidth(), 1244);
    view.resize(300, view.height());
    EXPECT_EQ(view.containerWidth(), 1244);
}

} // namespace tarvin
