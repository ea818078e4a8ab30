#pragma once

#include "platform/linux/desktop/XAtoms.h"

#include "platform/ports/Console.h"
#include "platform/ports/Scheduler.h"

#include <QByteArray>
#include <QObject>

#include <cstdlib>
#include <deque>
#include <memory>
#include <vector>

#include <xcb/xcb.h>

class QSocketNotifier;

namespace tarvin::desktop {

struct XFree
{
    void operator()(void* memory) const { std::free(memory); } // NOLINT(cppcoreguidelines-no-malloc)
};

/// A reply or an event of the server, freed with its owner.
template <typename Content> using XPointer = std::unique_ptr<Content, XFree>;

/// A connection of our own to the X server, beside the one of the toolkit: it works without windows, and its event
/// selections on the root window disturb nobody. Main thread only.
///
/// Where there is no server the object exists unconnected and stays so. A connection that breaks is made again as soon
/// as the server allows it.
class XConnection : public QObject
{
    Q_OBJECT

public:
    /// @param display as the variable `DISPLAY` has it; empty for that variable
    XConnection(Scheduler& scheduler, Console& console, QByteArray display = {});
    ~XConnection() override;

    [[nodiscard]] bool isConnected() const { return m_connection != nullptr; }
    /// Null when not connected.
    [[nodiscard]] xcb_connection_t* handle() const { return m_connection.get(); }
    [[nodiscard]] xcb_window_t root() const { return m_root; }
    [[nodiscard]] xcb_atom_t atom(XAtom atom) const { return m_atoms[static_cast<std::size_t>(atom)]; }
    /// The server's time now, by a round trip; window managers compare it with that of the user's last input.
    [[nodiscard]] xcb_timestamp_t serverTime();

Q_SIGNALS:
    /// The connection is there again after it was lost.
    void connected();
    void lost();
    /// An event arrived. Not emitted from within a request to the server.
    void eventArrived(const xcb_generic_event_t& event);

private:
    struct Disconnect
    {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    bool connectToServer();
    void internAtoms();
    using NextEvent = xcb_generic_event_t* (*)(xcb_connection_t*);
    void handleEvents(NextEvent nextEvent);
    void loseConnection();
    void tryAgainLater();

    Scheduler& m_scheduler;
    Console& m_console;
    const QByteArray m_display;
    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_window_t m_root = XCB_NONE;
    xcb_window_t m_timeWindow = XCB_NONE; ///< never shown; its property changes tell the server's time
    std::array<xcb_atom_t, xAtomCount> m_atoms{};
    std::deque<XPointer<xcb_generic_event_t>> m_backlog; ///< came while an answer was waited for
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unique_ptr<Timer> m_retry;
};

} // namespace tarvin::desktop
