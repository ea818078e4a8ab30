#include "platform/linux/feedback/UPowerSources.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <cmath>

namespace tarvin::feedback {

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.UPower");
const QString displayDevicePath = QStringLiteral("/org/freedesktop/UPower/devices/DisplayDevice");
const QString deviceInterface = QStringLiteral("org.freedesktop.UPower.Device");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

// The numbers of the interface org.freedesktop.UPower.Device.
constexpr uint typeBattery = 2;
constexpr uint typeUninterruptibleSupply = 3;
constexpr uint stateUnknown = 0;
constexpr uint stateCharging = 1;

} // namespace

UPowerSources::UPowerSources(QDBusConnection systemBus)
    : m_bus(std::move(systemBus))
    , m_service(
          serviceName, m_bus, QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration)
{
    if (!m_bus.isConnected())
        return;
    connect(&m_service, &QDBusServiceWatcher::serviceRegistered, this, &UPowerSources::ask);
    connect(&m_service, &QDBusServiceWatcher::serviceUnregistered, this, &UPowerSources::forget);
    m_bus.connect(serviceName, displayDevicePath, propertiesInterface, QStringLiteral("PropertiesChanged"), this,
        SLOT(deviceChanged(QString, QVariantMap, QStringList)));
    ask();
}

std::optional<std::vector<PowerSource>> UPowerSources::read() const
{
    if (m_device.isEmpty())
        return std::nullopt;
    const uint type = m_device.value(QStringLiteral("Type")).toUInt();
    const bool isBattery = type == typeBattery || type == typeUninterruptibleSupply;
    if (!isBattery || !m_device.value(QStringLiteral("IsPresent")).toBool())
        return std::vector<PowerSource>();
    PowerSource source;
    bool isNumber = false;
    const double percentage = m_device.value(QStringLiteral("Percentage")).toDouble(&isNumber);
    if (isNumber && std::isfinite(percentage))
        source.currentCapacity = static_cast<int>(std::lround(percentage));
    if (const uint state = m_device.value(QStringLiteral("State")).toUInt(); state != stateUnknown)
        source.isCharging = state == stateCharging;
    return std::vector{source};
}

void UPowerSources::ask()
{
    // The service is started by the system where it is installed; there is no need to wait for it.
    QDBusMessage call =
        QDBusMessage::createMethodCall(serviceName, displayDevicePath, propertiesInterface, QStringLiteral("GetAll"));
    call << deviceInterface;
    auto* const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        const QDBusPendingReply<QVariantMap> reply = *finished;
        finished->deleteLater();
        if (reply.isValid())
            take(reply.value());
    });
}

void UPowerSources::forget()
{
    if (m_device.isEmpty())
        return;
    m_device.clear();
    Q_EMIT changed();
}

void UPowerSources::take(const QVariantMap& properties)
{
    QVariantMap device = m_device;
    device.insert(properties);
    if (device == m_device)
        return;
    m_device = device;
    Q_EMIT changed();
}

void UPowerSources::deviceChanged(
    const QString& interface, const QVariantMap& properties, const QStringList& invalidated)
{
    if (interface != deviceInterface)
        return;
    take(properties);
    if (!invalidated.isEmpty())
        ask();
}

} // namespace tarvin::feedback
