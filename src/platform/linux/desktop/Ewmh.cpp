#include "platform/linux/desktop/Ewmh.h"

#include <algorithm>
#include <array>

namespace tarvin::desktop {

namespace {

/// `IconicState` of the older window manager conventions.
constexpr std::uint32_t iconicState = 3;

constexpr std::array taskbarStates{XAtom::netWmStateSkipTaskbar, XAtom::netWmStateSkipPager};

} // namespace

void sendToManager(const XConnection& connection, xcb_connection_t* sender, xcb_window_t window, XAtom type,
    const std::array<std::uint32_t, 5>& data)
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = connection.atom(type);
    std::copy(data.begin(), data.end(), message.data.data32);
    xcb_send_event(sender, 0, connection.root(),
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
        reinterpret_cast<const char*>(&message));
    xcb_flush(sender);
}

void requestStates(const XConnection& connection, xcb_connection_t* sender, xcb_window_t window, StateChange change,
    XAtom state, std::optional<XAtom> otherState)
{
    sendToManager(connection, sender, window, XAtom::netWmState,
        {static_cast<std::uint32_t>(change), connection.atom(state),
            otherState ? connection.atom(*otherState) : xcb_atom_t{XCB_ATOM_NONE}, sourcePager, 0});
}

void requestActivation(
    const XConnection& connection, xcb_connection_t* sender, xcb_window_t window, xcb_timestamp_t time)
{
    sendToManager(connection, sender, window, XAtom::netActiveWindow, {sourcePager, time, XCB_NONE, 0, 0});
}

void requestMinimizing(const XConnection& connection, xcb_connection_t* sender, xcb_window_t window)
{
    sendToManager(connection, sender, window, XAtom::wmChangeState, {iconicState, 0, 0, 0, 0});
}

void requestTaskbarPresence(
    const XConnection& connection, xcb_connection_t* sender, xcb_window_t window, TaskbarPresence presence)
{
    requestStates(connection, sender, window,
        presence == TaskbarPresence::skipped ? StateChange::add : StateChange::remove, taskbarStates[0],
        taskbarStates[1]);
}

void prepareTaskbarPresence(
    const XConnection& connection, xcb_connection_t* sender, xcb_window_t window, TaskbarPresence presence)
{
    const xcb_atom_t property = connection.atom(XAtom::netWmState);
    const XPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(sender, xcb_get_property(sender, 0, window, property, XCB_ATOM_ATOM, 0, 1024), nullptr));
    std::vector<xcb_atom_t> states;
    if (reply && reply->format == 32) {
        const auto* values = static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get()));
        states.assign(values, values + reply->value_len);
    }
    for (const XAtom state : taskbarStates) {
        std::erase(states, connection.atom(state));
        if (presence == TaskbarPresence::skipped)
            states.push_back(connection.atom(state));
    }
    xcb_change_property(sender, XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_ATOM, 32,
        static_cast<std::uint32_t>(states.size()), states.data());
}

namespace {

QByteArray quoted(QByteArray value)
{
    value.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + value + '"';
}

void broadcastStartup(const XConnection& connection, const QByteArray& message)
{
    // The text goes out in pieces of 20 bytes, the first piece and the others by different message types, and its final
    // zero byte ends it. The pieces must come from a window, any will do.
    const QByteArray text = message + '\0';
    const xcb_window_t window = xcb_generate_id(connection.handle());
    xcb_create_window(connection.handle(), XCB_COPY_FROM_PARENT, window, connection.root(), -1, -1, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    constexpr qsizetype pieceSize = 20;
    for (qsizetype start = 0; start < text.size(); start += pieceSize) {
        xcb_client_message_event_t piece{};
        piece.response_type = XCB_CLIENT_MESSAGE;
        piece.format = 8;
        piece.window = window;
        piece.type = connection.atom(start == 0 ? XAtom::netStartupInfoBegin : XAtom::netStartupInfo);
        const qsizetype size = std::min(pieceSize, text.size() - start);
        std::copy_n(text.cbegin() + start, size, piece.data.data8);
        xcb_send_event(connection.handle(), 0, connection.root(), XCB_EVENT_MASK_PROPERTY_CHANGE,
            reinterpret_cast<const char*>(&piece));
    }
    xcb_destroy_window(connection.handle(), window);
    xcb_flush(connection.handle());
}

} // namespace

void announceStartup(
    const XConnection& connection, const QByteArray& startupId, const QString& name, const QString& windowClass)
{
    if (!connection.isConnected() || startupId.isEmpty())
        return;
    QByteArray text = "new: ID=" + quoted(startupId) + " NAME=" + quoted(name.toUtf8()) + " SCREEN=0";
    if (!windowClass.isEmpty())
        text += " WMCLASS=" + quoted(windowClass.toUtf8());
    broadcastStartup(connection, text);
}

void completeStartup(const XConnection& connection, const QByteArray& startupId)
{
    if (connection.isConnected() && !startupId.isEmpty())
        broadcastStartup(connection, "remove: ID=" + quoted(startupId));
}

std::optional<xcb_timestamp_t> startupTime(const QByteArray& startupId)
{
    const qsizetype mark = startupId.lastIndexOf("_TIME");
    if (mark < 0)
        return std::nullopt;
    bool isNumber = false;
    const uint time = startupId.mid(mark + 5).toUInt(&isNumber);
    return isNumber ? std::optional<xcb_timestamp_t>(time) : std::nullopt;
}

} // namespace tarvin::desktop
