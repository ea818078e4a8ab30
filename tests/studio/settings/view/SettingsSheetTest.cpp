#include "studio/settings/view/SettingsSheet.h"

#include "app/core/StudioEditing.h"
#include "shell/BackgroundModeManager.h"
#include "studio/settings/view/CrossFade.h"
#include "studio/settings/view/KeyboardFlexibilitySection.h"
#include "studio/settings/view/SettingsCard.h"
#include "studio/settings/view/SettingsTabBar.h"
#include "studio/settings/view/SettingsTabButton.h"
#include "studio/settings/view/StartupDockRow.h"
#include "studio/settings/view/StartupDockSection.h"
#include "studio/settings/view/StartupSection.h"
#include "studio/support/StudioDesktop.h"
#include "support/QtPrinters.h"
#include "ui/Sheet.h"
#include "ui/SwitchControl.h"

#include <QAccessible>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

using testing::Contains;
using testing::ElementsAre;

namespace {

QAccessibleInterface& accessible(QWidget& widget)
{
    return *QAccessible::queryAccessibleInterface(&widget);
}

class SettingsSheetView : public testing::Test
{
protected:
    SettingsSheetView()
    {
        desktop.platform.functionKeySetting().setStoredText("1");
        window.resize(700, 650);
        window.show();
        const Sheet* const shown = Sheet::present(
            window, [this](Sheet::Close close) { return new SettingsSheet(editing.settings(std::move(close))); });
        sheet = dynamic_cast<SettingsSheet*>(&shown->panel());
    }

    [[nodiscard]] SettingsCard& card(SwitchCard which) const { return sheet->keyboardFlexibility().card(which); }
    void turn(SwitchCard which) const { card(which).control().click(); }
    void openSecondTab() const { sheet->tabs().button(SettingsTab::backgroundAndStartup).click(); }
    [[nodiscard]] StartupDockRow& row(StartupDockMode mode) const { return sheet->startup().dockBehavior().row(mode); }
    [[nodiscard]] QStringList chips(SwitchCard which) const
    {
        QStringList texts;
        for (const Pill& chip : card(which).state().chips)
            texts += chip.text;
        return texts;
    }
    [[nodiscard]] bool functionKeyModeIsDedicated()
    {
        return desktop.platform.functionKeySetting().storedText().trimmed() != "0";
    }
    [[nodiscard]] QAbstractButton* button(const QString& name) const
    {
        const auto buttons = sheet->findChildren<QAbstractButton*>();
        for (QAbstractButton* const candidate : buttons) {
            if (accessible(*candidate).text(QAccessible::Name) == name)
                return candidate;
        }
        throw std::invalid_argument("no button " + name.toStdString());
    }

    test::StudioDesktop desktop;
    StudioEditing editing{desktop.platform.ports(), desktop.objects};
    QWidget window;
    SettingsSheet* sheet = nullptr;
};

} // namespace

TEST_F(SettingsSheetView, hasItsSizeAndStartsOnTheFirstTab)
{
    EXPECT_EQ(sheet->size(), QSize(560, 530));
    EXPECT_EQ(sheet->headerTitle(), u"Keyboard Flexibility & Controls");
    EXPECT_EQ(sheet->headerSubtitle(), u"Activate or deactivate keyboard portions while preserving customizations");
    EXPECT_TRUE(sheet->keyboardFlexibility().isVisible());
    EXPECT_FALSE(sheet->startup().isVisible());
    EXPECT_EQ(sheet->summary(), u"All Custom Keys Active (F1–F12 + Other Keys)");
    EXPECT_EQ(sheet->indicatorColour(), palette::mintTeal);
}

TEST_F(SettingsSheetView, theSecondTabHasItsOwnHeaderAndSection)
{
    openSecondTab();
    EXPECT_EQ(sheet->headerTitle(), u"Background & Startup Settings");
    EXPECT_EQ(sheet->headerSubtitle(), u"Choose how Tarvin behaves when you start your Mac");
    EXPECT_FALSE(sheet->keyboardFlexibility().isVisible());
    EXPECT_TRUE(sheet->startup().isVisible());
    EXPECT_EQ(accessible(*sheet).text(QAccessible::Name), u"Background & Startup Settings");
    sheet->tabs().button(SettingsTab::keyboardFlexibility).click();
    EXPECT_TRUE(sheet->keyboardFlexibility().isVisible());
}

