#include "shell/AppDelegate.h"

#include "interception/ActionSink.h"
#include "interception/EventTapManager.h"
#include "interception/FnKeyModeHelper.h"
#include "interception/KeyFeedback.h"
#include "interception/TriggerNotice.h"
#include "profiles/KeyProfile.h"
#include "shell/support/ShellDesktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class NoActions final : public ActionSink
{
    void execute(const ConfiguredAction& /*config*/) override { }
};

class NoFeedback final : public KeyFeedback
{
    void triggerKeyPress(const QString& /*keyId*/, PressSound /*sound*/) override { }
    void releaseKey(const QString& /*keyId*/) override { }
};

/// Knows nothing of the manager, so that it does not bring it to life.
class NoStudio final : public StudioPresence
{
    [[nodiscard]] bool isGlobalSummonShortcutEnabled() const override { return true; }
    [[nodiscard]] bool isStudioWindowVisible() const override { return false; }
    void openStudioWindow() override { }
};

class AppDelegateTest : public testing::Test
{
protected:
    AppDelegateTest() { std::ignore = desktop.whatHappened(); }

    EventTapManager& eventTapManager()
    {
        if (!m_eventTapManager) {
            m_eventTapManager = std::make_unique<EventTapManager>(EventTapManager::Collaborators{profile, actions,
                studioPresence, feedback, notice, desktop.log, desktop.ports.inputTaps, desktop.ports.permission,
                desktop.ports.appShell, desktop.ports.scheduler});
        }
        return *m_eventTapManager;
    }
    FnKeyModeHelper& fnKeyModeHelper()
    {
        if (!m_fnKeyModeHelper) {
            m_fnKeyModeHelper =
                std::make_unique<FnKeyModeHelper>(desktop.ports.functionKeySetting, desktop.ports.console);
        }
        return *m_fnKeyModeHelper;
    }
    void launch() { delegate->applicationDidFinishLaunching(); }
    void launchAtLogin()
    {
        desktop.platform.processInfo().setArguments({u"/apps/Tarvin/tarvin"_qs, u"--startup"_qs});
        launch();
    }
    simulated::SimulatedAppShell& appShell() { return desktop.platform.appShell(); }
    BackgroundModeManager& manager() { return desktop.manager(); }

    ShellDesktop desktop;
    KeyProfile profile{desktop.ports.files, desktop.ports.preferences, desktop.ports.workspace, desktop.ports.console,
        desktop.ports.uuids, [](KeyAction) {}};
    TriggerNotice notice{desktop.ports.scheduler};
    NoActions actions;
    NoFeedback feedback;
    NoStudio studioPresence;
    int savings = 0; ///< how often everything was to be saved
    std::unique_ptr<EventTapManager> m_eventTapManager;
    std::unique_ptr<FnKeyModeHelper> m_fnKeyModeHelper;
    std::unique_ptr<AppDelegate> delegate = std::make_unique<AppDelegate>(AppDelegate::Collaborators{
        .eventTapManager = [this]() -> EventTapManager& { return eventTapManager(); },
        .backgroundModeManager = [this]() -> BackgroundModeManager& { return manager(); },
        .fnKeyModeHelper = [this]() -> FnKeyModeHelper& { return fnKeyModeHelper(); },
        .saveEverything = [this] { ++savings; },
        .appShell = desktop.ports.appShell,
        .scheduler = desktop.ports.scheduler,
        .log = desktop.log,
    });
};

// ---- Start ----

TEST_F(AppDelegateTest, everythingStartsInItsOrder)
{
    auto& studio = desktop.addStudio();
    appShell().setPolicySilently(ActivationPolicy::regular);
    std::ignore = desktop.whatHappened();
    ASSERT_FALSE(desktop.hasManager());
    launch();
    EXPECT_TRUE(eventTapManager().isRunning());
    EXPECT_FALSE(studio.isVisible()) << "the Studio opens on a later turn";
    EXPECT_THAT(desktop.whatHappened(),
        ElementsAre(u"unhandled keys silenced"_qs, u"minimize requests let through"_qs, u"unhandled keys silenced"_qs,
            u"tap created"_qs, u"tap created"_qs, u"policy accessory"_qs, u"login item enabled"_qs, u"script enable"_qs,
            u"policy regular"_qs, u"come forward"_qs, u"come forward ignoring others"_qs, u"Studio set visible"_qs,
            u"Studio made key and front"_qs, u"Studio ordered front regardless"_qs, u"Studio set visible"_qs,
            u"Studio made key and front"_qs, u"Studio ordered front regardless"_qs));
    EXPECT_EQ(manager().mainWindow(), &studio);
    EXPECT_FALSE(delegate->isStartupLaunch());
}

