#include "tapd/main/Listener.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <utility>

namespace tarvin::tapd {

namespace {

/// The number in an environment variable.
std::optional<int> environmentNumber(const char* name)
{
    const char* const text = std::getenv(name);
    if (text == nullptr)
        return std::nullopt;
    const std::string_view digits(text);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size())
        return std::nullopt;
    return number;
}

} // namespace

std::optional<Listener> Listener::inherited()
{
    // The protocol of socket activation: the first inherited descriptor is 3.
    constexpr int firstInherited = 3;
    if (environmentNumber("LISTEN_PID") != ::getpid() || environmentNumber("LISTEN_FDS") != 1)
        return std::nullopt;
    ::fcntl(firstInherited, F_SETFD, FD_CLOEXEC);
    ::fcntl(firstInherited, F_SETFL, O_NONBLOCK);
    return Listener(FileDescriptor(firstInherited));
}

std::optional<Listener> Listener::at(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path)
        return std::nullopt;
    std::memcpy(address.sun_path, path.data(), path.size());
    FileDescriptor descriptor(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    ::unlink(path.c_str());
    constexpr mode_t everybody = 0666;
    constexpr int waiting = 4;
    if (!descriptor.isOpen()
        || ::bind(descriptor.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0
        || ::chmod(path.c_str(), everybody) != 0 || ::listen(descriptor.get(), waiting) != 0)
        return std::nullopt;
    return Listener(std::move(descriptor));
}

std::optional<Listener::Caller> Listener::accept() const
{
    FileDescriptor caller(::accept4(m_descriptor.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!caller.isOpen())
        return std::nullopt;
    const auto user = userOf(caller.get());
    if (!user)
        return std::nullopt;
    return Caller{.descriptor = std::move(caller), .user = *user};
}

std::optional<uid_t> Listener::userOf(int descriptor)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    if (::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0)
        return std::nullopt;
    return peer.uid;
}

} // namespace tarvin::tapd
