#include "platform/linux/pasteboard/SelectionOffer.h"

#include <algorithm>

namespace tarvin::pasteboard {

SelectionOffer::SelectionOffer(SelectionServer& server)
    : m_server(server)
{ }

void SelectionOffer::set(const PasteboardText& content, xcb_timestamp_t since)
{
    m_content = Content{
        .utf8 = content.text.toUtf8(),
        .latin1 = content.text.toLatin1(),
        .isSecret = content.isSecret,
        .since = since,
    };
}

void SelectionOffer::requested(const xcb_selection_request_event_t& request, Clock::time_point now)
{
    // Clients of the old school leave the property to us.
    const xcb_atom_t property = request.property == XCB_ATOM_NONE ? request.target : request.property;
    const bool isDone = m_content && request.selection == m_server.atom(SelectionAtom::clipboard)
        && convert(request.requestor, property, request.target, now);
    xcb_selection_notify_event_t answer{};
    answer.response_type = XCB_SELECTION_NOTIFY;
    answer.time = request.time;
    answer.requestor = request.requestor;
    answer.selection = request.selection;
    answer.target = request.target;
    answer.property = isDone ? property : xcb_atom_t{XCB_ATOM_NONE};
    xcb_send_event(
        m_server.handle(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&answer));
}

bool SelectionOffer::convert(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t target, Clock::time_point now)
{
    const auto is = [this, target](SelectionAtom atom) { return target == m_server.atom(atom); };
    if (is(SelectionAtom::targets))
        putNumbers(requestor, property, XCB_ATOM_ATOM, targets());
    else if (is(SelectionAtom::timestamp))
        putNumbers(requestor, property, XCB_ATOM_INTEGER, {m_content->since});
    else if (is(SelectionAtom::multiple))
        return convertMultiple(requestor, property, now);
    else if (is(SelectionAtom::utf8String) || is(SelectionAtom::plainTextUtf8) || is(SelectionAtom::plainText))
        putBytes(requestor, property, target, m_content->utf8, now);
    else if (is(SelectionAtom::text))
        putBytes(requestor, property, m_server.atom(SelectionAtom::utf8String), m_content->utf8, now);
    else if (target == XCB_ATOM_STRING)
        putBytes(requestor, property, target, m_content->latin1, now);
    else if (m_content->isSecret && is(SelectionAtom::passwordManagerHint))
        putBytes(requestor, property, target, "secret", now);
    else
        return false;
    return true;
}

/// A list of pairs, target and property, which are served each for itself; what cannot be served is struck out.
bool SelectionOffer::convertMultiple(xcb_window_t requestor, xcb_atom_t property, Clock::time_point now)
{
    constexpr qsizetype longestList = 65536;
    std::vector<std::uint32_t> pairs =
        m_server.property(requestor, property, AfterReading::keep, longestList).numbers();
    if (pairs.empty() || pairs.size() % 2 != 0)
        return false;
    for (std::size_t i = 0; i < pairs.size(); i += 2) {
        const bool isServed = pairs[i] != m_server.atom(SelectionAtom::multiple) && pairs[i + 1] != XCB_ATOM_NONE
            && convert(requestor, pairs[i + 1], pairs[i], now);
        if (!isServed)
            pairs[i + 1] = XCB_ATOM_NONE;
    }
    putNumbers(requestor, property, m_server.atom(SelectionAtom::atomPair), pairs);
    return true;
}

std::vector<std::uint32_t> SelectionOffer::targets() const
{
    std::vector<std::uint32_t> targets = {XCB_ATOM_STRING};
    for (const SelectionAtom atom : {SelectionAtom::targets, SelectionAtom::timestamp, SelectionAtom::multiple,
             SelectionAtom::utf8String, SelectionAtom::plainTextUtf8, SelectionAtom::plainText, SelectionAtom::text})
        targets.push_back(m_server.atom(atom));
    if (m_content->isSecret)
        targets.push_back(m_server.atom(SelectionAtom::passwordManagerHint));
    return targets;
}

void SelectionOffer::putNumbers(
    xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type, const std::vector<std::uint32_t>& numbers) const
{
    xcb_change_property(m_server.handle(), XCB_PROP_MODE_REPLACE, requestor, property, type, 32,
        static_cast<std::uint32_t>(numbers.size()), numbers.data());
}

void SelectionOffer::putBytes(
    xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type, const QByteArray& bytes, Clock::time_point now)
{
    if (bytes.size() <= pieceSize) {
        xcb_change_property(m_server.handle(), XCB_PROP_MODE_REPLACE, requestor, property, type, 8,
            static_cast<std::uint32_t>(bytes.size()), bytes.constData());
        return;
    }
    std::erase_if(m_transfers,
        [=](const Transfer& transfer) { return transfer.requestor == requestor && transfer.property == property; });
    m_transfers.push_back(
        {.requestor = requestor, .property = property, .type = type, .bytes = bytes, .sent = 0, .lastSign = now});
    // The requestor takes each piece by removing the property, so we must hear of that before the first can go.
    const std::uint32_t eventMask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(m_server.handle(), requestor, XCB_CW_EVENT_MASK, &eventMask);
    putNumbers(
        requestor, property, m_server.atom(SelectionAtom::increments), {static_cast<std::uint32_t>(bytes.size())});
}

void SelectionOffer::propertyChanged(const xcb_property_notify_event_t& change, Clock::time_point now)
{
    if (change.state != XCB_PROPERTY_DELETE)
        return;
    const auto transfer = std::ranges::find_if(m_transfers, [&change](const Transfer& candidate) {
        return candidate.requestor == change.window && candidate.property == change.atom;
    });
    if (transfer == m_transfers.end())
        return;
    transfer->lastSign = now;
    const bool isLast = transfer->sent == transfer->bytes.size();
    putPiece(*transfer); // an empty one at the end
    if (isLast)
        m_transfers.erase(transfer);
}

void SelectionOffer::putPiece(Transfer& transfer) const
{
    const qsizetype size = std::min(pieceSize, transfer.bytes.size() - transfer.sent);
    xcb_change_property(m_server.handle(), XCB_PROP_MODE_REPLACE, transfer.requestor, transfer.property, transfer.type,
        8, static_cast<std::uint32_t>(size), transfer.bytes.constData() + transfer.sent);
    transfer.sent += size;
}

std::optional<Clock::time_point> SelectionOffer::deadline() const
{
    if (m_transfers.empty())
        return std::nullopt;
    return std::ranges::min(m_transfers, {}, &Transfer::lastSign).lastSign + silence;
}

void SelectionOffer::timePassed(Clock::time_point now)
{
    std::erase_if(m_transfers, [now](const Transfer& transfer) { return now >= transfer.lastSign + silence; });
}

} // namespace tarvin::pasteboard
