#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QVariantList>

#include <chrono>
#include <functional>

namespace tarvin::services {

/// The two message buses. Asked for on background threads only, since the first asking connects.
struct Buses
{
    using Provider = std::function<QDBusConnection()>;
    Provider session;
    Provider system;

    /// Those that the environment names.
    [[nodiscard]] static Buses ofEnvironment();
};

/// One object with one of its interfaces. The texts are literals of tables.
struct BusObject
{
    QStringView service;
    QStringView path;
    QStringView interface;
};

/// Long enough for a service that is awake; one that hangs costs an action no more than this.
inline constexpr std::chrono::milliseconds answerTime(1500);

/// A call that is ready to go.
[[nodiscard]] QDBusMessage callOf(const BusObject& object, QStringView method, const QVariantList& arguments = {});

/// Calls and waits for the answer; for background threads. An error where the bus is not there.
[[nodiscard]] QDBusMessage askAndWait(
    const QDBusConnection& bus, const QDBusMessage& call, std::chrono::milliseconds limit = answerTime);

/// Whether somebody has the name on the bus now.
[[nodiscard]] bool isOnBus(const QDBusConnection& bus, QStringView service);

/// Whether an error says that the other side has no such function, rather than that it refused or failed.
[[nodiscard]] bool meansMissing(const QDBusMessage& answer);
/// Whether nobody answered in time; what was asked may still happen.
[[nodiscard]] bool meansSilence(const QDBusMessage& answer);

} // namespace tarvin::services
