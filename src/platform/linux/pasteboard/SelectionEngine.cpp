#include "platform/linux/pasteboard/SelectionEngine.h"

#include <algorithm>
#include <utility>

#include <xcb/xfixes.h>

namespace tarvin::pasteboard {

namespace {

/// The high bit of an event's type says that another client sent it.
constexpr std::uint8_t typeMask = 0x7F;

} // namespace

SelectionEngine::SelectionEngine(std::unique_ptr<SelectionServer> server, std::atomic<std::int64_t>& changeCount)
    : m_server(std::move(server))
    , m_changeCount(changeCount)
    , m_offer(*m_server)
{ }

void SelectionEngine::read(Done done)
{
    m_readings.push_back({.done = std::move(done), .ownerChange = m_ownerChanges});
}

void SelectionEngine::set(const PasteboardText& content)
{
    own(content);
}

void SelectionEngine::own(const PasteboardText& content)
{
    m_own = content;
    // Ownership begins at a moment of the server's time, and a change of a property tells it.
    xcb_change_property(m_server->handle(), XCB_PROP_MODE_APPEND, m_server->window(),
        m_server->atom(SelectionAtom::tarvinTime), XCB_ATOM_INTEGER, 32, 0, nullptr);
}

std::optional<Clock::time_point> SelectionEngine::attend()
{
    while (true) {
        advanceReadings(Clock::now());
        // Before the look and not after it: sending may read events into the queue of the library, where the caller,
        // who waits for the socket, would not see them.
        xcb_flush(m_server->handle());
        const XOwned<xcb_generic_event_t> event(xcb_poll_for_event(m_server->handle()));
        if (event)
            handle(*event, Clock::now());
        else if (!giveUpSilent(Clock::now()))
            break;
    }

    std::optional<Clock::time_point> next = m_offer.deadline();
    if (!m_readings.empty()) {
        const Clock::time_point deadline = m_readings.front().reader->deadline();
        next = next ? std::min(*next, deadline) : deadline;
    }
    return next;
}

/// Only when no event waits: an answer that is there counts, however late this thread comes to it.
/// @return whether a reading has ended so
bool SelectionEngine::giveUpSilent(Clock::time_point now)
{
    m_offer.timePassed(now);
    if (m_readings.empty())
        return false;
    SelectionReader& reader = *m_readings.front().reader;
    reader.timePassed(now);
    return reader.hasEnded();
}

void SelectionEngine::handle(const xcb_generic_event_t& event, Clock::time_point now)
{
    const auto type = static_cast<std::uint8_t>(event.response_type & typeMask);
    if (type == m_server->ownerChangeEvent()) {
        const auto& change = reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(event);
        ownerChanged(change.owner, change.subtype != XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER);
        return;
    }
    switch (type) {
    case XCB_SELECTION_NOTIFY:
        if (!m_readings.empty() && m_readings.front().reader)
            m_readings.front().reader->answered(reinterpret_cast<const xcb_selection_notify_event_t&>(event), now);
        return;
    case XCB_SELECTION_REQUEST:
        m_offer.requested(reinterpret_cast<const xcb_selection_request_event_t&>(event), now);
        return;
    case XCB_PROPERTY_NOTIFY:
        propertyChanged(reinterpret_cast<const xcb_property_notify_event_t&>(event), now);
        return;
    default:
        // Errors too: a window that went between an event and our request about it.
        return;
    }
}

void SelectionEngine::propertyChanged(const xcb_property_notify_event_t& change, Clock::time_point now)
{
    if (change.window == m_server->window()) {
        if (change.atom == m_server->atom(SelectionAtom::tarvinTime) && m_own) {
            // First, because a long text takes its time to be made ready; who asks meanwhile waits for it.
            xcb_set_selection_owner(
                m_server->handle(), m_server->window(), m_server->atom(SelectionAtom::clipboard), change.time);
            xcb_flush(m_server->handle());
            m_offer.set(*m_own, change.time);
        }
        return;
    }
    if (!m_readings.empty() && m_readings.front().reader)
        m_readings.front().reader->propertyChanged(change, now);
    m_offer.propertyChanged(change, now);
}

void SelectionEngine::ownerChanged(xcb_window_t owner, bool hasOwnerGone)
{
    if (owner == m_server->window())
        return;
    const bool isTextKnown = m_lastText && m_lastText->ownerChange == m_ownerChanges;
    ++m_ownerChanges;
    if (hasOwnerGone && isTextKnown) {
        own({.text = m_lastText->text});
        return;
    }
    m_own.reset();
    m_offer.withdraw();
    ++m_changeCount;
}

void SelectionEngine::advanceReadings(Clock::time_point now)
{
    while (!m_readings.empty()) {
        Reading& reading = m_readings.front();
        if (m_own && !reading.reader) {
            reading.done(m_own);
        } else {
            if (!reading.reader) {
                reading.ownerChange = m_ownerChanges;
                reading.reader = std::make_unique<SelectionReader>(*m_server, now);
            }
            if (!reading.reader->hasEnded())
                return;
            const std::optional<PasteboardText>& result = reading.reader->result();
            if (result && !result->isSecret)
                m_lastText = LastText{.text = result->text, .ownerChange = reading.ownerChange};
            reading.done(result);
        }
        m_readings.pop_front();
    }
}

} // namespace tarvin::pasteboard
