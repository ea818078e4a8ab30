#include "platform/linux/evdev/PostingRoad.h"

#include "tapd/protocol/Frames.h"

#include <utility>

namespace tarvin::evdev {

namespace {

/// What lies between the codes of the kernel and the keycodes of X.
constexpr std::uint16_t keycodeOffset = 8;

} // namespace

void PostingRoad::open(tapd::FrameSocket socket)
{
    const std::scoped_lock lock(m_mutex);
    m_socket = std::move(socket);
}

bool PostingRoad::isOpen() const
{
    const std::scoped_lock lock(m_mutex);
    return m_socket.isOpen();
}

bool PostingRoad::post(x11::FakeKey key)
{
    if (key.keycode < keycodeOffset)
        return false;
    const tapd::Post frame{.code = static_cast<std::uint16_t>(key.keycode - keycodeOffset),
        .motion = key.motion == x11::FakeMotion::press ? tapd::KeyMotion::press : tapd::KeyMotion::release};
    const std::scoped_lock lock(m_mutex);
    return m_socket.isOpen() && m_socket.send(tapd::encode(tapd::ApplicationFrame(frame)).bytes());
}

} // namespace tarvin::evdev
