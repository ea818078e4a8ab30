#pragma once

#include "tapd/engine/WayOutDetector.h"
#include "tapd/protocol/FileDescriptor.h"

#include <sys/epoll.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace tarvin::tapd {

/// What a watched descriptor is.
enum class Watched : std::uint32_t { keyboard, output, application, listener, devices, seat };

/// Waits for any of the watched descriptors. One that is closed is not watched any more.
class Poller
{
public:
    struct Ready
    {
        Watched kind;
        std::uint32_t name;
    };

    void watch(int descriptor, Watched kind, std::uint32_t name = 0) const
    {
        epoll_event event{};
        event.events = EPOLLIN;
        event.data.u64 = static_cast<std::uint64_t>(kind) << 32 | name;
        ::epoll_ctl(m_descriptor.get(), EPOLL_CTL_ADD, descriptor, &event);
    }
    /// For a descriptor that another process has as well, so that closing it does not end the watch.
    void forget(int descriptor) const { ::epoll_ctl(m_descriptor.get(), EPOLL_CTL_DEL, descriptor, nullptr); }

    /// @param time how long to wait at most; empty for however long it takes
    [[nodiscard]] std::span<const Ready> wait(std::optional<EventTime> time)
    {
        int timeout = -1;
        if (time) {
            const auto rounded = std::chrono::ceil<std::chrono::milliseconds>(std::max(*time, EventTime(0)));
            timeout = static_cast<int>(rounded.count());
        }
        std::array<epoll_event, mostAtOnce> events{};
        const int count = ::epoll_wait(m_descriptor.get(), events.data(), mostAtOnce, timeout);
        const std::size_t size = count < 0 ? 0 : static_cast<std::size_t>(count);
        for (std::size_t i = 0; i < size; ++i) {
            m_ready[i] = {.kind = static_cast<Watched>(events[i].data.u64 >> 32),
                .name = static_cast<std::uint32_t>(events[i].data.u64)};
        }
        return {m_ready.data(), size};
    }

private:
    static constexpr int mostAtOnce = 16;

    FileDescriptor m_descriptor{::epoll_create1(EPOLL_CLOEXEC)};
    std::array<Ready, mostAtOnce> m_ready{};
};

} // namespace tarvin::tapd
