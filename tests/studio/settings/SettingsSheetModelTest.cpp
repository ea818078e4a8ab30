#include "studio/settings/SettingsSheetModel.h"

#include "interception/FnKeyModeHelper.h"
#include "interception/RuntimeLog.h"
#include "profiles/ProfileDesktop.h"
#include "shell/BackgroundModeManager.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

namespace tarvin {

namespace {

class SettingsSheet : public ProfileDesktop
{
protected:
    /// How often the system's function key mode was restored.
    [[nodiscard]] std::size_t restorations() const
    {
        return desktop.effects().count<simulated::SystemPreferenceSet>() - m_earlierRestorations;
    }

    [[nodiscard]] static StatusIndicator indicatorOf(bool master, bool functionKeys, bool otherKeys)
    {
        return statusIndicator({master, functionKeys, otherKeys});
    }

    RuntimeLog log{desktop.files(), desktop.scheduler()};
    BackgroundModeManager background{desktop.appShell(), desktop.preferences(), desktop.loginItem(), desktop.scripts(),
        desktop.scheduler(), desktop.processInfo(), desktop.workspace(), log};
    FnKeyModeHelper functionKeyMode{desktop.functionKeySetting(), desktop.console()};
    int closings = 0;
    SettingsSheetModel sheet{SettingsSheetModel::Collaborators{
        .background = background, .profile = profile(), .functionKeyMode = functionKeyMode, .close = [this] {
            ++closings;
        }}};

private:
    const std::size_t m_earlierRestorations = desktop.effects().count<simulated::SystemPreferenceSet>();
};

TEST_F(SettingsSheet, turningTheMasterSwitchOffGreysOutBothPortions)
{
    sheet.setSwitch(SwitchCard::master, false);
    EXPECT_FALSE(profile().isInterceptionEnabled());
    for (const SwitchCard card : {SwitchCard::functionKeys, SwitchCard::otherKeys}) {
        const SwitchCardState state = sheet.switchCard(card);
        EXPECT_TRUE(state.isOn);
        EXPECT_FALSE(state.isEnabled);
        EXPECT_FALSE(state.isActive);
        EXPECT_TRUE(state.hasMasterOffChip);
        EXPECT_DOUBLE_EQ(state.opacity, 0.45);
    }
    EXPECT_EQ(sheet.indicator(), StatusIndicator::off);
    EXPECT_EQ(sheet.switchCard(SwitchCard::master).chip, u"PAUSED");
    EXPECT_EQ(sheet.switchCard(SwitchCard::master).icon, u"bolt.slash.fill");
}

TEST_F(SettingsSheet, theMasterSwitchIsOnAtFirst)
{
    const SwitchCardState master = sheet.switchCard(SwitchCard::master);
    EXPECT_TRUE(master.isOn);
    EXPECT_TRUE(master.isActive);
    EXPECT_EQ(master.chip, u"MASTER ACTIVE");
    EXPECT_EQ(master.icon, u"bolt.fill");
    EXPECT_FALSE(sheet.switchCard(SwitchCard::otherKeys).hasMasterOffChip);
    EXPECT_DOUBLE_EQ(sheet.switchCard(SwitchCard::otherKeys).opacity, 1.0);
}

TEST_F(SettingsSheet, turningTheFunctionKeysOffRestoresTheFunctionKeyMode)
{
    sheet.setSwitch(SwitchCard::functionKeys, false);
    EXPECT_FALSE(profile().isFunctionKeysEnabled());
    EXPECT_EQ(restorations(), 1U);
    sheet.setSwitch(SwitchCard::functionKeys, true);
    EXPECT_EQ(restorations(), 1U);
}

TEST_F(SettingsSheet, turningTheMasterSwitchOffRestoresTheFunctionKeyMode)
{
    sheet.setSwitch(SwitchCard::master, false);
    EXPECT_EQ(restorations(), 1U);
    sheet.setSwitch(SwitchCard::master, true);
    EXPECT_EQ(restorations(), 1U);
}

TEST_F(SettingsSheet, turningTheOtherKeysOffLeavesTheFunctionKeyModeAlone)
{
    sheet.setSwitch(SwitchCard::otherKeys, false);
    EXPECT_FALSE(profile().isOtherKeysEnabled());
    EXPECT_EQ(restorations(), 0U);
}

TEST_F(SettingsSheet, aDisabledCardTakesNoClick)
{
    sheet.setSwitch(SwitchCard::master, false);
    sheet.setSwitch(SwitchCard::otherKeys, false);
    EXPECT_TRUE(profile().isOtherKeysEnabled());
}

TEST_F(SettingsSheet, chipsCountTheCustomisedKeys)
{
    profile().setConfig(typing(u"a"_qs), FKey::f5);
    profile().setConfig(typing(u"a"_qs), FKey::f6);
    profile().setConfig(typing(u"a"_qs), FKey::f13);
    EXPECT_EQ(sheet.switchCard(SwitchCard::functionKeys).chip, u"2 Customized");
    EXPECT_EQ(sheet.switchCard(SwitchCard::otherKeys).chip, u"1 Customized");
}

TEST_F(SettingsSheet, withoutOpeningAtStartupOnlyTheFirstCardIsThere)
{
    EXPECT_TRUE(sheet.showsStartupDockBehavior());
    sheet.setOpenAtStartup(false);
    EXPECT_FALSE(sheet.showsStartupDockBehavior());
    EXPECT_FALSE(background.openAtStartup());
}

TEST_F(SettingsSheet, theChipOfTheStartupCardNamesTheFactorysChoice)
{
    sheet.setOpenAtStartup(false);
    EXPECT_EQ(openAtStartupChip, u"Default: ON");
}

TEST_F(SettingsSheet, theSummaryOfTheSecondTabSpeaksOfTheDock)
{
    sheet.setSwitch(SwitchCard::master, false);
    EXPECT_EQ(sheet.summaryText(), u"Tarvin Deactivated • Apple Factory Defaults Active");
    sheet.selectTab(SettingsTab::backgroundAndStartup);
    EXPECT_EQ(sheet.summaryText(), u"Running in Background (Hidden from Dock)");
    sheet.setStartupDockMode(StartupDockMode::showInDock);
    EXPECT_EQ(sheet.summaryText(), u"Standard Dock Mode Active");
    EXPECT_EQ(background.startupDockMode(), StartupDockMode::showInDock);
}

TEST_F(SettingsSheet, theSummaryOfTheFirstTabSpeaksOfTheSwitches)
{
    EXPECT_EQ(sheet.summaryText(), u"All Custom Keys Active (F1–F12 + Other Keys)");
    sheet.setSwitch(SwitchCard::otherKeys, false);
    EXPECT_EQ(sheet.summaryText(), u"Function Keys (F1–F12) Active • Other Keys Deactivated");
    sheet.setSwitch(SwitchCard::functionKeys, false);
    EXPECT_EQ(sheet.summaryText(), u"All Portions Deactivated • Apple Factory Defaults Active");
    sheet.setSwitch(SwitchCard::otherKeys, true);
    EXPECT_EQ(sheet.summaryText(), u"Other Keys Active • Function Keys (F1–F12) Deactivated");
}

TEST_F(SettingsSheet, theDotIsGrayWhenOffAndOrangeWithoutPortions)
{
    EXPECT_EQ(indicatorOf(true, true, true), StatusIndicator::active);
    EXPECT_EQ(indicatorOf(true, false, true), StatusIndicator::active);
    EXPECT_EQ(indicatorOf(true, true, false), StatusIndicator::active);
    EXPECT_EQ(indicatorOf(true, false, false), StatusIndicator::allPortionsOff);
    EXPECT_EQ(indicatorOf(false, true, true), StatusIndicator::off);
    EXPECT_EQ(indicatorOf(false, false, false), StatusIndicator::off);
}

TEST_F(SettingsSheet, eachTabHasAHeaderOfItsOwn)
{
    EXPECT_EQ(sheet.selectedTab(), SettingsTab::keyboardFlexibility);
    EXPECT_EQ(rowOf(SettingsTab::keyboardFlexibility).headerTitle, u"Keyboard Flexibility & Controls");
    EXPECT_EQ(rowOf(SettingsTab::backgroundAndStartup).headerIcon, u"powersleep");
}

TEST_F(SettingsSheet, theSheetFollowsWhatOthersChange)
{
    const test::SignalCount changes(sheet, &SettingsSheetModel::changed);
    profile().setOtherKeysEnabled(false);
    background.setStartupDockMode(StartupDockMode::showInDock);
    sheet.selectTab(SettingsTab::backgroundAndStartup);
    sheet.selectTab(SettingsTab::backgroundAndStartup);
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(SettingsSheet, doneOnlyCloses)
{
    const std::size_t before = desktop.effects().effects().size();
    sheet.close();
    EXPECT_EQ(closings, 1);
    EXPECT_EQ(desktop.effects().effects().size(), before);
}

} // namespace

} // namespace tarvin
