#include "platform/linux/pasteboard/support/ScriptedOwner.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>

namespace tarvin::test {

using endtoend::XOwned;

ScriptedOwner::ScriptedOwner(const std::string& display, Behaviour behaviour)
    : m_client(display)
    , m_behaviour(std::move(behaviour))
    , m_window(xcb_generate_id(connection()))
    , m_clipboard(atom("CLIPBOARD"))
{
    xcb_create_window(connection(), XCB_COPY_FROM_PARENT, m_window, m_client.root(), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(connection(), m_window, m_clipboard, XCB_CURRENT_TIME);
    m_client.sync();
    m_thread = std::thread(&ScriptedOwner::run, this);
}

ScriptedOwner::~ScriptedOwner()
{
    m_isEnding = true;
    m_thread.join();
}

void ScriptedOwner::copyAgain() const
{
    xcb_set_selection_owner(connection(), m_window, m_clipboard, XCB_CURRENT_TIME);
    m_client.sync();
}

void ScriptedOwner::disconnect()
{
    shutdown(xcb_get_file_descriptor(connection()), SHUT_RDWR);
}

xcb_generic_event_t* ScriptedOwner::nextEvent() const
{
    while (!m_isEnding) {
        if (xcb_generic_event_t* const event = xcb_poll_for_event(connection()))
            return event;
        if (xcb_connection_has_error(connection()) != 0)
            return nullptr;
        pollfd waiting{.fd = xcb_get_file_descriptor(connection()), .events = POLLIN, .revents = 0};
        poll(&waiting, 1, 10);
    }
    return nullptr;
}

void ScriptedOwner::run()
{
    while (const XOwned<xcb_generic_event_t> event{nextEvent()}) {
        if ((event->response_type & 0x7F) == XCB_SELECTION_REQUEST)
            m_behaviour(*this, *reinterpret_cast<const xcb_selection_request_event_t*>(event.get()));
        xcb_flush(connection());
    }
}

void ScriptedOwner::put(const xcb_selection_request_event_t& request, const std::string& type, const QByteArray& bytes)
{
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, request.requestor, request.property, atom(type), 8,
        static_cast<std::uint32_t>(bytes.size()), bytes.constData());
}

void ScriptedOwner::putNumbers(
    const xcb_selection_request_event_t& request, const std::string& type, const std::vector<std::uint32_t>& numbers)
{
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, request.requestor, request.property, atom(type), 32,
        static_cast<std::uint32_t>(numbers.size()), numbers.data());
}

void ScriptedOwner::answer(const xcb_selection_request_event_t& request, bool isServed)
{
    xcb_selection_notify_event_t notice{};
    notice.response_type = XCB_SELECTION_NOTIFY;
    notice.time = request.time;
    notice.requestor = request.requestor;
    notice.selection = request.selection;
    notice.target = request.target;
    notice.property = isServed ? request.property : xcb_atom_t{XCB_ATOM_NONE};
    xcb_send_event(connection(), 0, request.requestor, 0, reinterpret_cast<const char*>(&notice));
    xcb_flush(connection());
}

void ScriptedOwner::waitUntilTaken(const xcb_selection_request_event_t& request)
{
    while (const XOwned<xcb_generic_event_t> event{nextEvent()}) {
        if ((event->response_type & 0x7F) != XCB_PROPERTY_NOTIFY)
            continue;
        const auto& change = *reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
        if (change.window == request.requestor && change.atom == request.property
            && change.state == XCB_PROPERTY_DELETE)
            return;
    }
}

void ScriptedOwner::putInPieces(
    const xcb_selection_request_event_t& request, const std::string& type, const QByteArray& bytes, qsizetype pieceSize)
{
    const std::uint32_t eventMask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection(), request.requestor, XCB_CW_EVENT_MASK, &eventMask);
    putNumbers(request, "INCR", {static_cast<std::uint32_t>(bytes.size())});
    answer(request);
    for (qsizetype sent = 0; sent <= bytes.size(); sent += pieceSize) {
        waitUntilTaken(request);
        put(request, type, bytes.mid(sent, pieceSize));
        xcb_flush(connection());
    }
    if (bytes.size() % pieceSize != 0) {
        waitUntilTaken(request);
        put(request, type, {});
    }
}

ScriptedOwner::Behaviour ownerOf(const QByteArray& utf8)
{
    return [utf8](ScriptedOwner& owner, const xcb_selection_request_event_t& request) {
        if (owner.asksFor(request, "TARGETS"))
            owner.putNumbers(request, "ATOM", {owner.atom("TARGETS"), owner.atom("STRING"), owner.atom("UTF8_STRING")});
        else
            owner.put(request, "UTF8_STRING", utf8);
        owner.answer(request);
    };
}

ScriptedOwner::Behaviour ownerInPieces(const QByteArray& utf8, qsizetype pieceSize)
{
    return [utf8, pieceSize](ScriptedOwner& owner, const xcb_selection_request_event_t& request) {
        if (owner.asksFor(request, "TARGETS")) {
            owner.putNumbers(request, "ATOM", {owner.atom("UTF8_STRING")});
            owner.answer(request);
        } else {
            owner.putInPieces(request, "UTF8_STRING", utf8, pieceSize);
        }
    };
}

} // namespace tarvin::test
