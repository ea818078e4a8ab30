#include "shell/MenuBarExtraView.h"

#include "interception/AccessibilityHelper.h"
#include "interception/FnKeyModeHelper.h"
#include "profiles/KeyProfile.h"
#include "shell/support/ShellDesktop.h"
#include "support/SignalCount.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tarvin::test {

namespace {

using namespace simulated;
using testing::ElementsAre;

const QString masterOff = u"Master Tarvin: OFF (Apple Defaults)"_qs;

/// One entry as a line: "[x] Text" for a toggle, a leading "~" where it is greyed out, "> " before a submenu's entries.
void appendLines(QStringList& lines, const QList<MenuEntry>& entries, const QString& indent)
{
    for (const MenuEntry& entry : entries) {
        QString line = indent + (entry.isEnabled ? QString() : u"~"_qs);
        switch (entry.kind) {
        case MenuEntryKind::divider:
            line += u"---"_qs;
            break;
        case MenuEntryKind::toggle:
            line += (entry.isChecked ? u"[x] "_qs : u"[ ] "_qs) + entry.text;
            break;
        case MenuEntryKind::button:
        case MenuEntryKind::submenu:
            line += entry.text + (entry.isChecked ? u" ✓"_qs : QString());
            break;
        }
        lines += line;
        appendLines(lines, entry.children, indent + u"> "_qs);
    }
}

class MenuBarExtraViewTest : public testing::Test
{
protected:
    [[nodiscard]] QStringList lines() const
    {
        QStringList result;
        appendLines(result, menu.entries(), {});
        return result;
    }
    /// How often the system's function key setting was put back to the factory's.
    [[nodiscard]] std::size_t restorations()
    {
        const auto all = desktop.platform.effects().all<SystemPreferenceSet>();
        return static_cast<std::size_t>(
            std::ranges::count(all, SystemPreferenceSet{u"com.apple.keyboard.fnState"_qs, false}));
    }

