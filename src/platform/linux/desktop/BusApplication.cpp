#include "platform/linux/desktop/BusApplication.h"

#include "platform/linux/desktop/ApplicationId.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace tarvin::desktop {

namespace {

const QString startupIdKey = QStringLiteral("desktop-startup-id");
const QString activationTokenKey = QStringLiteral("activation-token");

QVariantMap platformDataOf(const InstanceRequest& request)
{
    if (request.startupId.isEmpty())
        return {};
    const QString id = QString::fromUtf8(request.startupId);
    return {{startupIdKey, id}, {activationTokenKey, id}};
}

QByteArray startupIdOf(const QVariantMap& platformData)
{
    const QString id = platformData.value(startupIdKey).toString();
    return (id.isEmpty() ? platformData.value(activationTokenKey).toString() : id).toUtf8();
}

} // namespace

BusApplication::BusApplication(QObject& host, InstanceRequestHandler handler)
    : QDBusAbstractAdaptor(&host)
    , m_host(host)
    , m_handler(std::move(handler))
{ }

BusApplication::Claim BusApplication::claimName(QDBusConnection& bus)
{
    if (!bus.isConnected() || !bus.interface())
        return Claim::noBus;
    const QString path = applicationObjectPath.toString();
    bus.registerObject(path, &m_host, QDBusConnection::ExportAdaptors);
    const auto reply = bus.interface()->registerService(applicationId.toString(),
        QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered)
        return reply.isValid() ? Claim::granted : Claim::noBus;
    bus.unregisterObject(path);
    return Claim::takenByAnother;
}

bool BusApplication::send(QDBusConnection& bus, const InstanceRequest& request, std::chrono::milliseconds timeout)
{
    if (!bus.isConnected())
        return false;
    const bool isOpen = !request.urls.isEmpty();
    QDBusMessage call = QDBusMessage::createMethodCall(applicationId.toString(), applicationObjectPath.toString(),
        QStringLiteral("org.freedesktop.Application"), isOpen ? QStringLiteral("Open") : QStringLiteral("Activate"));
    // Else the bus might start one more instance for us.
    call.setAutoStartService(false);
    if (isOpen)
        call << request.urls;
    call << platformDataOf(request);
    const QDBusMessage answer = bus.call(call, QDBus::Block, static_cast<int>(timeout.count()));
    return answer.type() == QDBusMessage::ReplyMessage;
}

void BusApplication::Activate(const QVariantMap& platformData)
{
    m_handler({.urls = {}, .startupId = startupIdOf(platformData)});
}

void BusApplication::Open(const QStringList& urls, const QVariantMap& platformData)
{
    m_handler({.urls = urls, .startupId = startupIdOf(platformData)});
}

void BusApplication::ActivateAction(const QString&, const QVariantList&, const QVariantMap& platformData)
{
    Activate(platformData);
}

} // namespace tarvin::desktop
