#include "platform/linux/feedback/UPowerSources.h"

#include "endtoend/support/ChildProcess.h"
#include "platform/simulated/SimulatedScheduler.h"
#include "shell/BatteryHelper.h"

#include <gtest/gtest.h>

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace tarvin::feedback {

namespace {

using endtoend::ChildProcess;
using endtoend::eventually;

const QString displayDevice = QStringLiteral("/org/freedesktop/UPower/devices/DisplayDevice");
constexpr uint charging = 1;
constexpr uint discharging = 2;
constexpr uint fullyCharged = 4;
const char* const python = "/usr/bin/python3";

/// A system bus of the test's own with a power service that does what the test says.
class UPowerSourcesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!ChildProcess::isInstalled("dbus-daemon"))
            GTEST_SKIP() << "dbus-daemon is not installed";
        if (ChildProcess({python, "-c", "import dbusmock"}).waitForEnd() != 0)
            GTEST_SKIP() << "python3-dbusmock is not installed";
        busDaemon = std::make_unique<ChildProcess>(
            std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"});
        const std::optional<std::string> printed = busDaemon->readLine();
        ASSERT_TRUE(printed);
        address = *printed;
        bus = QDBusConnection::connectToBus(QString::fromStdString(address), QStringLiteral("power-test"));
        ASSERT_TRUE(bus.isConnected());
    }
    void TearDown() override { QDBusConnection::disconnectFromBus(QStringLiteral("power-test")); }

    void startService()
    {
        service = std::make_unique<ChildProcess>(
            std::vector<std::string>{python, "-m", "dbusmock", "--system", "--template", "upower"},
            ChildProcess::Environment{{"DBUS_SYSTEM_BUS_ADDRESS", address}});
        ASSERT_TRUE(eventually([this] {
            return QDBusConnection(bus)
                       .call(mockCall(QStringLiteral("EnumerateDevices"), QStringLiteral("org.freedesktop.UPower")))
                       .type()
                == QDBusMessage::ReplyMessage;
        }));
    }

    [[nodiscard]] static QDBusMessage mockCall(
        const QString& method, const QString& interface = QStringLiteral("org.freedesktop.DBus.Mock"))
    {
        return QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.UPower"), QStringLiteral("/org/freedesktop/UPower"), interface, method);
    }

    /// A battery as the service tells of it.
    void setBattery(double percentage, uint state, bool isPresent = true, uint type = 2)
    {
        QDBusMessage call = mockCall(QStringLiteral("SetupDisplayDevice"));
        call << type << state << percentage << 40.0 << 80.0 << 5.0 << qlonglong(3600) << qlonglong(0) << isPresent
             << QStringLiteral("battery-symbolic") << 1U;
        ASSERT_EQ(bus.call(call).type(), QDBusMessage::ReplyMessage);
    }

    void setProperty(const QString& name, const QVariant& value)
    {
        QDBusMessage call = mockCall(QStringLiteral("SetDeviceProperties"));
        call << QVariant::fromValue(QDBusObjectPath(displayDevice)) << QVariantMap{{name, value}};
        ASSERT_EQ(bus.call(call).type(), QDBusMessage::ReplyMessage);
    }

    [[nodiscard]] static bool tells(const UPowerSources& sources, int capacity, bool isCharging)
    {
        const auto read = sources.read();
        return read && read->size() == 1 && read->front().currentCapacity == capacity
            && read->front().isCharging == isCharging;
    }

    std::unique_ptr<ChildProcess> busDaemon;
    std::string address;
    QDBusConnection bus{QString()};
    std::unique_ptr<ChildProcess> service;
};

} // namespace

TEST_F(UPowerSourcesTest, aBatteryDrainsAndCharges)
{
    startService();
    setBattery(81.4, discharging);
    const UPowerSources sources(bus);
    EXPECT_TRUE(eventually([&] { return tells(sources, 81, false); }));
    setProperty(QStringLiteral("Percentage"), 79.6);
    EXPECT_TRUE(eventually([&] { return tells(sources, 80, false); }));
    setProperty(QStringLiteral("Percentage"), 5.0);
    EXPECT_TRUE(eventually([&] { return tells(sources, 5, false); }));
    setProperty(QStringLiteral("State"), charging);
    EXPECT_TRUE(eventually([&] { return tells(sources, 5, true); }));
    setProperty(QStringLiteral("Percentage"), 100.0);
    setProperty(QStringLiteral("State"), fullyCharged);
    EXPECT_TRUE(eventually([&] { return tells(sources, 100, false); }));
}

TEST_F(UPowerSourcesTest, theFooterFollowsTheBatteryAtOnceWhenTold)
{
    startService();
    setBattery(60, discharging);
    UPowerSources sources(bus);
    simulated::SimulatedScheduler scheduler;
    BatteryHelper battery(sources, scheduler);
    QObject::connect(&sources, &UPowerSources::changed, &battery, &BatteryHelper::refresh);
    EXPECT_TRUE(eventually([&] { return battery.percentage() == 60; }));
    EXPECT_EQ(battery.batteryIcon(), u"battery.75");
    setProperty(QStringLiteral("State"), charging);
    EXPECT_TRUE(eventually([&] { return battery.batteryIcon() == u"battery.100.bolt"; }));
}

TEST_F(UPowerSourcesTest, aComputerWithoutABatteryHasNoSource)
{
    startService();
    const UPowerSources sources(bus);
    EXPECT_TRUE(eventually([&] { return sources.read().has_value(); }));
    EXPECT_TRUE(sources.read()->empty());
    setBattery(50, discharging, true, 1); // the mains are no battery
    EXPECT_TRUE(eventually([&] { return sources.read().has_value(); }));
    EXPECT_TRUE(sources.read()->empty());
}

TEST_F(UPowerSourcesTest, aBatteryTakenOutIsNoSourceAnyMore)
{
    startService();
    setBattery(50, discharging);
    const UPowerSources sources(bus);
    ASSERT_TRUE(eventually([&] { return tells(sources, 50, false); }));
    setProperty(QStringLiteral("IsPresent"), false);
    EXPECT_TRUE(eventually([&] { return sources.read() && sources.read()->empty(); }));
}

TEST_F(UPowerSourcesTest, anUnknownStateTellsNothingOfCharging)
{
    startService();
    setBattery(50, 0);
    const UPowerSources sources(bus);
    ASSERT_TRUE(eventually([&] { return sources.read() && !sources.read()->empty(); }));
    EXPECT_EQ(sources.read()->front().currentCapacity, 50);
    EXPECT_EQ(sources.read()->front().isCharging, std::nullopt);
}

TEST_F(UPowerSourcesTest, aServiceThatComesLaterIsHeardAndOneThatGoesIsForgotten)
{
    const UPowerSources sources(bus);
    EXPECT_FALSE(sources.read());
    startService();
    EXPECT_TRUE(eventually([&] { return sources.read().has_value(); }));
    setBattery(33, charging);
    EXPECT_TRUE(eventually([&] { return tells(sources, 33, true); }));
    service.reset();
    EXPECT_TRUE(eventually([&] { return !sources.read(); }));
}

TEST_F(UPowerSourcesTest, withoutASystemBusNothingIsKnown)
{
    const UPowerSources sources{QDBusConnection(QStringLiteral("no such bus"))};
    EXPECT_FALSE(sources.read());
}

} // namespace tarvin::feedback
