#pragma once

#include "platform/linux/pasteboard/SelectionOffer.h"
#include "platform/linux/pasteboard/SelectionReader.h"
#include "platform/linux/pasteboard/SelectionServer.h"

#include "platform/ports/Pasteboard.h"

#include <atomic>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace tarvin::pasteboard {

/// Both sides of the clipboard on one connection: what others own is read, what we own is handed out. A text that was
/// read stays on the clipboard when its owner goes, because then we take its place; a secret does not. For the thread
/// of the selection; it never waits for an application.
class SelectionEngine
{
public:
    using Done = std::function<void(std::optional<PasteboardText>)>;

    /// @param changeCount counted up with each change that others make
    SelectionEngine(std::unique_ptr<SelectionServer> server, std::atomic<std::int64_t>& changeCount);

    [[nodiscard]] bool isBroken() const { return m_server->isBroken(); }
    [[nodiscard]] int fileDescriptor() const { return m_server->fileDescriptor(); }

    /// Readings are carried out one after another.
    void read(Done done);
    void set(const PasteboardText& content);

    /// Does everything that can be done now.
    /// @return when to call it again at the latest; absent: only when the connection has something
    [[nodiscard]] std::optional<Clock::time_point> attend();

private:
    struct Reading
    {
        Done done;
        std::int64_t ownerChange; ///< which owner is read, by its number
        std::unique_ptr<SelectionReader> reader{}; ///< null until its turn
    };
    /// The text that was read last, and from which owner.
    struct LastText
    {
        QString text;
        std::int64_t ownerChange;
    };

    [[nodiscard]] bool giveUpSilent(Clock::time_point now);
    void handle(const xcb_generic_event_t& event, Clock::time_point now);
    void propertyChanged(const xcb_property_notify_event_t& change, Clock::time_point now);
    void ownerChanged(xcb_window_t owner, bool hasOwnerGone);
    void own(const PasteboardText& content);
    void advanceReadings(Clock::time_point now);

    std::unique_ptr<SelectionServer> m_server;
    std::atomic<std::int64_t>& m_changeCount;
    SelectionOffer m_offer;
    std::optional<PasteboardText> m_own; ///< what we have put there, from the wish on
    std::deque<Reading> m_readings; ///< the first is under way
    std::int64_t m_ownerChanges = 0;
    std::optional<LastText> m_lastText;
};

} // namespace tarvin::pasteboard