TEST_F(SettingsSheetView, theChangeOfATabIsPlayedAndEndsByItself)
{
    openSecondTab();
    EXPECT_EQ(sheet->findChildren<CrossFade*>().size(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return sheet->findChildren<CrossFade*>().isEmpty(); }));
    sheet->startup().openAtStartupCard().control().click();
    EXPECT_EQ(sheet->startup().findChildren<CrossFade*>().size(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return sheet->findChildren<CrossFade*>().isEmpty(); }));
}

TEST_F(SettingsSheetView, choosingATabLeavesTheChoiceOfTheDockAlone)
{
    openSecondTab();
    EXPECT_TRUE(row(StartupDockMode::hideFromDock).isChecked());
    EXPECT_TRUE(sheet->tabs().button(SettingsTab::backgroundAndStartup).isChecked());
    row(StartupDockMode::showInDock).click();
    EXPECT_TRUE(sheet->tabs().button(SettingsTab::backgroundAndStartup).isChecked());
    openSecondTab();
    EXPECT_TRUE(sheet->tabs().button(SettingsTab::backgroundAndStartup).isChecked());
}

TEST_F(SettingsSheetView, turningTheMasterSwitchOffGreysOutBothPortions)
{
    turn(SwitchCard::master);
    EXPECT_FALSE(desktop.profile.isInterceptionEnabled());
    EXPECT_FALSE(functionKeyModeIsDedicated());
    EXPECT_THAT(chips(SwitchCard::master), ElementsAre(u"PAUSED"_qs));
    EXPECT_FALSE(card(SwitchCard::master).state().isActive);
    for (const SwitchCard portion : {SwitchCard::functionKeys, SwitchCard::otherKeys}) {
        EXPECT_DOUBLE_EQ(card(portion).state().opacity, 0.45);
        EXPECT_THAT(chips(portion), ElementsAre(u"0 Customized"_qs, u"MASTER OFF"_qs));
        EXPECT_FALSE(card(portion).control().isEnabled());
        EXPECT_TRUE(card(portion).control().isChecked());
        turn(portion);
    }
    EXPECT_TRUE(desktop.profile.isFunctionKeysEnabled()) << "a greyed card takes no click";
    EXPECT_TRUE(desktop.profile.isOtherKeysEnabled());
    EXPECT_EQ(sheet->indicatorColour(), palette::gray.at(0.6));
    EXPECT_EQ(sheet->summary(), u"Tarvin Deactivated • Apple Factory Defaults Active");
    turn(SwitchCard::master);
    EXPECT_THAT(chips(SwitchCard::otherKeys), ElementsAre(u"0 Customized"_qs));
    EXPECT_DOUBLE_EQ(card(SwitchCard::otherKeys).state().opacity, 1);
}

TEST_F(SettingsSheetView, turningTheFunctionKeysOffRestoresTheFunctionKeyMode)
{
    turn(SwitchCard::functionKeys);
    EXPECT_FALSE(desktop.profile.isFunctionKeysEnabled());
    EXPECT_FALSE(functionKeyModeIsDedicated());
    EXPECT_EQ(sheet->summary(), u"Other Keys Active • Function Keys (F1–F12) Deactivated");
}

TEST_F(SettingsSheetView, turningTheOtherKeysOffLeavesTheFunctionKeyModeAlone)
{
    turn(SwitchCard::otherKeys);
    EXPECT_FALSE(desktop.profile.isOtherKeysEnabled());
    EXPECT_TRUE(functionKeyModeIsDedicated());
    EXPECT_FALSE(card(SwitchCard::otherKeys).state().isActive);
    EXPECT_EQ(sheet->summary(), u"Function Keys (F1–F12) Active • Other Keys Deactivated");
    turn(SwitchCard::functionKeys);
    EXPECT_EQ(sheet->indicatorColour(), palette::orange);
    EXPECT_EQ(sheet->summary(), u"All Portions Deactivated • Apple Factory Defaults Active");
}

