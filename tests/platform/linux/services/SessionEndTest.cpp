#include "platform/linux/services/SessionEnd.h"

#include "platform/linux/services/ServicesOnBus.h"

namespace tarvin::services {

namespace {

class EndOnBus : public ServicesOnBus
{
protected:
    void send(PowerEvent event)
    {
        SessionEnd sessionEnd(buses, *answers, tell);
        inBackground([&] { sessionEnd.send(event); });
    }
};

} // namespace

TEST_F(EndOnBus, gnomesSessionManagerIsAskedSoThatApplicationsCanSave)
{
    const MockService login(
        *systemBus, "org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.login1.Manager");
    MockService gnome(*sessionBus, "org.gnome.SessionManager", "/org/gnome/SessionManager", "org.gnome.SessionManager");
    gnome.addMethod("Shutdown", "");
    gnome.addMethod("Reboot", "");
    send(PowerEvent::shutDown);
    send(PowerEvent::restart);
    EXPECT_EQ(gnome.calls(), QStringList({QStringLiteral("Shutdown"), QStringLiteral("Reboot")}));
    EXPECT_EQ(login.calls(), QStringList());
    EXPECT_EQ(told(), QStringList());
}

TEST_F(EndOnBus, aSessionManagerWithoutTheFirstCallIsAskedByTheSecond)
{
    MockService mate(*sessionBus, "org.gnome.SessionManager", "/org/gnome/SessionManager", "org.gnome.SessionManager");
    mate.addMethod("RequestReboot", "");
    send(PowerEvent::restart);
    EXPECT_EQ(mate.calls(), QStringList(QStringLiteral("RequestReboot")));
}

TEST_F(EndOnBus, plasmaIsAskedByItsOwnName)
{
    MockService plasma(*sessionBus, "org.kde.Shutdown", "/Shutdown", "org.kde.Shutdown");
    plasma.addMethod("logoutAndReboot", "");
    send(PowerEvent::restart);
    EXPECT_EQ(plasma.calls(), QStringList(QStringLiteral("logoutAndReboot")));
}

TEST_F(EndOnBus, anOlderPlasmaIsAskedInNumbers)
{
    MockService plasma(*sessionBus, "org.kde.ksmserver", "/KSMServer", "org.kde.KSMServerInterface");
    plasma.addMethod("logout", "iii");
    send(PowerEvent::shutDown);
    send(PowerEvent::restart);
    EXPECT_EQ(plasma.calls(), QStringList({QStringLiteral("logout -1 2 -1"), QStringLiteral("logout -1 1 -1")}));
}

TEST_F(EndOnBus, xfceIsAskedToLetApplicationsSave)
{
    MockService xfce(*sessionBus, "org.xfce.SessionManager", "/org/xfce/SessionManager", "org.xfce.Session.Manager");
    xfce.addMethod("Shutdown", "b");
    send(PowerEvent::shutDown);
    EXPECT_EQ(xfce.calls(), QStringList(QStringLiteral("Shutdown true")));
}

TEST_F(EndOnBus, aRefusalOfTheSessionManagerIsShownAndNobodyElseIsAsked)
{
    const MockService login(
        *systemBus, "org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.login1.Manager");
    MockService gnome(*sessionBus, "org.gnome.SessionManager", "/org/gnome/SessionManager", "org.gnome.SessionManager");
    gnome.addRefusal("Shutdown", "", "org.gnome.SessionManager.LockedDown", "Shut down is locked");
    send(PowerEvent::shutDown);
    EXPECT_TRUE(tells("Shut Down refused: Shut down is locked"));
    EXPECT_EQ(login.calls(), QStringList());
}

TEST_F(EndOnBus, withoutASessionManagerTheLoginManagerIsAsked)
{
    MockService login(
        *systemBus, "org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.login1.Manager");
    login.addMethod("PowerOff", "b");
    login.addMethod("Reboot", "b");
    send(PowerEvent::shutDown);
    ASSERT_TRUE(login.isCalled(1));
    send(PowerEvent::restart);
    ASSERT_TRUE(login.isCalled(2));
    EXPECT_EQ(login.calls(), QStringList({QStringLiteral("PowerOff true"), QStringLiteral("Reboot true")}));
}

TEST_F(EndOnBus, aRefusalOfTheLoginManagerIsShown)
{
    MockService login(
        *systemBus, "org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.login1.Manager");
    login.addRefusal("Reboot", "b", "org.freedesktop.DBus.Error.AccessDenied", "Operation inhibited by update");
    send(PowerEvent::restart);
    EXPECT_TRUE(tells("Restart refused: Operation inhibited by update"));
}

TEST_F(EndOnBus, whereNobodyIsThereTheUserIsTold)
{
    send(PowerEvent::shutDown);
    EXPECT_TRUE(tells("Not available on this desktop: Shut Down"));
}

} // namespace tarvin::services