    ShellDesktop desktop;
    KeyProfile profile{desktop.ports.files, desktop.ports.preferences, desktop.ports.workspace, desktop.ports.console,
        desktop.ports.uuids, [](KeyAction) {}};
    FnKeyModeHelper fnKeyMode{desktop.ports.functionKeySetting, desktop.ports.console};
    AccessibilityHelper accessibility{desktop.ports.permission, desktop.ports.scripts, desktop.ports.scheduler};
    BackgroundModeManager& manager = desktop.manager();
    MenuBarExtraView menu{{manager, profile, desktop.ports.appShell, [this]() -> FnKeyModeHelper& { return fnKeyMode; },
        [this]() -> AccessibilityHelper& { return accessibility; }}};
};

TEST_F(MenuBarExtraViewTest, theMenuFromTopToBottom)
{
    EXPECT_THAT(lines(),
        ElementsAre(u"Open Tarvin Studio (⌥⌘K)"_qs, u"---"_qs, u"[x] Open at Startup"_qs, u"Startup & Dock Behavior"_qs,
            u"> Hide from Dock automatically ✓"_qs, u"> Show in Dock"_qs, u"---"_qs, u"[x] Master Tarvin: ON"_qs,
            u"[x] Function Keys (F1–F12): ON"_qs, u"[x] Other Custom Keys: ON"_qs, u"---"_qs,
            u"Restore Factory Apple Keyboard Defaults"_qs, u"---"_qs, u"Accessibility Settings..."_qs, u"---"_qs,
            u"Quit Tarvin"_qs));
}

TEST_F(MenuBarExtraViewTest, withoutOpeningAtStartupTheSubmenuIsAbsentAndTheModeKeepsItsValueAndEffect)
{
    manager.setStartupDockMode(StartupDockMode::showInDock);
    menu.perform(MenuCommand::toggleOpenAtStartup);
    EXPECT_FALSE(manager.openAtStartup());
    EXPECT_FALSE(lines().contains(u"Startup & Dock Behavior"_qs));
    EXPECT_EQ(manager.startupDockMode(), StartupDockMode::showInDock);
    EXPECT_EQ(desktop.policy(), ActivationPolicy::regular);
    menu.perform(MenuCommand::toggleOpenAtStartup);
    EXPECT_TRUE(lines().contains(u"> Show in Dock ✓"_qs));
}

TEST_F(MenuBarExtraViewTest, openingAtStartupIsStoredAndRegistered)
{
    std::ignore = desktop.whatHappened();
    menu.perform(MenuCommand::toggleOpenAtStartup);
    EXPECT_EQ(desktop.stored(BackgroundModeManager::openAtStartupKey), QJsonValue(false));
    menu.perform(MenuCommand::toggleOpenAtStartup);
    EXPECT_EQ(desktop.stored(BackgroundModeManager::openAtStartupKey), QJsonValue(true));
    EXPECT_TRUE(desktop.whatHappened().contains(u"login item enabled"_qs));
    EXPECT_TRUE(desktop.platform.loginItem().isEnabled());
}

TEST_F(MenuBarExtraViewTest, choosingADockModeStoresItAndAppliesItAtOnce)
{
    menu.perform(MenuCommand::showInDock);
    EXPECT_EQ(manager.startupDockMode(), StartupDockMode::showInDock);
    EXPECT_EQ(desktop.stored(BackgroundModeManager::startupDockModeKey), QJsonValue(u"showInDock"_qs));
    EXPECT_EQ(desktop.policy(), ActivationPolicy::regular);
    EXPECT_TRUE(lines().contains(u"> Show in Dock ✓"_qs));
    EXPECT_TRUE(lines().contains(u"> Hide from Dock automatically"_qs));
    menu.perform(MenuCommand::hideFromDock);
    EXPECT_EQ(desktop.policy(), ActivationPolicy::accessory);
}

TEST_F(MenuBarExtraViewTest, withTheMasterSwitchOffThePortionsAreGreyedOutButReadTheirOwnFlags)
{
    menu.perform(MenuCommand::toggleOtherKeys);
    menu.perform(MenuCommand::toggleInterception);
    EXPECT_TRUE(lines().contains(u"~[x] Function Keys (F1–F12): ON"_qs));
    EXPECT_TRUE(lines().contains(u"~[ ] Other Custom Keys: OFF"_qs));
    EXPECT_TRUE(lines().contains(u"[ ] "_qs + masterOff));
    menu.perform(MenuCommand::toggleInterception);
    EXPECT_TRUE(lines().contains(u"[x] Function Keys (F1–F12): ON"_qs));
    EXPECT_TRUE(lines().contains(u"[ ] Other Custom Keys: OFF"_qs));
}

TEST_F(MenuBarExtraViewTest, turningFunctionKeysOffGivesThemBackToTheSystem)
{
    menu.perform(MenuCommand::toggleFunctionKeys);
    EXPECT_FALSE(profile.isFunctionKeysEnabled());
    EXPECT_EQ(restorations(), 1U);
    EXPECT_TRUE(lines().contains(u"[ ] Function Keys (F1–F12): OFF"_qs));
    menu.perform(MenuCommand::toggleFunctionKeys);
    EXPECT_TRUE(profile.isFunctionKeysEnabled());
    EXPECT_EQ(restorations(), 1U);
}

TEST_F(MenuBarExtraViewTest, turningOtherKeysOffLeavesTheFunctionKeySettingAlone)
{
    menu.perform(MenuCommand::toggleOtherKeys);
    EXPECT_FALSE(profile.isOtherKeysEnabled());
    EXPECT_EQ(restorations(), 0U);
}

TEST_F(MenuBarExtraViewTest, turningTheMasterSwitchOffRestoresAndOnDoesNot)
{
    menu.perform(MenuCommand::toggleInterception);
    EXPECT_FALSE(profile.isInterceptionEnabled());
    EXPECT_EQ(restorations(), 1U);
    menu.perform(MenuCommand::toggleInterception);
    EXPECT_TRUE(profile.isInterceptionEnabled());
    EXPECT_EQ(restorations(), 1U);
}

TEST_F(MenuBarExtraViewTest, afterRestoringTheFactoryDefaultsTheMasterSwitchReadsOffAndTheMappingsStay)
{
    profile.setAction(KeyAction::copy, FKey::f5);
    menu.perform(MenuCommand::restoreAppleDefaults);
    EXPECT_TRUE(lines().contains(u"[ ] "_qs + masterOff));
    EXPECT_EQ(restorations(), 1U);
    EXPECT_EQ(profile.actionInEditor(FKey::f5), KeyAction::copy);
    menu.perform(MenuCommand::restoreAppleDefaults);
    EXPECT_FALSE(profile.isInterceptionEnabled()) << "it does not turn it on again";
    EXPECT_EQ(restorations(), 2U);
}

TEST_F(MenuBarExtraViewTest, theStudioIsOpened)
{
    desktop.addStudio();
    menu.perform(MenuCommand::openStudio);
    EXPECT_TRUE(manager.isStudioWindowVisible());
    EXPECT_TRUE(desktop.whatHappened().contains(u"Studio made key and front"_qs));
}

TEST_F(MenuBarExtraViewTest, theAccessibilitySettingsAreOpened)
{
    desktop.platform.permission().setTrusted(false);
    menu.perform(MenuCommand::openAccessibilitySettings);
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.platform.effects().count<PermissionPrompted>(), 1U);
    EXPECT_EQ(desktop.platform.effects().count<ScriptRun>(), 1U);
}

TEST_F(MenuBarExtraViewTest, quittingEndsTheProgramInAnOrderlyWay)
{
    menu.perform(MenuCommand::quit);
    desktop.platform.scheduler().runPosted();
    EXPECT_TRUE(desktop.platform.appShell().isTerminated());
}

TEST_F(MenuBarExtraViewTest, everyPublishedChangeTellsTheMenu)
{
    const SignalCount changes(menu, &MenuBarExtraView::entriesChanged);
    profile.setInterceptionEnabled(false);
    profile.setFunctionKeysEnabled(false);
    profile.setOtherKeysEnabled(false);
    manager.setOpenAtStartup(false);
    manager.setStartupDockMode(StartupDockMode::showInDock);
    EXPECT_EQ(changes.count(), 5);
}

TEST_F(MenuBarExtraViewTest, dividersAndTheSubmenuItselfDoNothing)
{
    std::ignore = desktop.whatHappened();
    for (const MenuEntry& entry : menu.entries()) {
        if (entry.kind == MenuEntryKind::divider || entry.kind == MenuEntryKind::submenu) {
            EXPECT_EQ(entry.command, MenuCommand::none);
            menu.perform(entry.command);
        }
    }
    EXPECT_THAT(desktop.whatHappened(), testing::IsEmpty());
}

} // namespace

} // namespace tarvin::test
