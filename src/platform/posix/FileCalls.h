#pragma once

#include <cstddef>

#include <sys/types.h>

namespace tarvin::posix {

/// The system calls that change the disk. They stand behind an interface so that a test can let each single one fail,
/// or let the process end there.
///
/// Arguments, results and errno are those of the system calls of the same names. Any thread.
class FileCalls
{
public:
    FileCalls() = default;
    FileCalls(const FileCalls&) = delete;
    FileCalls& operator=(const FileCalls&) = delete;
    virtual ~FileCalls() = default;

    [[nodiscard]] virtual int open(const char* path, int flags) = 0;
    [[nodiscard]] virtual int openat(int directory, const char* name, int flags, mode_t mode) = 0;
    [[nodiscard]] virtual ssize_t write(int file, const void* bytes, std::size_t count) = 0;
    [[nodiscard]] virtual int fsync(int file) = 0;
    virtual int close(int file) = 0;
    [[nodiscard]] virtual int renameat(int fromDirectory, const char* from, int toDirectory, const char* to) = 0;
    virtual int unlinkat(int directory, const char* name) = 0;
    virtual int mkdir(const char* path, mode_t mode) = 0;
};

/// The calls of the system itself.
[[nodiscard]] FileCalls& systemFileCalls();

} // namespace tarvin::posix
