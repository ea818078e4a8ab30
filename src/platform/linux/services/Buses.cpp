#include "platform/linux/services/Buses.h"

#include <QDBusError>

namespace tarvin::services {

namespace {

constexpr BusObject busItself{u"org.freedesktop.DBus", u"/org/freedesktop/DBus", u"org.freedesktop.DBus"};

} // namespace

Buses Buses::ofEnvironment()
{
    return {
        .session = [] { return QDBusConnection::sessionBus(); }, .system = [] { return QDBusConnection::systemBus(); }};
}

QDBusMessage callOf(const BusObject& object, QStringView method, const QVariantList& arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        object.service.toString(), object.path.toString(), object.interface.toString(), method.toString());
    call.setArguments(arguments);
    return call;
}

QDBusMessage askAndWait(const QDBusConnection& bus, const QDBusMessage& call, std::chrono::milliseconds limit)
{
    if (!bus.isConnected())
        return call.createErrorReply(QDBusError::Disconnected, QStringLiteral("There is no message bus"));
    return bus.call(call, QDBus::Block, static_cast<int>(limit.count()));
}

bool isOnBus(const QDBusConnection& bus, QStringView service)
{
    const QDBusMessage answer = askAndWait(bus, callOf(busItself, u"NameHasOwner", {service.toString()}));
    return answer.type() == QDBusMessage::ReplyMessage && answer.arguments().value(0).toBool();
}

bool meansMissing(const QDBusMessage& answer)
{
    switch (QDBusError(answer).type()) {
    case QDBusError::UnknownMethod:
    case QDBusError::UnknownInterface:
    case QDBusError::UnknownObject:
    case QDBusError::UnknownProperty:
    case QDBusError::InvalidSignature:
    case QDBusError::ServiceUnknown:
    case QDBusError::Disconnected:
        return true;
    default:
        return false;
    }
}

bool meansSilence(const QDBusMessage& answer)
{
    const QDBusError::ErrorType type = QDBusError(answer).type();
    return type == QDBusError::NoReply || type == QDBusError::TimedOut || type == QDBusError::Timeout;
}

} // namespace tarvin::services
