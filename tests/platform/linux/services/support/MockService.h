#pragma once

#include "endtoend/support/ChildProcess.h"

#include <QDBusConnection>
#include <QStringList>
#include <QVariantList>

#include <memory>
#include <optional>
#include <string>

namespace tarvin::endtoend {

/// A message bus of one's own.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    [[nodiscard]] const std::string& address() const { return m_address; }
    [[nodiscard]] QDBusConnection connection() const { return QDBusConnection(m_name); }

private:
    std::unique_ptr<ChildProcess> m_daemon;
    std::string m_address;
    QString m_name; ///< of our connection to it
};

/// A service that is not there in truth: it writes down what it is asked. Made by the tool python3-dbusmock.
class MockService
{
public:
    /// Why the machine has none, in words for a skipped test; empty if it has.
    [[nodiscard]] static std::optional<std::string> lack();

    /// Returns when the service is on the bus.
    MockService(const PrivateBus& bus, const char* service, const char* path, const char* interface);

    /// @param signature of the arguments
    /// @param code in Python, what the method does; may raise `dbus.exceptions.DBusException`
    void addMethod(const char* name, const char* signature, const char* code = "");
    /// A method that says no.
    void addRefusal(const char* name, const char* signature, const char* error, const char* reason);
    void addProperty(const char* name, const QVariant& value);
    void setProperty(const char* name, const QVariant& value);

    /// What was asked, in order: "Suspend true".
    [[nodiscard]] QStringList calls() const;
    /// Waits until it was asked that often.
    [[nodiscard]] bool isCalled(qsizetype times) const;
    /// The value of a property now.
    [[nodiscard]] QVariant property(const char* name) const;

private:
    [[nodiscard]] QVariantList ask(const char* interface, const char* method, const QVariantList& arguments) const;

    QDBusConnection m_bus;
    const char* m_service;
    const char* m_path;
    const char* m_interface;
    std::unique_ptr<ChildProcess> m_process;
};

} // namespace tarvin::endtoend
