#pragma once

#include <QString>

namespace tarvin::posix {

/// A lock on a file that one process at a time can hold; the system frees it when that process ends, however it ends.
class InstanceLock
{
public:
    /// Tries to take the lock, creating the file if need be.
    explicit InstanceLock(const QString& path);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// `unavailable` where the file can't even be opened.
    enum class State { held, heldByAnother, unavailable };
    [[nodiscard]] State state() const { return m_state; }

private:
    int m_descriptor = -1;
    State m_state = State::unavailable;
};

} // namespace tarvin::posix
