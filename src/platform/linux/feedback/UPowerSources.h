#pragma once

#include "platform/ports/PowerSources.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

namespace tarvin::feedback {

/// The batteries as the system's power service tells of them: all of them together as one source, which is what the
/// service calls its display device. What it last said is kept; nothing here waits for an answer. Main thread only.
class UPowerSources : public QObject, public PowerSources
{
    Q_OBJECT

public:
    /// Asks the service at once; the answer comes on a later turn.
    explicit UPowerSources(QDBusConnection systemBus);

    /// Nothing while the service is not there; no source on a machine without a battery.
    [[nodiscard]] std::optional<std::vector<PowerSource>> read() const override;

Q_SIGNALS:
    /// What `read` tells is another thing now.
    void changed();

private:
    void ask();
    void forget();
    void take(const QVariantMap& properties);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_service;
    QVariantMap m_device; ///< what is known of the display device; empty while nothing is

private Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    void deviceChanged(const QString& interface, const QVariantMap& properties, const QStringList& invalidated);
};

} // namespace tarvin::feedback
