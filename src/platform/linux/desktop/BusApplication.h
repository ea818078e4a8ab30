#pragma once

#include "platform/linux/desktop/InstanceSocket.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

namespace tarvin::desktop {

/// The program on the session bus, as `org.freedesktop.Application` has it: what launchers, portals and a second
/// instance call. In the first instance.
class BusApplication : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// @param host carries the object on the bus and owns this one
    BusApplication(QObject& host, InstanceRequestHandler handler);

    enum class Claim { granted, takenByAnother, noBus };
    /// Puts the object on the bus and takes the program's name there, in this order: who finds the name finds the
    /// object.
    [[nodiscard]] Claim claimName(QDBusConnection& bus);

    /// In the second instance: hands the request to whoever has the name.
    /// @return false where nobody answers in time
    [[nodiscard]] static bool send(
        QDBusConnection& bus, const InstanceRequest& request, std::chrono::milliseconds timeout);

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    void Activate(const QVariantMap& platformData); // NOLINT(readability-identifier-naming): the bus name
    void Open(const QStringList& urls, const QVariantMap& platformData); // NOLINT(readability-identifier-naming)
    /// There are no actions beside coming forward; any name does that.
    void ActivateAction( // NOLINT(readability-identifier-naming)
        const QString& name, const QVariantList& parameter, const QVariantMap& platformData);

private:
    QObject& m_host;
    InstanceRequestHandler m_handler;
};

} // namespace tarvin::desktop
