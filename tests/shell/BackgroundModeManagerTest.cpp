#include "shell/support/ShellDesktop.h"
#include "support/SignalCount.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Manager = BackgroundModeManager;

class BackgroundModeManagerTest : public testing::Test
{
protected:
    ShellDesktop desktop;
};

// ---- Creation ----

TEST_F(BackgroundModeManagerTest, withoutSettingsItOpensAtLoginAndHidesFromTheDock)
{
    const Manager& manager = desktop.manager();
    EXPECT_TRUE(manager.openAtStartup());
    EXPECT_EQ(manager.startupDockMode(), StartupDockMode::hideFromDock);
    EXPECT_EQ(manager.behavior(), BackgroundBehavior::menuBarOnly);
    EXPECT_TRUE(manager.isBackgroundModeEnabled());
    EXPECT_TRUE(manager.closeWindowHidesToBackground());
    EXPECT_TRUE(manager.zeroPowerIdleEngine());
    EXPECT_TRUE(manager.showMenuBarIcon());
    EXPECT_TRUE(manager.isGlobalSummonShortcutEnabled());
    EXPECT_FALSE(manager.isStudioWindowVisible());
    EXPECT_EQ(manager.mainWindow(), nullptr);
}

TEST_F(BackgroundModeManagerTest, whatIsStoredIsTaken)
{
    desktop.store(u"Tarvin_OpenAtStartup", false);
    desktop.store(u"Tarvin_StartupDockMode", u"showInDock"_qs);
    desktop.store(u"Tarvin_BackgroundModeEnabled", true);
    desktop.store(u"Tarvin_BackgroundBehavior", u"stealthLowPower"_qs);
    EXPECT_FALSE(desktop.manager().openAtStartup());
    EXPECT_EQ(desktop.manager().startupDockMode(), StartupDockMode::showInDock);
    EXPECT_EQ(desktop.manager().behavior(), BackgroundBehavior::stealthLowPower);
}

TEST_F(BackgroundModeManagerTest, creationWritesNothingBackAndRegistersNothing)
{
    desktop.store(u"Tarvin_BackgroundModeEnabled", false);
    desktop.manager();
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"policy regular"_qs));
    EXPECT_TRUE(desktop.stored(u"Tarvin_StartupDockMode").isUndefined());
}

TEST_F(BackgroundModeManagerTest, anUnknownModeFallsBackToTheOlderSetting)
{
    desktop.store(u"Tarvin_StartupDockMode", u"somewhere"_qs);
    desktop.store(u"Tarvin_BackgroundModeEnabled", false);
    EXPECT_EQ(desktop.manager().startupDockMode(), StartupDockMode::showInDock);
}

TEST_F(BackgroundModeManagerTest, theOlderSettingAloneIsTakenAndTheNewOneWrittenAtTheNextChangeOnly)
{
    desktop.store(u"Tarvin_BackgroundModeEnabled", true);
    EXPECT_EQ(desktop.manager().startupDockMode(), StartupDockMode::hideFromDock);
    EXPECT_TRUE(desktop.stored(u"Tarvin_StartupDockMode").isUndefined());
    desktop.manager().setBehavior(BackgroundBehavior::stealthLowPower);
    EXPECT_TRUE(desktop.stored(u"Tarvin_StartupDockMode").isUndefined());
    desktop.manager().setStartupDockMode(StartupDockMode::showInDock);
    EXPECT_EQ(desktop.stored(u"Tarvin_StartupDockMode"), QJsonValue(u"showInDock"_qs));
    EXPECT_EQ(desktop.stored(u"Tarvin_BackgroundModeEnabled"), QJsonValue(false));
}

TEST_F(BackgroundModeManagerTest, unknownTextsWithoutAnOlderSettingAreTheDefaults)
{
    desktop.store(u"Tarvin_StartupDockMode", u"somewhere"_qs);
    desktop.store(u"Tarvin_BackgroundBehavior", u"loud"_qs);
    EXPECT_EQ(desktop.manager().startupDockMode(), StartupDockMode::hideFromDock);
    EXPECT_EQ(desktop.manager().behavior(), BackgroundBehavior::menuBarOnly);
}

