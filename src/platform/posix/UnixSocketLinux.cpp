#include "platform/posix/UnixSocket.h"

#include <unistd.h>

namespace tarvin::posix {

Descriptor newUnixSocket(SocketCalls calls)
{
    const int blocking = calls == SocketCalls::returnAtOnce ? SOCK_NONBLOCK : 0;
    return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | blocking, 0));
}

Descriptor acceptFrom(const Descriptor& listener)
{
    return Descriptor(accept4(listener.number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
}

ssize_t sendTo(const Descriptor& connection, const char* bytes, std::size_t count)
{
    return send(connection.number(), bytes, count, MSG_NOSIGNAL);
}

bool isOfThisUser(const Descriptor& connection)
{
    ucred credentials{};
    socklen_t size = sizeof(credentials);
    return getsockopt(connection.number(), SOL_SOCKET, SO_PEERCRED, &credentials, &size) == 0
        && credentials.uid == getuid();
}

} // namespace tarvin::posix
