#include "interception/support/InputEvents.h"
#include "interception/support/InterceptionDesktop.h"
#include "interception/support/Printers.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin::test {

using namespace simulated;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

const QString initializing = u"[Tarvin] Initializing EventTapManager..."_qs;
const QString sessionTapActive = u"[Tarvin] Session event tap active."_qs;
const QString hidTapActive = u"[Tarvin] HID event tap active."_qs;
const QString engineActive = u"[Tarvin] Keyboard interception engine active."_qs;
const QString tapFailed = u"[Tarvin] Failed to create CGEventTap. Awaiting accessibility authorization."_qs;
const QString hidManagerActive = u"[Tarvin] Hardware IOHIDManager active (status: true)."_qs;
const QString hidManagerSilent = u"[Tarvin] Hardware IOHIDManager active (status: false)."_qs;
const QString tapStopped = u"[Tarvin] Event tap stopped."_qs;

} // namespace

class EventTapManagerTest : public testing::Test
{
protected:
    SimulatedInputTaps& taps() { return desktop.platform.inputTaps(); }
    bool hasTap(TapLocation location) { return taps().hasTap(location); }
    /// The lines logged since the last call.
    QStringList newLines()
    {
        const QStringList all = desktop.logLines();
        return all.mid(std::exchange(m_seenLines, all.size()));
    }

    InterceptionDesktop desktop;

private:
    qsizetype m_seenLines = 0;
};

// ---- Creation ----

TEST_F(EventTapManagerTest, creationLogsItsStepsInOrder)
{
    desktop.manager();
    EXPECT_EQ(desktop.logLines(),
        (QStringList{initializing, sessionTapActive, hidTapActive, engineActive, hidManagerActive}));
}

TEST_F(EventTapManagerTest, creationBringsUpThePathsInOrder)
{
    desktop.platform.effects().clear();
    desktop.manager();
    EXPECT_THAT(desktop.platform.effects().all<TapChanged>(),
        ElementsAre(TapChanged{TapLocation::session, TapStep::created},
            TapChanged{TapLocation::session, TapStep::attached}, TapChanged{TapLocation::session, TapStep::enabled},
            TapChanged{TapLocation::hid, TapStep::created}, TapChanged{TapLocation::hid, TapStep::attached},
            TapChanged{TapLocation::hid, TapStep::enabled}));
    EXPECT_THAT(desktop.platform.effects().all<MonitorChanged>(),
        ElementsAre(MonitorChanged{InputPath::globalMonitor, MonitorStep::added},
            MonitorChanged{InputPath::localMonitor, MonitorStep::added}));
    EXPECT_THAT(
        desktop.platform.effects().all<HidManagerChanged>(), ElementsAre(HidManagerChanged{HidManagerStep::opened}));
}

TEST_F(EventTapManagerTest, theTapsComeBeforeTheMonitorsAndTheHidManagerLast)
{
    desktop.platform.effects().clear();
    desktop.manager();
    QStringList order;
    for (const Effect& effect : desktop.platform.effects().effects()) {
        if (std::holds_alternative<TapChanged>(effect.what))
            order += u"tap"_qs;
        else if (std::holds_alternative<MonitorChanged>(effect.what))
            order += u"monitor"_qs;
        else if (std::holds_alternative<HidManagerChanged>(effect.what))
            order += u"hid"_qs;
    }
    order.removeDuplicates();
    EXPECT_EQ(order, (QStringList{u"tap"_qs, u"monitor"_qs, u"hid"_qs}));
}

TEST_F(EventTapManagerTest, withPermissionItRunsAtOnce)
{
    EXPECT_TRUE(desktop.manager().isRunning());
    EXPECT_TRUE(desktop.manager().hasAccessibilityPermission());
    EXPECT_EQ(desktop.platform.scheduler().runningTimers(), 0U);
}

TEST_F(EventTapManagerTest, withoutPermissionItWaitsWithMonitorsAndHidManager)
{
    desktop.platform.permission().setTrusted(false);
    EXPECT_FALSE(desktop.manager().isRunning());
    EXPECT_FALSE(desktop.manager().hasAccessibilityPermission());
    EXPECT_EQ(desktop.logLines(), (QStringList{initializing, hidManagerActive}));
    EXPECT_FALSE(hasTap(TapLocation::session));
    EXPECT_TRUE(taps().hasGlobalMonitor());
    EXPECT_TRUE(taps().hasLocalMonitor());
    EXPECT_TRUE(taps().hasHidManager());
    EXPECT_EQ(desktop.platform.scheduler().runningTimers(), 1U);
}

TEST_F(EventTapManagerTest, aHidManagerThatCannotOpenShowsInTheLogOnly)
{
    taps().setHidManagerOpens(false);
    EXPECT_TRUE(desktop.manager().isRunning());
    EXPECT_EQ(desktop.logLines().last(), hidManagerSilent);
}

