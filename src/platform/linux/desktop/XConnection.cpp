#include "platform/linux/desktop/XConnection.h"

#include <QAbstractEventDispatcher>
#include <QSocketNotifier>

namespace tarvin::desktop {

namespace {

using namespace std::chrono_literals;

constexpr auto reconnectInterval = 2s;

/// The high bit of an event's type says that another client sent it.
constexpr std::uint8_t typeMask = 0x7F;

} // namespace

XConnection::XConnection(Scheduler& scheduler, Console& console, QByteArray display)
    : m_scheduler(scheduler)
    , m_console(console)
    , m_display(display.isEmpty() ? qgetenv("DISPLAY") : std::move(display))
{
    // Events may lie in the library's queue, read together with the answer to a request; the socket tells nothing then.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
        [this] { handleEvents(&xcb_poll_for_queued_event); });
    if (!m_display.isEmpty())
        (void)connectToServer();
}

XConnection::~XConnection() = default;

bool XConnection::connectToServer()
{
    int screenNumber = 0;
    m_connection.reset(xcb_connect(m_display.constData(), &screenNumber));
    if (xcb_connection_has_error(m_connection.get()) != 0) {
        m_connection.reset();
        return false;
    }
    xcb_screen_iterator_t screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get()));
    for (; screenNumber > 0 && screen.rem > 1; --screenNumber)
        xcb_screen_next(&screen);
    m_root = screen.data->root;
    internAtoms();

    m_timeWindow = xcb_generate_id(m_connection.get());
    const std::uint32_t eventMask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_timeWindow, m_root, -1, -1, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &eventMask);
    xcb_flush(m_connection.get());

    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection.get()), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { handleEvents(&xcb_poll_for_event); });
    return true;
}

void XConnection::internAtoms()
{
    std::array<xcb_intern_atom_cookie_t, xAtomCount> cookies{};
    for (std::size_t i = 0; i < xAtomCount; ++i)
        cookies[i] = xcb_intern_atom(
            m_connection.get(), 0, static_cast<std::uint16_t>(xAtomNames[i].size()), xAtomNames[i].data());
    for (std::size_t i = 0; i < xAtomCount; ++i) {
        const XPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection.get(), cookies[i], nullptr));
        m_atoms[i] = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
}

void XConnection::handleEvents(NextEvent nextEvent)
{
    while (m_connection) {
        XPointer<xcb_generic_event_t> event;
        if (!m_backlog.empty()) {
            event = std::move(m_backlog.front());
            m_backlog.pop_front();
        } else {
            event.reset(nextEvent(m_connection.get()));
        }
        if (!event)
            break;
        // Type 0 is an error: a window that went between an event and our request about it. The request's own
        // answer, or its absence, has told that already.
        if ((event->response_type & typeMask) != 0)
            Q_EMIT eventArrived(*event);
    }
    if (m_connection && xcb_connection_has_error(m_connection.get()) != 0)
        loseConnection();
}

void XConnection::loseConnection()
{
    m_console.printLine(QStringLiteral("[Tarvin] The connection to the X server broke."));
    // The notifier may be the sender of what is being handled.
    m_notifier->setEnabled(false);
    m_notifier.release()->deleteLater();
    m_backlog.clear();
    m_connection.reset();
    Q_EMIT lost();
    tryAgainLater();
}

void XConnection::tryAgainLater()
{
    m_retry = m_scheduler.startOneShot(reconnectInterval, [this] {
        if (!connectToServer()) {
            tryAgainLater();
            return;
        }
        m_console.printLine(QStringLiteral("[Tarvin] Connected to the X server again."));
        Q_EMIT connected();
    });
}

xcb_timestamp_t XConnection::serverTime()
{
    if (!m_connection)
        return XCB_CURRENT_TIME;
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_APPEND, m_timeWindow, atom(XAtom::tarvinTime),
        XCB_ATOM_INTEGER, 32, 0, nullptr);
    xcb_flush(m_connection.get());
    while (XPointer<xcb_generic_event_t> event{xcb_wait_for_event(m_connection.get())}) {
        if ((event->response_type & typeMask) == XCB_PROPERTY_NOTIFY) {
            const auto* change = reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
            if (change->window == m_timeWindow)
                return change->time;
        }
        m_backlog.push_back(std::move(event));
    }
    return XCB_CURRENT_TIME; // the connection broke; handleEvents will notice
}

} // namespace tarvin::desktop