TEST_F(BackgroundModeManagerTest, creationTakesTheIconOutOfTheDock)
{
    desktop.platform.appShell().setPolicySilently(ActivationPolicy::regular);
    desktop.manager();
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"policy accessory"_qs));
}

// ---- Changes ----

TEST_F(BackgroundModeManagerTest, openAtStartupIsStoredAndRegisteredAtEachAssignment)
{
    Manager& manager = desktop.manager();
    const SignalCount changes(manager, &Manager::openAtStartupChanged);
    desktop.platform.loginItem().setEnabled(true);
    std::ignore = desktop.whatHappened();
    manager.setOpenAtStartup(false);
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"set Tarvin_OpenAtStartup false"_qs, u"login item disabled"_qs, u"script disable"_qs));
    manager.setOpenAtStartup(true);
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"set Tarvin_OpenAtStartup true"_qs, u"login item enabled"_qs, u"script enable"_qs));
    manager.setOpenAtStartup(true);
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"set Tarvin_OpenAtStartup true"_qs, u"script enable"_qs));
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(BackgroundModeManagerTest, theDockModeIsStoredUnderBothKeysAndApplied)
{
    Manager& manager = desktop.manager();
    const SignalCount changes(manager, &Manager::startupDockModeChanged);
    manager.setStartupDockMode(StartupDockMode::showInDock);
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"set Tarvin_StartupDockMode showInDock"_qs, u"set Tarvin_BackgroundModeEnabled false"_qs,
            u"policy regular"_qs));
    manager.setStartupDockMode(StartupDockMode::hideFromDock);
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"set Tarvin_StartupDockMode hideFromDock"_qs, u"set Tarvin_BackgroundModeEnabled true"_qs,
            u"policy accessory"_qs));
    manager.setStartupDockMode(StartupDockMode::hideFromDock);
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"set Tarvin_StartupDockMode hideFromDock"_qs, u"set Tarvin_BackgroundModeEnabled true"_qs));
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(BackgroundModeManagerTest, theBackgroundModeIsTheDockModeInAnotherWord)
{
    Manager& manager = desktop.manager();
    manager.setBackgroundModeEnabled(false);
    EXPECT_EQ(manager.startupDockMode(), StartupDockMode::showInDock);
    EXPECT_FALSE(manager.isBackgroundModeEnabled());
    EXPECT_EQ(desktop.stored(Manager::startupDockModeKey), QJsonValue(u"showInDock"_qs));
    manager.setBackgroundModeEnabled(true);
    EXPECT_EQ(manager.startupDockMode(), StartupDockMode::hideFromDock);
    EXPECT_EQ(desktop.policy(), ActivationPolicy::accessory);
}

TEST_F(BackgroundModeManagerTest, theBehaviorIsStoredAndNeverChangesThePolicy)
{
    Manager& manager = desktop.manager();
    const SignalCount changes(manager, &Manager::behaviorChanged);
    for (const StartupDockMode mode : allStartupDockModes) {
        manager.setStartupDockMode(mode);
        std::ignore = desktop.whatHappened();
        for (const BackgroundBehavior behavior : {BackgroundBehavior::hideOnWindowClose,
                 BackgroundBehavior::stealthLowPower, BackgroundBehavior::menuBarOnly}) {
            manager.setBehavior(behavior);
            EXPECT_THAT(desktop.whatHappened(),
                ElementsAre(u"set Tarvin_BackgroundBehavior "_qs + rawValue(behavior).toString()));
        }
    }
    EXPECT_EQ(changes.count(), 6);
}

