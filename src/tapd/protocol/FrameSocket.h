#pragma once

#include "tapd/protocol/FileDescriptor.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>

namespace tarvin::tapd {

/// One end of the connection between daemon and application. Never blocks.
class FrameSocket
{
public:
    enum class Received {
        message,
        nothing, ///< for now
        closed, ///< by the other end, or broken
    };

    FrameSocket() = default;
    /// @param descriptor a connected SOCK_SEQPACKET socket
    explicit FrameSocket(FileDescriptor descriptor);

    /// @return not open where nobody listens
    [[nodiscard]] static FrameSocket connectTo(const std::string& path);

    /// A second owner of the same connection; it ends when both have closed it.
    [[nodiscard]] FrameSocket share() const;

    [[nodiscard]] bool isOpen() const { return m_descriptor.isOpen(); }
    [[nodiscard]] int descriptor() const { return m_descriptor.get(); }
    void close() { m_descriptor.reset(); }

    /// @return false if the other end has gone or does not read what it is sent
    [[nodiscard]] bool send(std::span<const std::byte> message) const;
    /// Takes the next message; `message()` is it, until the next call.
    [[nodiscard]] Received receive();
    [[nodiscard]] std::span<const std::byte> message() const { return {m_buffer.data(), m_size}; }

private:
    /// More than any frame: what is longer is cut here, and so never a frame.
    static constexpr std::size_t bufferSize = 64;

    FileDescriptor m_descriptor;
    std::array<std::byte, bufferSize> m_buffer{};
    std::size_t m_size = 0;
};

} // namespace tarvin::tapd
