#pragma once

#include <QString>

#include <chrono>
#include <cstddef>
#include <optional>
#include <utility>

#include <sys/socket.h>
#include <sys/types.h>
#include <sys/un.h>

namespace tarvin::posix {

/// A descriptor that is closed with its owner.
class Descriptor
{
public:
    explicit Descriptor(int number = -1)
        : m_number(number)
    { }
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    { }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] bool isValid() const { return m_number >= 0; }

private:
    int m_number;
};

/// Absent where the path is empty or too long for a socket.
[[nodiscard]] std::optional<sockaddr_un> socketAddress(const QString& path);

enum class SocketCalls { block, returnAtOnce };

// What each system does in its own way. A reader that is gone is an error of `sendTo`, never a signal.

/// Closed in children; invalid where none can be had.
[[nodiscard]] Descriptor newUnixSocket(SocketCalls calls);
/// The next caller, whose calls return at once; invalid where there is none.
[[nodiscard]] Descriptor acceptFrom(const Descriptor& listener);
/// As the system call of the like name, errno included.
[[nodiscard]] ssize_t sendTo(const Descriptor& connection, const char* bytes, std::size_t count);
/// Whether the process at the other end belongs to the user of this one.
[[nodiscard]] bool isOfThisUser(const Descriptor& connection);

/// A listening socket that doesn't block, in the place of what an earlier process left there.
[[nodiscard]] Descriptor listenAt(const QString& path);

/// A connection whose calls block; invalid where nobody listens.
[[nodiscard]] Descriptor connectTo(const QString& path);

[[nodiscard]] bool waitFor(int descriptor, short event, std::chrono::milliseconds timeout);

} // namespace tarvin::posix
