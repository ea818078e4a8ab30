#include "platform/simulated/SimulatedPlatform.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::simulated {
namespace {

class SimulatedActionPorts : public testing::Test
{
protected:
    void settle() { platform.scheduler().runPosted(); }
    void offMain(const std::function<void()>& task) { platform.scheduler().callOffMain(task); }
    QString frontName()
    {
        return platform.workspace().frontmostApplication().value_or(RunningApplication{}).localizedName;
    }
    void run(ProcessIdentifier process, const QString& name, const QStringList& identifiers = {})
    {
        platform.workspace().setApplication(
            {.processIdentifier = process, .bundleIdentifiers = identifiers, .localizedName = name});
    }

    SimulatedPlatform platform;
};

TEST_F(SimulatedActionPorts, aBrightnessKeyMovesTheBrightnessOnALaterTurn)
{
    platform.systemKeys().post(SystemKey::brightnessUp, SystemKeyMotion::down);
    platform.systemKeys().post(SystemKey::brightnessUp, SystemKeyMotion::up);
    EXPECT_EQ(platform.displayBrightness().current(), 0.5);
    settle();
    EXPECT_EQ(platform.displayBrightness().current(), 0.5625);
    platform.displayBrightness().setCurrent(0.01);
    platform.systemKeys().post(SystemKey::brightnessDown, SystemKeyMotion::down);
    settle();
    EXPECT_EQ(platform.displayBrightness().current(), 0.0);
}

TEST_F(SimulatedActionPorts, withoutPermissionAKeyOfTheSystemIsDropped)
{
    platform.permission().setTrusted(false);
    platform.systemKeys().post(SystemKey::brightnessUp, SystemKeyMotion::down);
    settle();
    EXPECT_EQ(platform.displayBrightness().current(), 0.5);
    EXPECT_EQ(platform.effects().all<SystemKeyPosted>().front(),
        (SystemKeyPosted{SystemKey::brightnessUp, SystemKeyMotion::down, true}));
}

TEST_F(SimulatedActionPorts, commandsBelongOnABackgroundQueue)
{
    platform.systemCommands().run(SleepNow{});
    platform.loginWindow().send(PowerEvent::restart);
    EXPECT_EQ(platform.effects().count<PortMisused>(), 2U);
    platform.effects().clear();
    platform.systemCommands().setLaunchError(u"no such file"_qs);
    offMain([this] {
        platform.systemCommands().run(SleepNow{});
        platform.loginWindow().send(PowerEvent::restart);
    });
    EXPECT_EQ(platform.effects().count<PortMisused>(), 0U);
    EXPECT_EQ(platform.effects().all<ToolLaunched>().front(),
        (ToolLaunched{u"/usr/bin/pmset"_qs, {u"sleepnow"_qs}, u"no such file"_qs}));
}

TEST_F(SimulatedActionPorts, theSystemMenuNeedsTheFileManager)
{
    EXPECT_EQ(platform.appleMenu().itemTitles(), std::nullopt);
    run(300, u"Finder"_qs, {u"com.apple.finder"_qs});
    ASSERT_TRUE(platform.appleMenu().itemTitles());
    platform.appleMenu().press(platform.appleMenu().itemTitles()->indexOf(u"Sleep"_qs));
    EXPECT_EQ(platform.effects().all<AppleMenuPressed>().front().title, u"Sleep"_qs);
    platform.appleMenu().press(99);
    EXPECT_EQ(platform.effects().count<PortMisused>(), 1U);
}

TEST_F(SimulatedActionPorts, anInstalledApplicationComesToTheFrontWhenItIsOpened)
{
    platform.applicationControl().install(
        {.path = u"/Applications/Mail.app"_qs, .name = u"Mail"_qs, .bundleIdentifiers = {u"com.example.mail"_qs}});
    EXPECT_EQ(platform.applicationControl().pathOfApplication(u"com.example.mail"_qs), u"/Applications/Mail.app"_qs);
    EXPECT_EQ(platform.applicationControl().pathOfApplication(u"com.example.none"_qs), std::nullopt);
    platform.applicationControl().openApplication(u"/Applications/Mail.app"_qs);
    EXPECT_EQ(frontName(), QString());
    settle();
    EXPECT_EQ(frontName(), u"Mail"_qs);
    const std::size_t running = platform.workspace().runningApplications().size();
    platform.workspace().setFrontmostProcess(std::nullopt);
    platform.applicationControl().openPath(u"/Applications/Mail.app"_qs);
    settle();
    EXPECT_EQ(frontName(), u"Mail"_qs);
    EXPECT_EQ(platform.workspace().runningApplications().size(), running);
}

TEST_F(SimulatedActionPorts, whatIsInstalledOrLiesThereExists)
{
    platform.applicationControl().install({.path = u"/a.app"_qs, .name = u"a"_qs, .bundleIdentifiers = {}});
    platform.files().stage(u"/b"_qs, "b");
    EXPECT_TRUE(platform.applicationControl().exists(u"/a.app"_qs));
    EXPECT_TRUE(platform.applicationControl().exists(u"/b"_qs));
    EXPECT_FALSE(platform.applicationControl().exists(u"/c"_qs));
}

TEST_F(SimulatedActionPorts, anApplicationEndsAsItWasToldTo)
{
    SimulatedApplicationControl& control = platform.applicationControl();
    for (ProcessIdentifier process = 300; process < 303; ++process)
        run(process, QString::number(process));
    control.setForceQuitAnswer(301, ForceQuitAnswer::endsAtOnce);
    control.setForceQuitAnswer(302, ForceQuitAnswer::refuses);

    EXPECT_TRUE(control.forceTerminate(300));
    EXPECT_FALSE(control.isTerminated(300));
    EXPECT_TRUE(control.forceTerminate(301));
    EXPECT_TRUE(control.isTerminated(301));
    EXPECT_FALSE(control.forceTerminate(302));
    settle();
    EXPECT_TRUE(control.isTerminated(300));
    EXPECT_FALSE(control.isTerminated(302));
    control.kill(302);
    settle();
    EXPECT_TRUE(control.isTerminated(302));
}

TEST_F(SimulatedActionPorts, aWindowIsReadAndWritten)
{
    platform.windowControl().setWindows(
        {{.process = 300, .title = u"a"_qs, .hasFocus = false, .frame = {{1, 2}, {3, 4}}},
            {.process = 300,
                .title = u"b"_qs,
                .frame = {{5, 6}, {7, 8}},
                .unreadable = {WindowPart::size},
                .unwritable = {WindowPart::position}}});
    EXPECT_EQ(platform.windowControl().focusedWindow(301), nullptr);
    EXPECT_EQ(platform.windowControl().windows(300).size(), 2U);

    const auto focused = platform.windowControl().focusedWindow(300);
    EXPECT_EQ(focused->position(), (Point{5, 6}));
    EXPECT_EQ(focused->size(), std::nullopt);
    EXPECT_FALSE(focused->setPosition({0, 0}));
    EXPECT_TRUE(focused->setSize({70, 80}));
    EXPECT_EQ(platform.windowControl().accessibleWindows()[1].frame, (Rect{{5, 6}, {70, 80}}));
    EXPECT_TRUE(focused->pressMinimizeButton());
    EXPECT_TRUE(platform.windowControl().accessibleWindows()[1].isMinimized);

    platform.windowControl().setWindows({});
    EXPECT_EQ(focused->position(), std::nullopt);
    EXPECT_FALSE(focused->setFullScreen(true));
}

TEST_F(SimulatedActionPorts, theFirstDisplayHasTheKeyboardUnlessAnotherWasNamed)
{
    const Screen left{.frame = {{0, 0}, {100, 100}}, .visibleFrame = {{0, 0}, {100, 100}}};
    const Screen right{.frame = {{100, 0}, {100, 100}}, .visibleFrame = {{100, 0}, {100, 90}}};
    platform.screens().setScreens({left, right});
    EXPECT_EQ(platform.screens().mainScreen(), left);
    platform.screens().setMainScreen(1);
    EXPECT_EQ(platform.screens().mainScreen(), right);
    platform.screens().setScreens({});
    EXPECT_EQ(platform.screens().mainScreen(), std::nullopt);
}

} // namespace
} // namespace tarvin::simulated