TEST_F(SettingsSheetView, followsWhatHappensElsewhere)
{
    desktop.profile.setAction(KeyAction::copy, FKey::f5);
    desktop.profile.setAction(KeyAction::copy, FKey::capsLock);
    desktop.profile.setOtherKeysEnabled(false);
    EXPECT_THAT(chips(SwitchCard::functionKeys), ElementsAre(u"1 Customized"_qs));
    EXPECT_FALSE(card(SwitchCard::otherKeys).control().isChecked());
    EXPECT_TRUE(functionKeyModeIsDedicated()) << "following is no wish of the user";
    desktop.profile.setFunctionKeysEnabled(false);
    EXPECT_TRUE(functionKeyModeIsDedicated());
}

TEST_F(SettingsSheetView, withoutOpeningAtStartupOnlyTheFirstCardIsThere)
{
    openSecondTab();
    SettingsCard& open = sheet->startup().openAtStartupCard();
    EXPECT_TRUE(sheet->startup().dockBehavior().isVisible());
    open.control().click();
    EXPECT_FALSE(desktop.objects.backgroundModeManager().openAtStartup());
    EXPECT_FALSE(sheet->startup().dockBehavior().isVisible());
    EXPECT_FALSE(open.state().isActive);
    EXPECT_EQ(open.state().chips.first().text, u"Default: ON") << "it names the factory's choice";
    EXPECT_EQ(open.state().chips.first().textColour, palette::mintTeal);
    open.control().click();
    EXPECT_TRUE(sheet->startup().dockBehavior().isVisible());
}

TEST_F(SettingsSheetView, aRowOfTheDockIsChosenAndTheSummarySpeaksOfIt)
{
    turn(SwitchCard::master);
    openSecondTab();
    EXPECT_EQ(sheet->summary(), u"Running in Background (Hidden from Dock)");
    row(StartupDockMode::showInDock).click();
    EXPECT_EQ(desktop.objects.backgroundModeManager().startupDockMode(), StartupDockMode::showInDock);
    EXPECT_FALSE(row(StartupDockMode::hideFromDock).isChecked());
    EXPECT_EQ(sheet->summary(), u"Standard Dock Mode Active");
    row(StartupDockMode::showInDock).click();
    EXPECT_TRUE(row(StartupDockMode::showInDock).isChecked()) << "what is chosen stays chosen";
}

TEST_F(SettingsSheetView, doneAndTheCrossOnlyClose)
{
    for (const QString& name : {u"Done"_qs, u"Close"_qs}) {
        ASSERT_NE(Sheet::over(window), nullptr);
        button(name)->click();
        EXPECT_EQ(Sheet::over(window), nullptr) << name.toStdString();
        EXPECT_TRUE(desktop.profile.isInterceptionEnabled());
        const Sheet* const next = Sheet::present(
            window, [this](Sheet::Close close) { return new SettingsSheet(editing.settings(std::move(close))); });
        sheet = dynamic_cast<SettingsSheet*>(&next->panel());
    }
}

TEST_F(SettingsSheetView, eachPresentationStartsOnTheFirstTab)
{
    openSecondTab();
    button(u"Done"_qs)->click();
    const Sheet* const next = Sheet::present(
        window, [this](Sheet::Close close) { return new SettingsSheet(editing.settings(std::move(close))); });
    EXPECT_EQ(dynamic_cast<SettingsSheet&>(next->panel()).model().selectedTab(), SettingsTab::keyboardFlexibility);
}

TEST_F(SettingsSheetView, nothingNeedsScrollingAndNothingOverlaps)
{
    for (const SettingsTab tab : {SettingsTab::keyboardFlexibility, SettingsTab::backgroundAndStartup}) {
        sheet->tabs().button(tab).click();
        QTest::qWait(0);
        const auto areas = sheet->findChildren<QScrollArea*>();
        for (const QScrollArea* const area : areas)
            EXPECT_TRUE(area->isHidden() || area->verticalScrollBar()->maximum() == 0);
    }
    const SettingsCard& master = card(SwitchCard::master);
    const SettingsCard& functionKeys = card(SwitchCard::functionKeys);
    EXPECT_EQ(master.size(), QSize(520, 75));
    EXPECT_EQ(functionKeys.y() - master.y(), 85);
    EXPECT_EQ(master.mapTo(sheet, QPoint()).x(), 20);
}

