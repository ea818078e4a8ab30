#include "platform/linux/services/ScreenSaver.h"

#include "platform/linux/services/ServicesOnBus.h"

namespace tarvin::services {

namespace {

class SaverOnBus : public ServicesOnBus
{
protected:
    void SetUp() override
    {
        ServicesOnBus::SetUp();
        if (!IsSkipped())
            saver =
                std::make_unique<ScreenSaver>(scheduler, buses, *answers, tell, [this] { return canSwitchOff.load(); });
    }

    [[nodiscard]] std::unique_ptr<MockService> screenSaver(
        const char* service, const char* path, const char* interface) const
    {
        return std::make_unique<MockService>(*sessionBus, service, path, interface);
    }

    void lock()
    {
        inBackground([this] { saver->lock(); });
    }

    std::atomic<bool> canSwitchOff = false;
    std::unique_ptr<ScreenSaver> saver;
};

} // namespace

TEST_F(SaverOnBus, theDesktopsScreenSaverLocks)
{
    const auto gnome = screenSaver("org.gnome.ScreenSaver", "/org/gnome/ScreenSaver", "org.gnome.ScreenSaver");
    gnome->addMethod("Lock", "");
    lock();
    EXPECT_EQ(gnome->calls(), QStringList(QStringLiteral("Lock")));
    EXPECT_EQ(told(), QStringList());
}

TEST_F(SaverOnBus, aScreenSaverThatWantsATextGetsAnEmptyOne)
{
    const auto cinnamon =
        screenSaver("org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver", "org.cinnamon.ScreenSaver");
    cinnamon->addMethod("Lock", "s");
    lock();
    EXPECT_EQ(cinnamon->calls(), QStringList(QStringLiteral("Lock ''")));
}

TEST_F(SaverOnBus, aServiceThatOnlyKeepsTheScreenAwakeIsPassedOver)
{
    // GNOME's session has this name for programs that play films.
    const auto awake =
        screenSaver("org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver");
    awake->addMethod("Inhibit", "ss");
    const auto xfce = screenSaver("org.xfce.ScreenSaver", "/org/xfce/ScreenSaver", "org.xfce.ScreenSaver");
    xfce->addMethod("Lock", "");
    lock();
    EXPECT_EQ(xfce->calls(), QStringList(QStringLiteral("Lock")));
}

TEST_F(SaverOnBus, aRefusalToLockIsShown)
{
    const auto plasma =
        screenSaver("org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver");
    plasma->addRefusal("Lock", "", "org.freedesktop.DBus.Error.AccessDenied", "Locking is disabled");
    lock();
    EXPECT_TRUE(tells("Lock Screen refused: Locking is disabled"));
}

TEST_F(SaverOnBus, whereTheDisplayServerCantTheScreenSaverBlanks)
{
    const auto gnome = screenSaver("org.gnome.ScreenSaver", "/org/gnome/ScreenSaver", "org.gnome.ScreenSaver");
    gnome->addMethod("SetActive", "b");
    saver->blankDisplays();
    ASSERT_TRUE(gnome->isCalled(1));
    EXPECT_EQ(gnome->calls(), QStringList(QStringLiteral("SetActive true")));
    EXPECT_EQ(told(), QStringList());
}

TEST_F(SaverOnBus, whereTheDisplayServerCanNobodyElseIsAsked)
{
    canSwitchOff = true;
    const auto gnome = screenSaver("org.gnome.ScreenSaver", "/org/gnome/ScreenSaver", "org.gnome.ScreenSaver");
    gnome->addMethod("SetActive", "b");
    saver->blankDisplays();
    static_cast<void>(eventually([] { return false; }, std::chrono::milliseconds(1200)));
    EXPECT_EQ(gnome->calls(), QStringList());
}

TEST_F(SaverOnBus, whereNobodyCanBlankTheUserIsTold)
{
    saver->blankDisplays();
    EXPECT_TRUE(tells("Not available on this desktop: Sleep Display"));
}

} // namespace tarvin::services