TEST_F(EventTapManagerTest, aPlatformWithoutAGlobalMonitorIsNoFailure)
{
    taps().setGlobalMonitorAvailable(false);
    EXPECT_TRUE(desktop.manager().isRunning());
    EXPECT_TRUE(taps().hasLocalMonitor());
}

// ---- start ----

TEST_F(EventTapManagerTest, startingTwiceDoesNothingTheSecondTime)
{
    desktop.manager();
    newLines();
    desktop.platform.effects().clear();
    desktop.manager().start();
    EXPECT_EQ(desktop.platform.effects().count<TapChanged>(), 0U);
    EXPECT_EQ(newLines(), QStringList());
}

TEST_F(EventTapManagerTest, unhandledKeysAreSilencedOnceHoweverOftenTheTapsStart)
{
    desktop.manager();
    desktop.manager().stop();
    desktop.manager().start();
    EXPECT_THAT(
        desktop.platform.effects().all<ShellPatched>(), ElementsAre(ShellPatched{ShellPatch::unhandledKeysSilenced}));
}

TEST_F(EventTapManagerTest, theHidTapAloneIsEnough)
{
    taps().setTapAvailable(TapLocation::session, false);
    EXPECT_TRUE(desktop.manager().isRunning());
    EXPECT_TRUE(desktop.manager().hasAccessibilityPermission());
    EXPECT_EQ(desktop.logLines(), (QStringList{initializing, hidTapActive, engineActive, hidManagerActive}));
    taps().disableSilently(TapLocation::hid);
    desktop.platform.effects().clear();
    desktop.manager().checkPermissionAndStart();
    EXPECT_THAT(
        desktop.platform.effects().all<TapChanged>(), ElementsAre(TapChanged{TapLocation::hid, TapStep::enabled}));
}

TEST_F(EventTapManagerTest, theSessionTapAloneIsEnough)
{
    taps().setTapAvailable(TapLocation::hid, false);
    EXPECT_TRUE(desktop.manager().isRunning());
    EXPECT_EQ(desktop.logLines(), (QStringList{initializing, sessionTapActive, engineActive, hidManagerActive}));
}

TEST_F(EventTapManagerTest, aTrustedProgramWithoutTapsShowsAsNotPermitted)
{
    taps().setTapAvailable(TapLocation::session, false);
    taps().setTapAvailable(TapLocation::hid, false);
    EXPECT_FALSE(desktop.manager().isRunning());
    EXPECT_FALSE(desktop.manager().hasAccessibilityPermission());
    EXPECT_EQ(desktop.logLines(), (QStringList{initializing, tapFailed, hidManagerActive}));
    EXPECT_EQ(desktop.platform.scheduler().runningTimers(), 0U);
}

TEST_F(EventTapManagerTest, startingWithoutPermissionLogsTheFailureAndKeepsTheMonitor)
{
    desktop.platform.permission().setTrusted(false);
    desktop.manager();
    newLines();
    desktop.manager().start();
    EXPECT_EQ(newLines(), QStringList{tapFailed});
    EXPECT_EQ(desktop.platform.scheduler().runningTimers(), 1U);
}

// ---- stop ----

TEST_F(EventTapManagerTest, stoppingTakesTheTapsAndTheMonitorsAndLeavesTheHidManager)
{
    desktop.manager();
    newLines();
    desktop.platform.effects().clear();
    desktop.manager().stop();
    EXPECT_THAT(desktop.platform.effects().all<TapChanged>(),
        ElementsAre(TapChanged{TapLocation::session, TapStep::disabled},
            TapChanged{TapLocation::session, TapStep::detached}, TapChanged{TapLocation::hid, TapStep::disabled},
            TapChanged{TapLocation::hid, TapStep::detached}, TapChanged{TapLocation::session, TapStep::removed},
            TapChanged{TapLocation::hid, TapStep::removed}));
    EXPECT_THAT(desktop.platform.effects().all<MonitorChanged>(),
        ElementsAre(MonitorChanged{InputPath::globalMonitor, MonitorStep::removed},
            MonitorChanged{InputPath::localMonitor, MonitorStep::removed}));
    EXPECT_EQ(desktop.platform.effects().count<HidManagerChanged>(), 0U);
    EXPECT_FALSE(desktop.manager().isRunning());
    EXPECT_EQ(newLines(), QStringList{tapStopped});
}

TEST_F(EventTapManagerTest, stoppingWhatDoesNotRunDoesNothing)
{
    desktop.platform.permission().setTrusted(false);
    desktop.manager();
    newLines();
    desktop.manager().stop();
    EXPECT_EQ(newLines(), QStringList());
    EXPECT_TRUE(taps().hasGlobalMonitor());
}

