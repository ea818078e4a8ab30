#include "platform/linux/services/support/MockService.h"

#include "endtoend/support/Patience.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <stdexcept>

namespace tarvin::endtoend {

namespace {

/// The one that Debian's packages install their modules for; the search path may have another.
const char* const systemPython = "/usr/bin/python3";

const char* const mockInterface = "org.freedesktop.DBus.Mock";

QString textOf(const QVariant& value)
{
    if (value.canConvert<QDBusVariant>())
        return textOf(value.value<QDBusVariant>().variant());
    if (value.userType() == QMetaType::QString && value.toString().isEmpty())
        return QStringLiteral("''");
    return value.toString();
}

} // namespace

PrivateBus::PrivateBus()
    : m_daemon(std::make_unique<ChildProcess>(
        std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"}))
{
    const std::optional<std::string> address = m_daemon->readLine();
    if (!address)
        throw std::runtime_error("the message bus did not start");
    m_address = *address;
    m_name = QString::fromStdString(m_address);
    if (!QDBusConnection::connectToBus(m_name, m_name).isConnected())
        throw std::runtime_error("the message bus does not answer");
}

PrivateBus::~PrivateBus()
{
    QDBusConnection::disconnectFromBus(m_name);
}

std::optional<std::string> MockService::lack()
{
    if (!ChildProcess::isInstalled("dbus-daemon"))
        return "dbus-daemon is not installed";
    ChildProcess python({systemPython, "-c", "import dbusmock; print('here')"});
    return python.readLine() ? std::nullopt : std::optional<std::string>("python3-dbusmock is not installed");
}

MockService::MockService(const PrivateBus& bus, const char* service, const char* path, const char* interface)
    : m_bus(bus.connection())
    , m_service(service)
    , m_path(path)
    , m_interface(interface)
    , m_process(std::make_unique<ChildProcess>(
          std::vector<std::string>{systemPython, "-m", "dbusmock", "--session", service, path, interface},
          ChildProcess::Environment{{"DBUS_SESSION_BUS_ADDRESS", bus.address()}}))
{
    const QString name = QString::fromLatin1(service);
    if (!eventually([&] { return m_bus.interface()->isServiceRegistered(name).value(); }))
        throw std::runtime_error("the mock service did not start");
}

void MockService::addMethod(const char* name, const char* signature, const char* code)
{
    (void)ask(mockInterface, "AddMethod",
        {QString::fromLatin1(m_interface), QString::fromLatin1(name), QString::fromLatin1(signature), QString(),
            QString::fromLatin1(code)});
}

void MockService::addRefusal(const char* name, const char* signature, const char* error, const char* reason)
{
    const std::string code = "raise dbus.exceptions.DBusException('" + std::string(reason) + "', name='" + error + "')";
    addMethod(name, signature, code.c_str());
}

void MockService::addProperty(const char* name, const QVariant& value)
{
    (void)ask(mockInterface, "AddProperty",
        {QString::fromLatin1(m_interface), QString::fromLatin1(name), QVariant::fromValue(QDBusVariant(value))});
}

void MockService::setProperty(const char* name, const QVariant& value)
{
    (void)ask("org.freedesktop.DBus.Properties", "Set",
        {QString::fromLatin1(m_interface), QString::fromLatin1(name), QVariant::fromValue(QDBusVariant(value))});
}

QStringList MockService::calls() const
{
    const QVariantList answer = ask(mockInterface, "GetCalls", {});
    QStringList calls;
    if (answer.isEmpty())
        return calls;
    const auto list = answer.first().value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        qulonglong time = 0;
        QString method;
        QVariantList arguments;
        list.beginStructure();
        list >> time >> method >> arguments;
        list.endStructure();
        for (const QVariant& argument : std::as_const(arguments))
            method += u' ' + textOf(argument);
        calls += method;
    }
    list.endArray();
    return calls;
}

bool MockService::isCalled(qsizetype times) const
{
    return eventually([&] { return calls().size() >= times; });
}

QVariant MockService::property(const char* name) const
{
    const QVariantList answer =
        ask("org.freedesktop.DBus.Properties", "Get", {QString::fromLatin1(m_interface), QString::fromLatin1(name)});
    return answer.value(0).value<QDBusVariant>().variant();
}

QVariantList MockService::ask(const char* interface, const char* method, const QVariantList& arguments) const
{
    QDBusMessage call = QDBusMessage::createMethodCall(QString::fromLatin1(m_service), QString::fromLatin1(m_path),
        QString::fromLatin1(interface), QString::fromLatin1(method));
    call.setArguments(arguments);
    const QDBusMessage answer = m_bus.call(call, QDBus::Block);
    if (answer.type() != QDBusMessage::ReplyMessage)
        throw std::runtime_error("the mock service: " + answer.errorMessage().toStdString());
    return answer.arguments();
}

} // namespace tarvin::endtoend