TEST_F(BackgroundModeManagerTest, theFieldsWithoutEffectAreHeldAndPublishedButNotStored)
{
    struct Field
    {
        bool (Manager::*value)() const;
        void (Manager::*setValue)(bool);
        void (Manager::*changed)();
    };
    const Field fields[] = {
        {&Manager::closeWindowHidesToBackground, &Manager::setCloseWindowHidesToBackground,
            &Manager::closeWindowHidesToBackgroundChanged},
        {&Manager::zeroPowerIdleEngine, &Manager::setZeroPowerIdleEngine, &Manager::zeroPowerIdleEngineChanged},
        {&Manager::showMenuBarIcon, &Manager::setShowMenuBarIcon, &Manager::showMenuBarIconChanged},
        {&Manager::isGlobalSummonShortcutEnabled, &Manager::setGlobalSummonShortcutEnabled,
            &Manager::globalSummonShortcutEnabledChanged},
    };
    Manager& manager = desktop.manager();
    for (const Field& field : fields) {
        const SignalCount changes(manager, field.changed);
        (manager.*field.setValue)(false);
        EXPECT_FALSE((manager.*field.value)());
        (manager.*field.setValue)(false);
        EXPECT_EQ(changes.count(), 1);
        (manager.*field.setValue)(true);
        EXPECT_TRUE((manager.*field.value)());
        EXPECT_EQ(changes.count(), 2);
    }
    EXPECT_THAT(desktop.whatHappened(), IsEmpty());
}

TEST_F(BackgroundModeManagerTest, theNamesOfTheSettingsNeverChange)
{
    EXPECT_EQ(Manager::openAtStartupKey, u"Tarvin_OpenAtStartup");
    EXPECT_EQ(Manager::startupDockModeKey, u"Tarvin_StartupDockMode");
    EXPECT_EQ(Manager::backgroundModeEnabledKey, u"Tarvin_BackgroundModeEnabled");
    EXPECT_EQ(Manager::backgroundBehaviorKey, u"Tarvin_BackgroundBehavior");
    EXPECT_EQ(Manager::closeWindowHidesKey, u"Tarvin_CloseWindowHidesToBackground");
    EXPECT_EQ(Manager::zeroPowerIdleKey, u"Tarvin_ZeroPowerIdleEngine");
    EXPECT_EQ(Manager::showMenuBarIconKey, u"Tarvin_ShowMenuBarIcon");
    EXPECT_EQ(Manager::globalSummonShortcutEnabledKey, u"Tarvin_GlobalSummonShortcutEnabled");
}

// ---- The Dock rule ----

TEST_F(BackgroundModeManagerTest, hiddenFromTheDockTheIconIsThereWhileTheStudioIsOpen)
{
    desktop.addStudio();
    Manager& manager = desktop.manager();
    EXPECT_EQ(desktop.policy(), ActivationPolicy::accessory);
    manager.openStudioWindow();
    EXPECT_EQ(desktop.policy(), ActivationPolicy::regular);
    manager.hideStudioWindow();
    EXPECT_EQ(desktop.policy(), ActivationPolicy::accessory);
}

TEST_F(BackgroundModeManagerTest, shownInTheDockTheIconIsAlwaysThere)
{
    desktop.addStudio();
    desktop.store(Manager::startupDockModeKey, u"showInDock"_qs);
    Manager& manager = desktop.manager();
    EXPECT_EQ(desktop.policy(), ActivationPolicy::regular);
    std::ignore = desktop.whatHappened();
    manager.openStudioWindow();
    manager.hideStudioWindow();
    EXPECT_EQ(desktop.policy(), ActivationPolicy::regular);
    EXPECT_THAT(desktop.whatHappened(),
        testing::Not(
            testing::Contains(testing::Truly([](const QString& line) { return line.startsWith(u"policy"); }))));
}

