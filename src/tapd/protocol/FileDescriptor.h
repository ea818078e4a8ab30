#pragma once

#include <unistd.h>

#include <utility>

namespace tarvin::tapd {

/// An open file that is closed with its owner.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor)
        : m_descriptor(descriptor)
    { }
    ~FileDescriptor() { reset(); }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    { }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        reset();
        m_descriptor = std::exchange(other.m_descriptor, -1);
        return *this;
    }

    [[nodiscard]] int get() const { return m_descriptor; }
    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    void reset()
    {
        if (isOpen())
            ::close(std::exchange(m_descriptor, -1));
    }

private:
    int m_descriptor = -1;
};

} // namespace tarvin::tapd
