#include "studio/picker/view/PickerHeader.h"
#include "studio/picker/view/PickerScene.h"
#include "studio/picker/view/StatusBannerView.h"
#include "ui/OutlinedButton.h"

namespace tarvin {

namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::Not;

class PickerPane : public PickerScene
{
protected:
    /// Of the rule along the banner's lower edge.
    QColor ruleColour() { return colourAt(160, view().banner().geometry().bottom()); }
};

bool isMint(const QColor& colour)
{
    return colour.green() > colour.red() + 20 && colour.green() > colour.blue();
}
bool isOrange(const QColor& colour)
{
    return colour.red() > colour.green() + 15 && colour.green() > colour.blue();
}

TEST_F(PickerPane, theHeaderNamesTheKeyAndCloses)
{
    view(FKey::capsLock);
    EXPECT_THAT(texts(), Contains(u"Actions"_qs));
    EXPECT_THAT(texts(), Contains(displayName(FKey::capsLock).toString()));
    button(u"Close"_qs)->click();
    EXPECT_EQ(closings, 1);
}

TEST_F(PickerPane, itIsAsWideAsItShouldBe)
{
    EXPECT_EQ(view().sizeHint().width(), 330);
    EXPECT_EQ(view().banner().y(), 57);
    EXPECT_EQ(view().list().geometry(), QRect(0, 152, 330, 800 - 152 - 45));
}

TEST_F(PickerPane, aPausedKeySaysWhichPortionIsOffAndWhy)
{
    view();
    EXPECT_THAT(texts(), Not(Contains(u"F1–F12 Off"_qs)));
    profile().setFunctionKeysEnabled(false);
    EXPECT_THAT(texts(), Contains(u"F1–F12 Off"_qs));
    const auto labels = view().findChildren<QLabel*>();
    for (QLabel* const label : labels) {
        if (label->text() == u"F1–F12 Off") {
            EXPECT_EQ(label->parentWidget()->toolTip(), pausedTooltip);
            EXPECT_EQ(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Description), pausedTooltip);
        }
    }
    profile().setFunctionKeysEnabled(true);
    EXPECT_THAT(texts(), Not(Contains(u"F1–F12 Off"_qs)));
}

TEST_F(PickerPane, aPausedKeyOfTheOthersSaysSo)
{
    profile().setOtherKeysEnabled(false);
    view(FKey::capsLock);
    EXPECT_THAT(texts(), Contains(u"Other Off"_qs));
}

TEST_F(PickerPane, theHeaderHoldsTheLongestNameBesideAPausedChip)
{
    profile().setOtherKeysEnabled(false);
    view(FKey::fnGlobe);
    const auto parts = view().header().children();
    for (const QObject* const part : parts) {
        const auto* const widget = qobject_cast<const QWidget*>(part);
        if (!widget || !widget->isVisible())
            continue;
        EXPECT_TRUE(view().header().rect().contains(widget->geometry()));
        EXPECT_GE(widget->height(), 12);
    }
    EXPECT_THAT(texts(), Contains(displayName(FKey::fnGlobe).toString()));
    EXPECT_EQ(view().header().closeButton().geometry().right(), 330 - 18 - 1);
}

TEST_F(PickerPane, theBannerHasItsThreeTones)
{
    view();
    EXPECT_THAT(texts(), Contains(u"Customizable Key (Default Apple Behavior)"_qs));
    EXPECT_THAT(texts(), Contains(u"Choose any action below to customize (turns key Mint Teal)"_qs));
    const QColor factory = ruleColour();
    EXPECT_TRUE(isMint(factory));
    profile().setAction(KeyAction::clipboardHistory, FKey::f5);
    EXPECT_THAT(texts(), Contains(u"Customized • Clipboard History"_qs));
    EXPECT_THAT(texts(), Contains(u"Keycap turns Mint Teal on keyboard studio"_qs));
    EXPECT_TRUE(isMint(ruleColour()));
    EXPECT_GT(ruleColour().green(), factory.green()) << "the rule is stronger";
    profile().setFunctionKeysEnabled(false);
    EXPECT_THAT(texts(), Contains(u"Portion paused in settings • Saved configuration preserved"_qs));
    EXPECT_TRUE(isOrange(ruleColour()));
}

