#pragma once

#include "platform/posix/FileCalls.h"

#include <QByteArray>

namespace tarvin::posix {

/// An open file or folder, closed at the end of its scope. Operations repeat what a signal interrupted; a false result
/// leaves the reason in errno.
class OpenFile
{
public:
    /// Opens what exists.
    OpenFile(FileCalls& calls, const QByteArray& path, int flags);
    /// Opens or creates a file of a folder, with the permissions @p mode.
    OpenFile(FileCalls& calls, const OpenFile& directory, const QByteArray& name, int flags, mode_t mode);
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile();

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] int descriptor() const { return m_descriptor; }
    /// Writes all of it, in as many steps as the system makes of it.
    [[nodiscard]] bool write(const QByteArray& content);
    /// Waits until everything is on the disk; for a folder, its names.
    [[nodiscard]] bool sync();
    /// Closes at once. Some network file systems tell only here that they refuse what was written.
    [[nodiscard]] bool close();

private:
    FileCalls& m_calls;
    int m_descriptor;
};

} // namespace tarvin::posix
