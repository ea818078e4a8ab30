#include "platform/linux/services/LinuxSystemCommands.h"

#include "platform/linux/services/ScreenSaver.h"
#include "platform/linux/services/ServicesOnBus.h"

namespace tarvin::services {

namespace {

class CommandsOnBus : public ServicesOnBus
{
protected:
    void SetUp() override
    {
        ServicesOnBus::SetUp();
        if (IsSkipped())
            return;
        saver = std::make_unique<ScreenSaver>(scheduler, buses, *answers, tell, [this] {
            ++timesSwitchedOff;
            return true;
        });
        commands = std::make_unique<LinuxSystemCommands>(
            buses.system, *answers, tell, *saver, [this](const CaptureScreen& wish) { captures.push_back(wish); });
    }

    void run(const SystemCommand& command)
    {
        inBackground([&] { commands->run(command); });
    }

    std::unique_ptr<ScreenSaver> saver;
    std::unique_ptr<LinuxSystemCommands> commands;
    std::vector<CaptureScreen> captures;
    std::atomic<int> timesSwitchedOff = 0;
};

} // namespace

TEST_F(CommandsOnBus, sleepIsAskedOfTheLoginManager)
{
    const auto manager = loginManager();
    manager->addMethod("Suspend", "b");
    run(SleepNow{});
    ASSERT_TRUE(manager->isCalled(1));
    EXPECT_EQ(manager->calls(), QStringList(QStringLiteral("Suspend true")));
    EXPECT_EQ(told(), QStringList());
}

TEST_F(CommandsOnBus, aProgramThatForbidsSleepIsShown)
{
    const auto manager = loginManager();
    manager->addRefusal(
        "Suspend", "b", "org.freedesktop.login1.BlockedByInhibitorLock", "Operation inhibited by burner");
    run(SleepNow{});
    EXPECT_TRUE(tells("Sleep refused: Operation inhibited by burner"));
}

TEST_F(CommandsOnBus, withoutALoginManagerSleepIsNotAvailable)
{
    run(SleepNow{});
    EXPECT_TRUE(tells("Not available on this desktop: Sleep"));
}

TEST_F(CommandsOnBus, theDisplaysAreSwitchedOffWhenTheKeyHasBeenLetGo)
{
    run(DisplaySleepNow{});
    EXPECT_EQ(timesSwitchedOff, 0);
    EXPECT_TRUE(eventually([this] { return timesSwitchedOff == 1; }));
}

TEST_F(CommandsOnBus, theSecondRoadToTheEndOfTheSessionIsSilent)
{
    const auto manager = loginManager();
    manager->addMethod("PowerOff", "b");
    run(RequestPowerEvent{.event = PowerEvent::shutDown});
    EXPECT_EQ(manager->calls(), QStringList());
}

TEST_F(CommandsOnBus, aPictureIsTakenByWhoeverTakesPictures)
{
    const CaptureScreen wish{.mode = ScreenCaptureMode::window, .file = QStringLiteral("/tmp/x.png")};
    run(wish);
    EXPECT_EQ(captures, std::vector{wish});
}

} // namespace tarvin::services
