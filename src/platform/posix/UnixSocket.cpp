#include "platform/posix/UnixSocket.h"

#include <QFile>

#include <algorithm>

#include <poll.h>
#include <unistd.h>

namespace tarvin::posix {

Descriptor::~Descriptor()
{
    if (m_number >= 0)
        close(m_number);
}

std::optional<sockaddr_un> socketAddress(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || name.size() >= static_cast<qsizetype>(sizeof(address.sun_path)))
        return std::nullopt;
    std::copy(name.cbegin(), name.cend(), address.sun_path);
    return address;
}

Descriptor listenAt(const QString& path)
{
    const std::optional<sockaddr_un> address = socketAddress(path);
    Descriptor listener = newUnixSocket(SocketCalls::returnAtOnce);
    if (!address || !listener.isValid())
        return Descriptor();
    unlink(address->sun_path);
    if (bind(listener.number(), reinterpret_cast<const sockaddr*>(&*address), sizeof(*address)) != 0
        || listen(listener.number(), 4) != 0)
        return Descriptor();
    return listener;
}

Descriptor connectTo(const QString& path)
{
    const std::optional<sockaddr_un> address = socketAddress(path);
    Descriptor connection = newUnixSocket(SocketCalls::block);
    if (!address || !connection.isValid()
        || connect(connection.number(), reinterpret_cast<const sockaddr*>(&*address), sizeof(*address)) != 0)
        return Descriptor();
    return connection;
}

bool waitFor(int descriptor, short event, std::chrono::milliseconds timeout)
{
    pollfd one{descriptor, event, 0};
    return poll(&one, 1, static_cast<int>(timeout.count())) == 1;
}

} // namespace tarvin::posix
