#pragma once

#include "endtoend/support/XClient.h"

#include <QByteArray>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

namespace tarvin::test {

/// Another application that owns the clipboard of a server and answers as a test wants: well, slowly, wrongly or not at
/// all.
class ScriptedOwner
{
public:
    /// What the owner does about one request, on its own thread.
    using Behaviour = std::function<void(ScriptedOwner&, const xcb_selection_request_event_t&)>;

    /// Owns the clipboard when this returns.
    ScriptedOwner(const std::string& display, Behaviour behaviour);
    /// Ends as an application that crashes: the connection goes, and the ownership with it.
    ~ScriptedOwner();

    /// As an application that copies something else. The server has told everybody when this returns.
    void copyAgain() const;

    // For behaviours.

    [[nodiscard]] xcb_atom_t atom(const std::string& name) const { return m_client.atom(name); }
    [[nodiscard]] bool asksFor(const xcb_selection_request_event_t& request, const std::string& target) const
    {
        return request.target == atom(target);
    }
    void put(const xcb_selection_request_event_t& request, const std::string& type, const QByteArray& bytes);
    void putNumbers(const xcb_selection_request_event_t& request, const std::string& type,
        const std::vector<std::uint32_t>& numbers);
    /// Says that the answer is there, or that there is none.
    void answer(const xcb_selection_request_event_t& request, bool isServed = true);
    /// Hands the bytes over in pieces, an empty one at the end; waits for the requestor to take each.
    void putInPieces(const xcb_selection_request_event_t& request, const std::string& type, const QByteArray& bytes,
        qsizetype pieceSize);
    /// Waits until the requestor has removed the property of the request.
    void waitUntilTaken(const xcb_selection_request_event_t& request);
    void disconnect();
    [[nodiscard]] xcb_connection_t* connection() const { return m_client.get(); }
    [[nodiscard]] bool isEnding() const { return m_isEnding; }

private:
    void run();
    [[nodiscard]] xcb_generic_event_t* nextEvent() const;

    endtoend::XClient m_client;
    Behaviour m_behaviour;
    xcb_window_t m_window = XCB_NONE;
    xcb_atom_t m_clipboard = XCB_ATOM_NONE;
    std::atomic<bool> m_isEnding = false;
    std::thread m_thread;
};

/// An owner of a text that knows its trade.
[[nodiscard]] ScriptedOwner::Behaviour ownerOf(const QByteArray& utf8);
/// The same that hands the text over in pieces.
[[nodiscard]] ScriptedOwner::Behaviour ownerInPieces(const QByteArray& utf8, qsizetype pieceSize);

} // namespace tarvin::test
