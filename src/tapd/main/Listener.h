#pragma once

#include "tapd/protocol/FileDescriptor.h"

#include <sys/types.h>

#include <optional>
#include <string>

namespace tarvin::tapd {

/// The socket where applications come.
class Listener
{
public:
    /// The socket that the system's service manager has opened for us, if it has.
    [[nodiscard]] static std::optional<Listener> inherited();
    /// One of our own, which everybody may connect to: who it is decides, not the right to the file.
    [[nodiscard]] static std::optional<Listener> at(const std::string& path);

    [[nodiscard]] int descriptor() const { return m_descriptor.get(); }

    struct Caller
    {
        FileDescriptor descriptor;
        uid_t user = 0;
    };
    [[nodiscard]] std::optional<Caller> accept() const;
    /// Who is at the other end; empty where the system does not tell.
    [[nodiscard]] static std::optional<uid_t> userOf(int descriptor);

private:
    explicit Listener(FileDescriptor descriptor)
        : m_descriptor(std::move(descriptor))
    { }

    FileDescriptor m_descriptor;
};

} // namespace tarvin::tapd