TEST_F(PickerPane, anUncustomisedKeyThatIsPausedHasTheFactorysBanner)
{
    view();
    profile().setFunctionKeysEnabled(false);
    EXPECT_THAT(texts(), Contains(u"Customizable Key (Default Apple Behavior)"_qs));
    EXPECT_TRUE(isMint(ruleColour()));
}

TEST_F(PickerPane, theDotOfTheFactorysBannerIsHollow)
{
    view();
    const int middle = view().banner().y() + 21;
    EXPECT_FALSE(isMint(colourAt(21, middle)));
    profile().setAction(KeyAction::clipboardHistory, FKey::f5);
    EXPECT_TRUE(isMint(colourAt(21, middle)));
}

TEST_F(PickerPane, resetIsThereForCustomisedKeysAlone)
{
    EXPECT_FALSE(view().resetButton().isEnabled());
    view().resetButton().click();
    EXPECT_FALSE(profile().isCustomized(FKey::f5));
    profile().setAction(KeyAction::clipboardHistory, FKey::f5);
    EXPECT_TRUE(view().resetButton().isEnabled());
    view().resetButton().click();
    EXPECT_FALSE(profile().isCustomized(FKey::f5));
    EXPECT_FALSE(view().resetButton().isEnabled());
}

TEST_F(PickerPane, resettingByTheKeyboardDoesNotLoseIt)
{
    profile().setAction(KeyAction::clipboardHistory, FKey::f5);
    view().activateWindow();
    view().resetButton().setFocus();
    QTest::keyClick(&view().resetButton(), Qt::Key_Space);
    EXPECT_FALSE(profile().isCustomized(FKey::f5));
    EXPECT_EQ(view().focusWidget(), &view().searchField());
}

TEST_F(PickerPane, aTestRunsTheRecordAndIsConfirmedForTwoSeconds)
{
    profile().setAction(KeyAction::snapWindowLeft, FKey::f5);
    PickerEntry& selected = (view(), entry(PickerSection::windowManagement, KeyAction::snapWindowLeft));
    ASSERT_NE(selected.testButton(), nullptr);
    EXPECT_EQ(selected.testButton()->text(), u"Test Action Now");
    selected.testButton()->click();
    ASSERT_EQ(executor.performed.size(), 1U);
    EXPECT_EQ(executor.performed.front(), profile().actionConfig(FKey::f5));
    EXPECT_EQ(selected.testButton()->text(), u"✓ Triggered!");
    desktop.scheduler().advance(1999ms);
    EXPECT_EQ(selected.testButton()->text(), u"✓ Triggered!");
    desktop.scheduler().advance(1ms);
    EXPECT_EQ(selected.testButton()->text(), u"Test Action Now");
}

TEST_F(PickerPane, theFirstOfTwoTestsTakesTheConfirmationAway)
{
    profile().setAction(KeyAction::snapWindowLeft, FKey::f5);
    PickerEntry& selected = (view(), entry(PickerSection::windowManagement, KeyAction::snapWindowLeft));
    selected.testButton()->click();
    desktop.scheduler().advance(1500ms);
    selected.testButton()->click();
    EXPECT_EQ(executor.performed.size(), 2U);
    desktop.scheduler().advance(500ms);
    EXPECT_EQ(selected.testButton()->text(), u"Test Action Now");
}

TEST_F(PickerPane, aNewPaneStartsAfresh)
{
    view();
    section(PickerSection::otherActions).header().click();
    search(u"mute"_qs);
    closePicker();
    EXPECT_EQ(picker().searchText(), QString());
    EXPECT_TRUE(picker().isExpanded(PickerSection::otherActions));
}

} // namespace

} // namespace tarvin
