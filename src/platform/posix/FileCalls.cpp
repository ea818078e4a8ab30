#include "platform/posix/FileCalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

namespace tarvin::posix {

namespace {

class SystemFileCalls final : public FileCalls
{
public:
    int open(const char* path, int flags) override { return ::open(path, flags); }
    int openat(int directory, const char* name, int flags, mode_t mode) override
    {
        return ::openat(directory, name, flags, mode);
    }
    ssize_t write(int file, const void* bytes, std::size_t count) override { return ::write(file, bytes, count); }
    int fsync(int file) override { return ::fsync(file); }
    int close(int file) override { return ::close(file); }
    int renameat(int fromDirectory, const char* from, int toDirectory, const char* to) override
    {
        return ::renameat(fromDirectory, from, toDirectory, to);
    }
    int unlinkat(int directory, const char* name) override { return ::unlinkat(directory, name, 0); }
    int mkdir(const char* path, mode_t mode) override { return ::mkdir(path, mode); }
};

} // namespace

FileCalls& systemFileCalls()
{
    static SystemFileCalls calls;
    return calls;
}

} // namespace tarvin::posix