TEST_F(AppDelegateTest, theLogTellsTheStart)
{
    desktop.addStudio();
    launch();
    const QStringList lines = desktop.newLogLines();
    const qsizetype launched = lines.indexOf(u"[Tarvin] App launched. wasStartup: false, dockMode: hideFromDock"_qs);
    EXPECT_LT(lines.indexOf(u"[Tarvin] Keyboard interception engine active."_qs), launched);
    EXPECT_THAT(lines.mid(launched + 1),
        ElementsAre(u"[Tarvin] SMAppService registered main app for Open at Startup."_qs,
            u"[Tarvin] openStudioWindow invoked. Current policy: 0, window count: 1"_qs,
            u"[Tarvin] Restored stored mainWindow: Studio"_qs, u"[Tarvin] Restored window: Studio"_qs));
}

TEST_F(AppDelegateTest, theLoginItemFollowsTheSettingAtEachLaunch)
{
    desktop.store(u"Tarvin_OpenAtStartup", false);
    desktop.platform.loginItem().setEnabled(true);
    launch();
    EXPECT_THAT(desktop.whatHappened(), Contains(u"login item disabled"_qs));
    EXPECT_FALSE(desktop.platform.loginItem().isEnabled());
}

TEST_F(AppDelegateTest, theLastWindowThatIsNoPanelIsTheMainWindow)
{
    desktop.addStudio();
    auto& second = desktop.addStudio();
    desktop.addPanel();
    launchAtLogin();
    std::ignore = desktop.whatHappened();
    EXPECT_EQ(manager().mainWindow(), &second);
}

TEST_F(AppDelegateTest, atLoginTheStudioStaysHiddenAndTheKeysWork)
{
    auto& studio = desktop.addStudio();
    desktop.store(u"Tarvin_StartupDockMode", u"hideFromDock"_qs);
    launchAtLogin();
    EXPECT_TRUE(delegate->isStartupLaunch());
    EXPECT_THAT(desktop.newLogLines(),
        testing::AllOf(Contains(u"[Tarvin] App launched. wasStartup: true, dockMode: hideFromDock"_qs),
            Contains(u"[Tarvin] Startup launch handled. Policy: 1"_qs)));
    EXPECT_TRUE(eventTapManager().isRunning());
    EXPECT_FALSE(studio.isVisible());
    EXPECT_FALSE(manager().isStudioWindowVisible());
    EXPECT_EQ(manager().mainWindow(), &studio);
    EXPECT_EQ(desktop.policy(), ActivationPolicy::accessory);
}

TEST_F(AppDelegateTest, atLoginTheIconIsInTheDockIfTheModeSaysSo)
{
    desktop.store(u"Tarvin_StartupDockMode", u"showInDock"_qs);
    launchAtLogin();
    EXPECT_THAT(desktop.newLogLines(),
        testing::AllOf(Contains(u"[Tarvin] App launched. wasStartup: true, dockMode: showInDock"_qs),
            Contains(u"[Tarvin] Startup launch handled. Policy: 0"_qs)));
}

TEST_F(AppDelegateTest, theFirstActivationAfterALoginLaunchIsLoggedOnceAndLaterOnesAreNot)
{
    desktop.addStudio();
    launchAtLogin();
    std::ignore = desktop.newLogLines();
    appShell().becomeActive();
    EXPECT_FALSE(delegate->isStartupLaunch());
    EXPECT_THAT(desktop.newLogLines(), ElementsAre(u"[Tarvin] Completed silent startup activation."_qs));
    desktop.platform.workspace().setFrontmostProcess(std::nullopt);
    appShell().becomeActive();
    EXPECT_THAT(desktop.newLogLines(), IsEmpty());
}

TEST_F(AppDelegateTest, anActivationAfterAnOrdinaryLaunchIsNotLogged)
{
    launch();
    appShell().becomeActive();
    EXPECT_FALSE(desktop.newLogLines().contains(u"[Tarvin] Completed silent startup activation."_qs));
}

TEST_F(AppDelegateTest, anActivationBeforeTheWindowsAreHandledOpensTheStudioAfterAll)
{
    auto& studio = desktop.addStudio();
    launchAtLogin();
    appShell().becomeActive();
    EXPECT_FALSE(delegate->isStartupLaunch());
    std::ignore = desktop.whatHappened();
    EXPECT_TRUE(studio.isVisible());
    EXPECT_TRUE(manager().isStudioWindowVisible());
}