TEST_F(BackgroundModeManagerTest, sayingThatTheStudioIsOpenMovesNoWindow)
{
    desktop.addStudio();
    Manager& manager = desktop.manager();
    const SignalCount changes(manager, &Manager::studioWindowVisibleChanged);
    std::ignore = desktop.whatHappened();
    manager.setStudioWindowVisible(true);
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"policy regular"_qs));
    manager.setStudioWindowVisible(true);
    EXPECT_THAT(desktop.whatHappened(), IsEmpty());
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(BackgroundModeManagerTest, theInitialPolicyIsTheDockRuleAndTheRegistration)
{
    Manager& manager = desktop.manager();
    desktop.platform.appShell().setPolicySilently(ActivationPolicy::regular);
    std::ignore = desktop.whatHappened();
    manager.applyInitialPolicy();
    EXPECT_THAT(
        desktop.whatHappened(), ElementsAre(u"policy accessory"_qs, u"login item enabled"_qs, u"script enable"_qs));
}

// ---- How the program was started ----

TEST_F(BackgroundModeManagerTest, aLaunchWithinTwoMinutesOfTheSystemsStartCountsAsOneAtLogin)
{
    const Manager& manager = desktop.manager();
    desktop.platform.scheduler().setUptime(119.0);
    EXPECT_TRUE(manager.wasLaunchedAtStartupOrLogin());
    desktop.platform.scheduler().setUptime(119.999);
    EXPECT_TRUE(manager.wasLaunchedAtStartupOrLogin());
    desktop.platform.scheduler().setUptime(120.0);
    EXPECT_FALSE(manager.wasLaunchedAtStartupOrLogin());
}

TEST_F(BackgroundModeManagerTest, anArgumentMarksALaunchAtLogin)
{
    const Manager& manager = desktop.manager();
    for (const QString& marker : {u"--startup"_qs, u"--background"_qs, u"-loginItem"_qs}) {
        desktop.platform.processInfo().setArguments({u"/apps/tarvin"_qs, u"--other"_qs, marker});
        EXPECT_TRUE(manager.wasLaunchedAtStartupOrLogin());
    }
    for (const QString& other : {u"--startup=yes"_qs, u"-startup"_qs, u"--loginItem"_qs, u"--Background"_qs}) {
        desktop.platform.processInfo().setArguments({u"/apps/tarvin"_qs, other});
        EXPECT_FALSE(manager.wasLaunchedAtStartupOrLogin());
    }
}

TEST_F(BackgroundModeManagerTest, theSystemsWordMarksALaunchAtLogin)
{
    EXPECT_FALSE(desktop.manager().wasLaunchedAtStartupOrLogin());
    desktop.platform.processInfo().setStartedAsLoginItem(true);
    EXPECT_TRUE(desktop.manager().wasLaunchedAtStartupOrLogin());
}

// ---- Back to the defaults ----

TEST_F(BackgroundModeManagerTest, resettingForgetsTheSettingsAndRegistersAgain)
{
    desktop.store(Manager::openAtStartupKey, false);
    desktop.store(Manager::startupDockModeKey, u"showInDock"_qs);
    desktop.store(Manager::backgroundBehaviorKey, u"stealthLowPower"_qs);
    Manager& manager = desktop.manager();
    std::ignore = desktop.whatHappened();
    manager.resetToFactoryDefaults();
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"set Tarvin_OpenAtStartup true"_qs, u"login item enabled"_qs,
            u"set Tarvin_StartupDockMode hideFromDock"_qs, u"set Tarvin_BackgroundModeEnabled true"_qs,
            u"policy accessory"_qs, u"set Tarvin_BackgroundBehavior menuBarOnly"_qs, u"remove Tarvin_OpenAtStartup"_qs,
            u"remove Tarvin_StartupDockMode"_qs, u"remove Tarvin_BackgroundModeEnabled"_qs,
            u"remove Tarvin_BackgroundBehavior"_qs, u"script enable"_qs, u"script enable"_qs));
    EXPECT_TRUE(manager.openAtStartup());
    EXPECT_EQ(manager.startupDockMode(), StartupDockMode::hideFromDock);
    EXPECT_EQ(manager.behavior(), BackgroundBehavior::menuBarOnly);
}

} // namespace

} // namespace tarvin::test
