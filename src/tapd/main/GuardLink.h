#pragma once

#include "tapd/protocol/FileDescriptor.h"

#include <atomic>
#include <cstdint>
#include <optional>
#include <utility>

namespace tarvin::tapd {

/// What the daemon and its guard both see, in a page that they share.
struct GuardPage
{
    /// When the daemon last got on, in microseconds of CLOCK_MONOTONIC; 0 while it waits for events.
    std::atomic<std::int64_t> lastProgress;
    std::atomic<bool> isTakenOver; ///< set by the guard once it gives the keyboards back, cleared by the daemon
};
static_assert(std::atomic<std::int64_t>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

/// What the daemon tells its guard of a device that it opened or closed.
struct GuardNotice
{
    enum class Kind : std::uint32_t { keyboardOpened, keyboardClosed, outputOpened, outputClosed };
    Kind kind = Kind::keyboardOpened;
    std::uint32_t name = 0; ///< of the device, among those of its kind
    std::uint32_t output = 0; ///< of a keyboard: the name of the output that speaks for it
};

/// A notice and, for a device that was opened, the open file itself, shared with the daemon.
struct ReceivedNotice
{
    GuardNotice notice;
    FileDescriptor descriptor;
};

/// One end of the road between daemon and guard.
class GuardLink
{
public:
    /// The two ends, and the page; nothing where the system can't give them.
    struct Pair;
    [[nodiscard]] static std::optional<Pair> make();

    GuardLink(FileDescriptor descriptor, GuardPage& page)
        : m_descriptor(std::move(descriptor))
        , m_page(&page)
    { }

    [[nodiscard]] GuardPage& page() const { return *m_page; }
    [[nodiscard]] int descriptor() const { return m_descriptor.get(); }
    /// @param descriptor of a device that was opened, else negative
    void tell(const GuardNotice& notice, int descriptor) const;
    [[nodiscard]] std::optional<ReceivedNotice> receive() const;

private:
    FileDescriptor m_descriptor;
    GuardPage* m_page; ///< never unmapped
};

struct GuardLink::Pair
{
    GuardLink ofDaemon;
    GuardLink ofGuard;
};

} // namespace tarvin::tapd
