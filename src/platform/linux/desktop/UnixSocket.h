#pragma once

#include <QString>

#include <chrono>
#include <optional>
#include <utility>

#include <sys/socket.h>
#include <sys/un.h>

namespace tarvin::desktop {

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

/// A listening socket that doesn't block, in the place of what an earlier process left there.
[[nodiscard]] Descriptor listenAt(const QString& path);

/// A connection whose calls block; invalid where nobody listens.
[[nodiscard]] Descriptor connectTo(const QString& path);

[[nodiscard]] bool waitFor(int descriptor, short event, std::chrono::milliseconds timeout);

} // namespace tarvin::desktop