TEST_F(SettingsSheetView, everythingIsReachedAndDoneByTheKeyboard)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(sheet->hasFocus()) << "no control is marked before the user reaches for one";
    QStringList reached;
    for (int step = 0; step < 7; ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached += accessible(*QApplication::focusWidget()).text(QAccessible::Name);
    }
    EXPECT_THAT(reached,
        ElementsAre(u"Close"_qs, u"Keyboard Flexibility"_qs, u"Activate Tarvin App"_qs, u"Function Keys (F1–F12)"_qs,
            u"Rest of Custom Keys"_qs, u"Done"_qs, u"Close"_qs));
    card(SwitchCard::otherKeys).control().setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_FALSE(desktop.profile.isOtherKeysEnabled());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(desktop.profile.isOtherKeysEnabled());
    sheet->tabs().button(SettingsTab::keyboardFlexibility).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_EQ(sheet->model().selectedTab(), SettingsTab::backgroundAndStartup);
    row(StartupDockMode::hideFromDock).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(desktop.objects.backgroundModeManager().startupDockMode(), StartupDockMode::showInDock);
}

TEST_F(SettingsSheetView, tabLeadsToWhatIsChosenHoweverItWasChosen)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    openSecondTab();
    desktop.objects.backgroundModeManager().setStartupDockMode(StartupDockMode::showInDock);
    QStringList reached;
    for (int step = 0; step < 5; ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached += accessible(*QApplication::focusWidget()).text(QAccessible::Name);
    }
    EXPECT_THAT(reached,
        ElementsAre(u"Close"_qs, u"Background & Startup"_qs, u"Open at Startup"_qs, u"Show in Dock"_qs, u"Done"_qs));
}

TEST_F(SettingsSheetView, theKeyboardOfASectionThatGoesIsOnTheTabThatCame)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    card(SwitchCard::otherKeys).control().setFocus();
    openSecondTab();
    EXPECT_TRUE(sheet->tabs().button(SettingsTab::backgroundAndStartup).hasFocus());
}

TEST_F(SettingsSheetView, assistiveTechnologyFindsNamesRolesStatesAndDescriptions)
{
    EXPECT_EQ(accessible(*sheet).role(), QAccessible::Dialog);
    EXPECT_TRUE(accessible(*sheet).state().modal);
    SettingsTabButton& tab = sheet->tabs().button(SettingsTab::backgroundAndStartup);
    EXPECT_EQ(accessible(tab).role(), QAccessible::PageTab);
    EXPECT_EQ(accessible(tab).parent()->role(), QAccessible::PageTabList);
    EXPECT_FALSE(accessible(tab).state().selected);
    accessible(tab).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(accessible(tab).state().selected);
    SwitchControl& functionKeys = card(SwitchCard::functionKeys).control();
    EXPECT_EQ(accessible(functionKeys).text(QAccessible::Name), u"Function Keys (F1–F12)");
    EXPECT_EQ(accessible(functionKeys).role(), QAccessible::CheckBox);
    EXPECT_TRUE(accessible(functionKeys).state().checked);
    EXPECT_TRUE(accessible(functionKeys)
                    .text(QAccessible::Description)
                    .startsWith(u"0 Customized. Toggle and deactivate all function keys"));
    StartupDockRow& show = row(StartupDockMode::showInDock);
    EXPECT_EQ(accessible(show).role(), QAccessible::RadioButton);
    EXPECT_EQ(accessible(show).text(QAccessible::Name), u"Show in Dock");
    EXPECT_EQ(accessible(show).text(QAccessible::Description),
        u"Standard. Tarvin launches on startup and stays visible in your macOS Dock.");
    QStringList texts;
    const auto labels = sheet->findChildren<QLabel*>();
    for (const QLabel* const label : labels)
        texts += label->text();
    EXPECT_THAT(texts, Contains(u"Custom Options Are Always Preserved"_qs));
    EXPECT_THAT(texts, Contains(u"WHAT TARVIN DOES AT STARTUP"_qs));
}

} // namespace tarvin
