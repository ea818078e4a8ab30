#pragma once

#include "platform/linux/x11/KeyPosting.h"
#include "tapd/protocol/FrameSocket.h"

#include <mutex>

namespace tarvin::evdev {

/// The way to the tap daemon's device for posted keys, while the daemon serves us. Any thread posts; the main thread
/// opens and closes it.
class PostingRoad final : public x11::KeyPosting
{
public:
    void open(tapd::FrameSocket socket);
    void close() { open({}); }

    [[nodiscard]] bool isOpen() const override;
    [[nodiscard]] bool post(x11::FakeKey key) override;

private:
    mutable std::mutex m_mutex;
    tapd::FrameSocket m_socket; ///< guarded by the mutex
};

} // namespace tarvin::evdev
