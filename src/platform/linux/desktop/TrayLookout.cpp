#include "platform/linux/desktop/TrayLookout.h"

#include "platform/linux/desktop/XConnection.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>

#include <string_view>

namespace tarvin::desktop {

namespace {

using namespace std::chrono_literals;

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

/// The last of the ever longer pauses between two looks for an X tray.
constexpr std::chrono::milliseconds longestPause = 64s;

} // namespace

bool hasXTray()
{
    const auto* const application = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!application)
        return false;
    xcb_connection_t* const connection = application->connection();
    constexpr std::string_view selection = "_NET_SYSTEM_TRAY_S0";
    const XPointer<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(connection,
        xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(selection.size()), selection.data()), nullptr));
    if (!atom || atom->atom == XCB_NONE)
        return false;
    const XPointer<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_NONE;
}

TrayLookout::TrayLookout(Scheduler& scheduler, QDBusConnection sessionBus, std::function<bool()> hasXTray)
    : m_scheduler(scheduler)
    , m_bus(std::move(sessionBus))
    , m_watcher(watcherService, m_bus, QDBusServiceWatcher::WatchForRegistration)
    , m_hasXTray(std::move(hasXTray))
{
    if (m_bus.isConnected()) {
        connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &TrayLookout::askBus);
        m_bus.connect(watcherService, watcherPath, watcherService, QStringLiteral("StatusNotifierHostRegistered"), this,
            SLOT(askBus()));
        askBus();
    }
    m_nextLook = m_scheduler.startOneShot(grace, [this] { lookForXTray(2 * grace); });
    m_complaint = m_scheduler.startOneShot(patience, [this] { Q_EMIT nothingYet(); });
}

TrayLookout::~TrayLookout() = default;

void TrayLookout::askBus()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        watcherService, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << watcherService << QStringLiteral("IsStatusNotifierHostRegistered");
    call.setAutoStartService(false);
    auto* const answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, &TrayLookout::hostAnswered);
}

void TrayLookout::hostAnswered(QDBusPendingCallWatcher* answer)
{
    const QDBusPendingReply<QDBusVariant> reply = *answer;
    answer->deleteLater();
    if (reply.isValid() && reply.value().variant().toBool())
        settle(TrayKind::statusNotifier);
}

void TrayLookout::lookForXTray(std::chrono::milliseconds next)
{
    if (m_hasXTray())
        m_scheduler.post([this] { settle(TrayKind::xTray); });
    else if (next <= longestPause)
        m_nextLook = m_scheduler.startOneShot(next, [this, next] { lookForXTray(2 * next); });
}

void TrayLookout::settle(TrayKind kind)
{
    if (m_settled)
        return;
    m_settled = true;
    m_nextLook.reset();
    m_complaint.reset();
    m_watcher.setWatchedServices({});
    Q_EMIT found(kind);
}

} // namespace tarvin::desktop
