#pragma once

#include "platform/linux/pasteboard/SelectionReader.h"
#include "platform/linux/pasteboard/SelectionServer.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace tarvin::pasteboard {

/// Our own text on the clipboard, handed to whoever asks for it, in pieces where it is long. For the thread of the
/// selection.
class SelectionOffer
{
public:
    /// Longer texts go out in pieces of this size: what lies in a property lies in the server's memory.
    static constexpr qsizetype pieceSize = 262144;
    /// Who has asked for a long text and then does not take its pieces has gone.
    static constexpr std::chrono::milliseconds silence{10000};

    explicit SelectionOffer(SelectionServer& server);

    void set(const PasteboardText& content, xcb_timestamp_t since);
    /// Another application owns the clipboard. Texts on their way go out to their end.
    void withdraw() { m_content.reset(); }
    [[nodiscard]] bool isMade() const { return m_content.has_value(); }

    void requested(const xcb_selection_request_event_t& request, Clock::time_point now);
    void propertyChanged(const xcb_property_notify_event_t& change, Clock::time_point now);
    /// The next moment at which `timePassed` has something to do.
    [[nodiscard]] std::optional<Clock::time_point> deadline() const;
    void timePassed(Clock::time_point now);

private:
    struct Content
    {
        QByteArray utf8;
        QByteArray latin1;
        bool isSecret = false;
        xcb_timestamp_t since = XCB_CURRENT_TIME;
    };
    /// A long text on its way.
    struct Transfer
    {
        xcb_window_t requestor = XCB_NONE;
        xcb_atom_t property = XCB_ATOM_NONE;
        xcb_atom_t type = XCB_ATOM_NONE;
        QByteArray bytes;
        qsizetype sent = 0;
        Clock::time_point lastSign;
    };

    [[nodiscard]] bool convert(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t target, Clock::time_point now);
    [[nodiscard]] bool convertMultiple(xcb_window_t requestor, xcb_atom_t property, Clock::time_point now);
    void putNumbers(
        xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type, const std::vector<std::uint32_t>& numbers) const;
    void putBytes(
        xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type, const QByteArray& bytes, Clock::time_point now);
    void putPiece(Transfer& transfer) const;
    [[nodiscard]] std::vector<std::uint32_t> targets() const;

    SelectionServer& m_server;
    std::optional<Content> m_content;
    std::vector<Transfer> m_transfers;
};

} // namespace tarvin::pasteboard