TEST_F(EventTapManagerTest, aStartAfterAStopBringsBackTheTapsButNotTheMonitors)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.manager().stop();
    desktop.manager().start();
    EXPECT_EQ(desktop.play("tap +F5 | tap -F5"), "mute");
    EXPECT_FALSE(taps().hasGlobalMonitor());
    EXPECT_FALSE(taps().hasLocalMonitor());
    EXPECT_TRUE(taps().hasHidManager());
}

TEST_F(EventTapManagerTest, stoppingTheTapsLeavesThePermissionAsItWasFound)
{
    desktop.manager().stop();
    EXPECT_TRUE(desktop.manager().hasAccessibilityPermission());
}

// ---- Published state ----

TEST_F(EventTapManagerTest, publishedStateIsToldWhenItChanges)
{
    EventTapManager& manager = desktop.manager();
    const SignalCount running(manager, &EventTapManager::isRunningChanged);
    const SignalCount permitted(manager, &EventTapManager::hasAccessibilityPermissionChanged);
    manager.checkPermissionAndStart();
    EXPECT_EQ(running.count(), 0);
    EXPECT_EQ(permitted.count(), 0);
    desktop.platform.permission().setTrusted(false);
    manager.checkPermissionAndStart();
    EXPECT_EQ(running.count(), 1);
    EXPECT_EQ(permitted.count(), 1);
    EXPECT_FALSE(manager.property("isRunning").toBool());
    EXPECT_FALSE(manager.property("hasAccessibilityPermission").toBool());
}

TEST_F(EventTapManagerTest, theNoticeOfAFiringIsPublished)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EventTapManager& manager = desktop.manager();
    const SignalCount changed(manager, &EventTapManager::lastTriggeredInfoChanged);
    desktop.play("tap +F5 | tap -F5");
    EXPECT_EQ(manager.lastTriggeredInfo(), u"Pressed physical F5 → Executing Mute audio"_qs);
    EXPECT_EQ(changed.count(), 1);
    desktop.advance(3500ms);
    EXPECT_EQ(manager.lastTriggeredInfo(), std::nullopt);
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(EventTapManagerTest, noticesCanBeWrittenThroughIt)
{
    EventTapManager& manager = desktop.manager();
    manager.recordTrigger(FKey::f5, u"Mute"_qs);
    EXPECT_EQ(manager.lastTriggeredInfo(), u"Pressed physical F5 → Executing Mute"_qs);
    manager.recordTriggerDirectly(u"Muted"_qs);
    EXPECT_EQ(manager.lastTriggeredInfo(), u"Muted"_qs);
}

TEST_F(EventTapManagerTest, linesCanBeLoggedThroughIt)
{
    desktop.manager().log(u"[Tarvin] Hello."_qs);
    EXPECT_EQ(desktop.logLines().last(), u"[Tarvin] Hello.");
}

TEST_F(EventTapManagerTest, theSwitchForTestsIsOffAndDecidesNothing)
{
    EXPECT_FALSE(desktop.manager().isForceActiveForTesting());
    desktop.manager().setForceActiveForTesting(true);
    EXPECT_TRUE(desktop.manager().isForceActiveForTesting());
    desktop.studio.visible = true;
    desktop.play("tap +F2");
    EXPECT_EQ(desktop.strokes(), "");
}

// ---- The end ----

TEST_F(EventTapManagerTest, itsEndStopsEverything)
{
    desktop.manager();
    newLines();
    desktop.destroyManager();
    EXPECT_EQ(newLines(), QStringList{tapStopped});
    EXPECT_FALSE(hasTap(TapLocation::session));
    EXPECT_FALSE(hasTap(TapLocation::hid));
    EXPECT_FALSE(taps().hasGlobalMonitor());
    EXPECT_FALSE(taps().hasLocalMonitor());
    EXPECT_FALSE(taps().hasHidManager());
}

TEST_F(EventTapManagerTest, itsEndStopsThePermissionMonitor)
{
    desktop.platform.permission().setTrusted(false);
    desktop.manager();
    desktop.destroyManager();
    EXPECT_EQ(desktop.platform.scheduler().runningTimers(), 0U);
}

TEST_F(EventTapManagerTest, anActivationAfterItsEndIsIgnored)
{
    desktop.manager();
    desktop.destroyManager();
    desktop.platform.effects().clear();
    desktop.platform.appShell().becomeActive();
    EXPECT_EQ(desktop.platform.effects().count<TapChanged>(), 0U);
}

TEST_F(EventTapManagerTest, noPortIsMisused)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.play("tap +F5 | 5000ms | tap -F5");
    desktop.destroyManager();
    EXPECT_EQ(desktop.platform.effects().count<PortMisused>(), 0U);
}

} // namespace tarvin::test
