#include "interception/support/InputEvents.h"
#include "interception/support/InterceptionDesktop.h"
#include "interception/support/Printers.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

constexpr EventFlags summon = EventFlags::option | EventFlags::command;

} // namespace

class MonitorRoutingTest : public testing::Test
{
protected:
    /// The source of the last firing, as the log tells it.
    QString lastSource()
    {
        const QStringList lines = desktop.logLines().filter(u"Intercepted"_qs);
        return lines.isEmpty() ? u"none"_qs : lines.last().section(u']', 0, 0).mid(1);
    }

    InterceptionDesktop desktop;
};

class GlobalMonitor : public MonitorRoutingTest
{ };

class LocalMonitor : public MonitorRoutingTest
{ };

// ---- The global monitor ----

TEST_F(GlobalMonitor, dropsEventsOfOurOwnBeforeAnythingElse)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.global(selfPosted(keyDown(FKey::f5)));
    desktop.global(selfPosted(keyDown(keyK, summon)));
    EXPECT_EQ(desktop.fired(), "");
    EXPECT_EQ(desktop.studio.opened, 0);
}

TEST_F(GlobalMonitor, opensTheStudioAtOnceAtTheSummonShortcut)
{
    desktop.profile.setInterceptionEnabled(false);
    desktop.global(keyDown(keyK, summon | EventFlags::shift));
    EXPECT_EQ(desktop.studio.opened, 1);
    desktop.global(keyDown(keyK, EventFlags::option));
    desktop.global(keyUp(keyK, summon));
    EXPECT_EQ(desktop.studio.opened, 1);
}

TEST_F(GlobalMonitor, leavesADisabledSummonShortcutAlone)
{
    desktop.studio.summonEnabled = false;
    desktop.global(keyDown(keyK, summon));
    EXPECT_EQ(desktop.studio.opened, 0);
}

TEST_F(GlobalMonitor, doesNothingWithTheMasterSwitchOff)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.play("global +F5");
    desktop.profile.setInterceptionEnabled(false);
    EXPECT_EQ(desktop.play("500ms | global -F5 | global +F5"), "");
    EXPECT_EQ(desktop.held(), "F5");
}

TEST_F(GlobalMonitor, firesAndReleasesAKey)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("global +F5"), "mute");
    EXPECT_EQ(desktop.held(), "F5");
    EXPECT_EQ(lastSource(), u"GlobalMonitor");
    EXPECT_EQ(desktop.play("global -F5"), "");
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(GlobalMonitor, ignoresTheRepeatsOfAHeldKey)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("global +F5 | 500ms | global ~F5 | 500ms | global ~F5"), "mute");
}

TEST_F(GlobalMonitor, firesAndReleasesAModifierByItsFlag)
{
    desktop.map(FKey::rightCommand, KeyAction::mute);
    EXPECT_EQ(desktop.play("global +RightCommand"), "mute");
    EXPECT_EQ(lastSource(), u"GlobalMonitor-Flags");
    desktop.play("global -RightCommand");
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(GlobalMonitor, firesAndReleasesAMediaKey)
{
    desktop.map(FKey::f1, KeyAction::mute);
    EXPECT_EQ(desktop.play("global +media3"), "mute");
    EXPECT_EQ(lastSource(), u"GlobalMonitor-Media");
    EXPECT_EQ(desktop.held(), "F1");
    EXPECT_EQ(desktop.play("500ms | global ~media3"), "");
    desktop.play("global -media3");
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(GlobalMonitor, leavesKeysOutsideTheVocabularyAlone)
{
    desktop.showStudio();
    desktop.global(keyDown(keyA));
    desktop.global(keyUp(keyA));
    desktop.global(flagsChanged(keyLeftShift, EventFlags::shift));
    desktop.global(mediaDown(mediaEject));
    desktop.global(systemDefined(1, mediaBrightnessDown << 16 | 0x0A00));
    EXPECT_EQ(desktop.fired(), "");
    EXPECT_EQ(desktop.strokes(), "");
}

TEST_F(GlobalMonitor, doesNotAnimateAFactoryKeyGoingDown)
{
    desktop.showStudio();
    desktop.play("global +F2");
    EXPECT_EQ(desktop.strokes(), "");
}

TEST_F(GlobalMonitor, takesAReportFromAnotherThreadToTheMainThread)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.manager();
    desktop.platform.scheduler().callOffMain([this] {
        desktop.global(keyDown(FKey::f5));
        desktop.global(keyDown(keyK, summon));
    });
    EXPECT_EQ(desktop.fired(), "");
    EXPECT_EQ(desktop.studio.opened, 0);
    desktop.platform.scheduler().runPosted();
    EXPECT_EQ(desktop.fired(), "mute");
    EXPECT_EQ(desktop.studio.opened, 1);
}

// ---- The local monitor ----

TEST_F(LocalMonitor, swallowsEventsOfOurOwnEvenWithTheMasterSwitchOff)
{
    desktop.profile.setInterceptionEnabled(false);
    EXPECT_EQ(desktop.local(selfPosted(keyDown(keyA))), EventVerdict::consume);
    EXPECT_EQ(desktop.local(selfPosted(keyDown(keyK, summon))), EventVerdict::consume);
    EXPECT_EQ(desktop.studio.opened, 0);
}

TEST_F(LocalMonitor, opensTheStudioAtOnceAtTheSummonShortcutAndSwallowsIt)
{
    desktop.profile.setInterceptionEnabled(false);
    EXPECT_EQ(desktop.local(keyDown(keyK, summon)), EventVerdict::consume);
    EXPECT_EQ(desktop.studio.opened, 1);
    EXPECT_EQ(desktop.local(keyUp(keyK, summon)), EventVerdict::pass);
}

TEST_F(LocalMonitor, leavesADisabledSummonShortcutToTheWindow)
{
    desktop.studio.summonEnabled = false;
    EXPECT_EQ(desktop.local(keyDown(keyK, summon)), EventVerdict::pass);
    EXPECT_EQ(desktop.studio.opened, 0);
}

TEST_F(LocalMonitor, passesEveryKeyWithTheMasterSwitchOff)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.profile.setInterceptionEnabled(false);
    EXPECT_EQ(desktop.play("local +F5 | local ~F5 | local -F5 | local +CapsLock | local +media3 | local -media3"), "");
    EXPECT_EQ(desktop.verdicts(), "pass pass pass pass pass pass");
}

