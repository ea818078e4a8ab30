#include "platform/posix/UnixSocket.h"

#include <fcntl.h>
#include <unistd.h>

namespace tarvin::posix {

namespace {

/// The system has no call that makes a socket with these properties at once, so a child that another thread starts in
/// between inherits it; the tools that the program starts close what they inherit.
Descriptor prepared(Descriptor descriptor, SocketCalls calls)
{
    if (!descriptor.isValid())
        return descriptor;
    const int on = 1;
    // The property of the socket stands for the flag of each call that other systems have.
    (void)setsockopt(descriptor.number(), SOL_SOCKET, SO_NOSIGPIPE, &on, sizeof(on));
    (void)fcntl(descriptor.number(), F_SETFD, FD_CLOEXEC);
    if (calls == SocketCalls::returnAtOnce)
        (void)fcntl(descriptor.number(), F_SETFL, O_NONBLOCK);
    return descriptor;
}

} // namespace

Descriptor newUnixSocket(SocketCalls calls)
{
    return prepared(Descriptor(socket(AF_UNIX, SOCK_STREAM, 0)), calls);
}

Descriptor acceptFrom(const Descriptor& listener)
{
    return prepared(Descriptor(accept(listener.number(), nullptr, nullptr)), SocketCalls::returnAtOnce);
}

ssize_t sendTo(const Descriptor& connection, const char* bytes, std::size_t count)
{
    return send(connection.number(), bytes, count, 0);
}

bool isOfThisUser(const Descriptor& connection)
{
    uid_t user{};
    gid_t group{};
    return getpeereid(connection.number(), &user, &group) == 0 && user == getuid();
}

} // namespace tarvin::posix
