#include "tapd/protocol/FrameSocket.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace tarvin::tapd {

FrameSocket::FrameSocket(FileDescriptor descriptor)
    : m_descriptor(std::move(descriptor))
{ }

FrameSocket FrameSocket::connectTo(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path)
        return {};
    std::memcpy(address.sun_path, path.data(), path.size());
    FileDescriptor descriptor(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!descriptor.isOpen()
        || ::connect(descriptor.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        return {};
    return FrameSocket(std::move(descriptor));
}

FrameSocket FrameSocket::share() const
{
    return FrameSocket(FileDescriptor(::fcntl(m_descriptor.get(), F_DUPFD_CLOEXEC, 0)));
}

bool FrameSocket::send(std::span<const std::byte> message) const
{
    const ssize_t sent = ::send(m_descriptor.get(), message.data(), message.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    return sent == static_cast<ssize_t>(message.size());
}

FrameSocket::Received FrameSocket::receive()
{
    const ssize_t size = ::recv(m_descriptor.get(), m_buffer.data(), m_buffer.size(), MSG_DONTWAIT);
    if (size < 0)
        return errno == EAGAIN || errno == EINTR ? Received::nothing : Received::closed;
    // An empty message and the end look alike, and there are no empty frames.
    if (size == 0)
        return Received::closed;
    m_size = static_cast<std::size_t>(size);
    return Received::message;
}

} // namespace tarvin::tapd