TEST_F(LocalMonitor, firesAndReleasesACustomisedKeyAndSwallowsIt)
{
    desktop.map(FKey::f5, KeyAction::mute);
    EXPECT_EQ(desktop.play("local +F5 | 500ms | local ~F5"), "mute");
    EXPECT_EQ(desktop.verdicts(), "consume consume");
    EXPECT_EQ(lastSource(), u"LocalMonitor");
    EXPECT_EQ(desktop.held(), "F5");
    desktop.play("local -F5");
    EXPECT_EQ(desktop.verdicts(), "consume");
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(LocalMonitor, swallowsTheFactoryKeysToo)
{
    for (const FKey key : allFKeys) {
        EXPECT_EQ(desktop.local(keyDown(key)), EventVerdict::consume) << rawValue(key).toUtf8().constData();
        EXPECT_EQ(desktop.local(keyRepeat(key)), EventVerdict::consume) << rawValue(key).toUtf8().constData();
        EXPECT_EQ(desktop.local(keyUp(key)), EventVerdict::consume) << rawValue(key).toUtf8().constData();
    }
    EXPECT_EQ(desktop.fired(), "");
}

TEST_F(LocalMonitor, keepsTheSectionKeyFromBeingTyped)
{
    EXPECT_EQ(desktop.play("local +Section | local -Section"), "");
    EXPECT_EQ(desktop.verdicts(), "consume consume");
}

TEST_F(LocalMonitor, swallowsTheKeysOfAPausedPortionToo)
{
    desktop.map(FKey::f5, KeyAction::mute);
    desktop.profile.setFunctionKeysEnabled(false);
    EXPECT_EQ(desktop.play("local +F5 | local -F5"), "");
    EXPECT_EQ(desktop.verdicts(), "consume consume");
}

TEST_F(LocalMonitor, swallowsMediaKeysCustomisedOrNot)
{
    desktop.map(FKey::f1, KeyAction::mute);
    EXPECT_EQ(desktop.play("local +media3 | 500ms | local ~media3 | local -media3"), "mute");
    EXPECT_EQ(desktop.verdicts(), "consume consume consume");
    EXPECT_EQ(lastSource(), u"LocalMonitor-Media");
    EXPECT_EQ(desktop.held(), "");
    EXPECT_EQ(desktop.play("local +media2 | local ~media2 | local -media2"), "");
    EXPECT_EQ(desktop.verdicts(), "consume consume consume");
}

TEST_F(LocalMonitor, firesAndReleasesACustomisedModifierAndSwallowsIt)
{
    desktop.map(FKey::rightOption, KeyAction::mute);
    EXPECT_EQ(desktop.play("local +RightOption"), "mute");
    EXPECT_EQ(lastSource(), u"LocalMonitor-Flags");
    EXPECT_EQ(desktop.verdicts(), "consume");
    desktop.play("local -RightOption");
    EXPECT_EQ(desktop.verdicts(), "consume");
    EXPECT_EQ(desktop.held(), "");
}

TEST_F(LocalMonitor, passesAModifierThatIsNotCustomised)
{
    EXPECT_EQ(desktop.play("local +RightOption | local -RightOption | local +CapsLock"), "");
    EXPECT_EQ(desktop.verdicts(), "pass pass pass");
}

TEST_F(LocalMonitor, passesAModifierWhoseActionHasJustRemovedItsMapping)
{
    desktop.map(FKey::rightOption, KeyAction::mute);
    desktop.actions.onExecute = [this](const ConfiguredAction&) { desktop.profile.resetToDefault(FKey::rightOption); };
    EXPECT_EQ(desktop.play("local +RightOption"), "mute");
    EXPECT_EQ(desktop.verdicts(), "pass");
}

TEST_F(LocalMonitor, passesWhatIsNoCustomisableKey)
{
    EXPECT_EQ(desktop.local(keyDown(keyA)), EventVerdict::pass);
    EXPECT_EQ(desktop.local(keyUp(keyA)), EventVerdict::pass);
    EXPECT_EQ(desktop.local(flagsChanged(keyLeftShift, EventFlags::shift)), EventVerdict::pass);
    EXPECT_EQ(desktop.local(mediaDown(mediaEject)), EventVerdict::pass);
    EXPECT_EQ(desktop.local(systemDefined(1, mediaBrightnessDown << 16 | 0x0A00)), EventVerdict::pass);
}

} // namespace tarvin::test
