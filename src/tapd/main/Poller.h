#pragma once

#include "tapd/engine/WayOutDetector.h"
#include "tapd/protocol/FileDescriptor.h"

#include <sys/epoll.h>
#include <sys/timerfd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace tarvin::tapd {

/// What a watched descriptor is.
enum class Watched : std::uint32_t { keyboard, output, application, listener, devices, seat };

/// Waits for any of the watched descriptors, and until a time. One that is closed is not watched any more.
///
/// The time is kept by an alarm of its own, which is set anew only when it has to ring earlier: the timeout of each
/// wait would be one more timer to start and to stop for each key.
class Poller
{
public:
    struct Ready
    {
        Watched kind;
        std::uint32_t name;
    };

    Poller() { add(m_alarm.get(), EPOLLIN | EPOLLET, alarmData); }

    void watch(int descriptor, Watched kind, std::uint32_t name = 0) const
    {
        add(descriptor, EPOLLIN, static_cast<std::uint64_t>(kind) << 32 | name);
    }
    /// For a descriptor that another process has as well, so that closing it does not end the watch.
    void forget(int descriptor) const { ::epoll_ctl(m_descriptor.get(), EPOLL_CTL_DEL, descriptor, nullptr); }

    /// @param deadline when to return at the latest; empty for whenever something is ready. It may return earlier with
    /// nothing.
    [[nodiscard]] std::span<const Ready> wait(std::optional<EventTime> deadline)
    {
        setAlarm(deadline);
        const int count = ::epoll_wait(m_descriptor.get(), m_events.data(), mostAtOnce, -1);
        std::size_t size = 0;
        for (int i = 0; i < count; ++i) {
            const std::uint64_t data = m_events[static_cast<std::size_t>(i)].data.u64;
            if (data == alarmData)
                m_alarmTime.reset();
            else
                m_ready[size++] = {.kind = static_cast<Watched>(data >> 32), .name = static_cast<std::uint32_t>(data)};
        }
        return {m_ready.data(), size};
    }

private:
    static constexpr int mostAtOnce = 16;
    static constexpr std::uint64_t alarmData = UINT64_MAX;

    void add(int descriptor, std::uint32_t events, std::uint64_t data) const
    {
        epoll_event event{};
        event.events = events;
        event.data.u64 = data;
        ::epoll_ctl(m_descriptor.get(), EPOLL_CTL_ADD, descriptor, &event);
    }
    void setAlarm(std::optional<EventTime> time)
    {
        if (!time || (m_alarmTime && *m_alarmTime <= *time))
            return;
        m_alarmTime = time;
        // Zero would switch it off; what has passed rings at once.
        const EventTime ringing = std::max(*time, EventTime(1));
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(ringing);
        itimerspec setting{};
        setting.it_value.tv_sec = seconds.count();
        setting.it_value.tv_nsec = std::chrono::nanoseconds(ringing - seconds).count();
        ::timerfd_settime(m_alarm.get(), TFD_TIMER_ABSTIME, &setting, nullptr);
    }

    FileDescriptor m_descriptor{::epoll_create1(EPOLL_CLOEXEC)};
    FileDescriptor m_alarm{::timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK)};
    std::optional<EventTime> m_alarmTime; ///< when it rings, if it is set
    std::array<epoll_event, mostAtOnce> m_events{};
    std::array<Ready, mostAtOnce> m_ready{};
};

} // namespace tarvin::tapd
