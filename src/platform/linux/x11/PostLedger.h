#pragma once

#include "platform/linux/x11/XTypes.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>

namespace tarvin::x11 {

/// Remembers the key events that we faked, to know them again when the server reports them. Any thread.
///
/// The server makes a faked event while it works on the request for it, so the report carries the number of that very
/// request. An event that changes nothing is never reported; the next report of a later request tells so.
///
/// What is posted through a device of the kernel belongs to no request: it is reported in the order of posting.
class PostLedger
{
public:
    /// To be called once the request has its number and before it is sent.
    /// @param userData what the event carries when it is seen again
    void expect(FakeKey key, std::int64_t userData, RequestSequence request);

    /// The server reports an event of the faking device.
    /// @return the user data of ours; empty for another program's event
    [[nodiscard]] std::optional<std::int64_t> settle(FakeKey key, ServerTime time, RequestSequence request);

    /// To be called before the event is posted through the device.
    void expectPosted(FakeKey key, std::int64_t userData);
    /// The server reports an event of the device; what was posted before it and is not reported yet never will be.
    [[nodiscard]] std::optional<std::int64_t> settlePosted(FakeKey key, ServerTime time);
    /// The device has gone, or does not answer: nothing of it is waited for any more.
    void forgetPosted();

    /// The server has worked on all requests before this one.
    void passBy(RequestSequence request);

    /// Whether an event that reached one of our windows is ours; each of ours is found once. The window may have it
    /// before the report is settled.
    /// @return its user data
    [[nodiscard]] std::optional<std::int64_t> takeOwn(FakeKey key, ServerTime time);

    void clear();

private:
    struct Entry
    {
        FakeKey key;
        std::int64_t userData = 0;
        std::optional<RequestSequence> request; ///< empty for what is posted through the device
        std::optional<ServerTime> time; ///< when the server made the event; empty until it is reported
        bool isTaken = false; ///< a window had it
    };

    void add(const Entry& entry);
    [[nodiscard]] static bool isAwaitedFromDevice(const Entry& entry) { return !entry.request && !entry.time; }

    /// A window's event queue is never this far behind.
    static constexpr std::size_t capacity = 256;

    std::mutex m_mutex;
    std::deque<Entry> m_entries;
};

} // namespace tarvin::x11
