#pragma once

#include "tapd/engine/WayOutDetector.h"
#include "tapd/main/GuardLink.h"
#include "tapd/protocol/FileDescriptor.h"

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <optional>

namespace tarvin::tapd {

/// The parent process of the daemon. It shares the open devices and gives the keyboards back when the daemon can't:
///
///     the daemon        what the guard does
///     ------------------+------------------------------------------------------------------------------
///     ends, is killed    closes the devices, which gives them back, and ends
///     is stopped         waits a little, then types what the daemon had left unread, gives the keyboards
///                        back and lets go of all keys; the daemon begins anew when it is continued
///     hangs              kills it
///
/// It sleeps while all is well; only while a keyboard is grabbed does it look once a second whether the daemon hangs.
class Guard
{
public:
    Guard(GuardLink link, pid_t daemon);

    /// Until the daemon has ended. @return the exit code of the process
    [[nodiscard]] int run();

private:
    struct Keyboard
    {
        FileDescriptor descriptor;
        std::uint32_t output = 0;
    };

    void readNotices();
    /// @return the exit code once the daemon has ended
    [[nodiscard]] std::optional<int> lookAtDaemon(EventTime now);
    void endIfHanging(EventTime now) const;
    void takeOver();
    /// @param end events from then on the system has had
    void typeWhatIsUnread(const Keyboard& keyboard, EventTime end) const;
    [[nodiscard]] int timeout(EventTime now) const;

    GuardLink m_link;
    pid_t m_daemon;
    std::map<std::uint32_t, Keyboard> m_keyboards;
    std::map<std::uint32_t, FileDescriptor> m_outputs;
    std::optional<EventTime> m_stoppedSince;
    bool m_isEnding = false; ///< somebody has asked us to
    EventTime m_continuedAt{0}; ///< before, the time of a turn did not run
};

} // namespace tarvin::tapd