TEST_F(AppDelegateTest, aDelegateThatIsGoneHandlesNoWindows)
{
    auto& studio = desktop.addStudio();
    launch();
    delegate.reset();
    EXPECT_EQ(appShell().delegate(), nullptr);
    std::ignore = desktop.whatHappened();
    EXPECT_FALSE(studio.isVisible());
    EXPECT_EQ(manager().mainWindow(), nullptr);
}

// ---- Called for again ----

TEST_F(AppDelegateTest, aSecondLaunchOpensTheStudio)
{
    auto& studio = desktop.addStudio();
    launchAtLogin();
    std::ignore = desktop.newLogLines();
    appShell().reopen();
    EXPECT_TRUE(studio.isVisible());
    const QStringList lines = desktop.newLogLines();
    EXPECT_EQ(lines.value(0), u"[Tarvin] applicationShouldHandleReopen called! hasVisibleWindows: false"_qs);
    EXPECT_EQ(lines.value(1), u"[Tarvin] openStudioWindow invoked. Current policy: 0, window count: 1"_qs);
    appShell().reopen();
    EXPECT_EQ(
        desktop.newLogLines().value(0), u"[Tarvin] applicationShouldHandleReopen called! hasVisibleWindows: true"_qs);
}

TEST_F(AppDelegateTest, everyAddressOfTheProgramOpensTheStudio)
{
    auto& studio = desktop.addStudio();
    launchAtLogin();
    std::ignore = desktop.whatHappened();
    for (const QStringList& urls :
        {QStringList{u"tarvin://open-studio"_qs}, QStringList{u"tarvin://anything"_qs}, QStringList{}}) {
        appShell().openUrls(urls);
        EXPECT_TRUE(studio.isVisible());
        EXPECT_TRUE(manager().isStudioWindowVisible());
        manager().hideStudioWindow();
        std::ignore = desktop.whatHappened();
        EXPECT_FALSE(studio.isVisible());
    }
}

// ---- Windows ----

TEST_F(AppDelegateTest, closingTheStudioHidesItAndKeepsItForTheNextTime)
{
    auto& studio = desktop.addStudio();
    launch();
    std::ignore = desktop.whatHappened();
    ASSERT_TRUE(studio.isVisible());
    appShell().requestClose(studio);
    EXPECT_FALSE(manager().isStudioWindowVisible());
    EXPECT_THAT(desktop.whatHappened(), ElementsAre(u"Studio ordered out"_qs, u"policy accessory"_qs));
    EXPECT_EQ(manager().mainWindow(), &studio);
    EXPECT_FALSE(appShell().isTerminated());
    manager().openStudioWindow();
    EXPECT_THAT(desktop.newLogLines(), Contains(u"[Tarvin] Restored stored mainWindow: Studio"_qs));
    EXPECT_TRUE(studio.isVisible());
}

TEST_F(AppDelegateTest, aVisibleWindowThatGetsTheKeyboardIsTheStudio)
{
    launchAtLogin();
    std::ignore = desktop.whatHappened();
    auto& studio = desktop.addStudio();
    delegate->windowDidBecomeKey(studio);
    EXPECT_EQ(manager().mainWindow(), nullptr) << "it is not visible yet";
    EXPECT_FALSE(manager().isStudioWindowVisible());
    studio.setVisible();
    delegate->windowDidBecomeKey(studio);
    EXPECT_EQ(manager().mainWindow(), &studio);
    EXPECT_TRUE(manager().isStudioWindowVisible());
    EXPECT_EQ(desktop.policy(), ActivationPolicy::regular);
}

TEST_F(AppDelegateTest, aPanelThatGetsTheKeyboardIsNotTheStudio)
{
    launchAtLogin();
    std::ignore = desktop.whatHappened();
    auto& panel = desktop.addPanel();
    panel.setVisible();
    delegate->windowDidBecomeKey(panel);
    EXPECT_EQ(manager().mainWindow(), nullptr);
    EXPECT_FALSE(manager().isStudioWindowVisible());
}

// ---- End ----

TEST_F(AppDelegateTest, atTheEndEverythingIsSaved)
{
    EXPECT_EQ(savings, 0);
    appShell().terminate();
    EXPECT_EQ(savings, 1);
}

TEST_F(AppDelegateTest, atTheEndTheFunctionKeySettingGoesBackToTheFactoryValue)
{
    fnKeyModeHelper().setDedicatedKeyMode(true);
    ASSERT_TRUE(fnKeyModeHelper().isDedicatedKeyMode());
    std::ignore = desktop.whatHappened();
    appShell().terminate();
    EXPECT_FALSE(fnKeyModeHelper().isDedicatedKeyMode());
    EXPECT_TRUE(appShell().isTerminated());
}

} // namespace

} // namespace tarvin::test
