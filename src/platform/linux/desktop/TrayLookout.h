#pragma once

#include "platform/ports/Scheduler.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <cstdint>
#include <functional>

class QDBusPendingCallWatcher;

namespace tarvin::desktop {

/// Where a desktop shows the items of programs.
enum class TrayKind : std::uint8_t {
    statusNotifier, ///< a panel that asks over the session bus
    xTray, ///< a window of the older kind that takes in ours
};

/// Whether some window on the display takes in tray icons now. Asks the X server of the application object; false
/// without one.
[[nodiscard]] bool hasXTray();

/// Waits until the desktop has a place for a menu bar item, since at login the panel may come after us. The bus is
/// asked first, because the toolkit asks it only once; the X tray stands in when the bus has said no. Main thread only.
class TrayLookout : public QObject
{
    Q_OBJECT

public:
    /// How long the X tray is not taken, so that a panel which serves both is found by its better side.
    static constexpr std::chrono::milliseconds grace = std::chrono::seconds(1);
    /// When a desktop without any place is told of; the lookout goes on. The looks for an X tray come ever more rarely
    /// and end after some minutes, those for a panel on the bus cost nothing and never end.
    static constexpr std::chrono::milliseconds patience = std::chrono::seconds(7);

    TrayLookout(Scheduler& scheduler, QDBusConnection sessionBus, std::function<bool()> hasXTray);
    ~TrayLookout() override;
    Q_DISABLE_COPY_MOVE(TrayLookout)

Q_SIGNALS:
    /// Once.
    void found(tarvin::desktop::TrayKind kind);
    /// At most once, before or without `found`.
    void nothingYet();

private:
    void hostAnswered(QDBusPendingCallWatcher* answer);
    void lookForXTray(std::chrono::milliseconds next);
    void settle(TrayKind kind);

    Scheduler& m_scheduler;
    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    std::function<bool()> m_hasXTray;
    std::unique_ptr<Timer> m_nextLook;
    std::unique_ptr<Timer> m_complaint;
    bool m_settled = false;

private Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    void askBus();
};

} // namespace tarvin::desktop
