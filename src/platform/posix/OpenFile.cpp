#include "platform/posix/OpenFile.h"

#include <cerrno>
#include <utility>

namespace tarvin::posix {

namespace {

/// The result of the call that no signal interrupted.
template <typename Call> auto uninterrupted(const Call& call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

} // namespace

OpenFile::OpenFile(FileCalls& calls, const QByteArray& path, int flags)
    : m_calls(calls)
    , m_descriptor(uninterrupted([&] { return calls.open(path.constData(), flags); }))
{ }

OpenFile::OpenFile(FileCalls& calls, const OpenFile& directory, const QByteArray& name, int flags, mode_t mode)
    : m_calls(calls)
    , m_descriptor(uninterrupted([&] { return calls.openat(directory.descriptor(), name.constData(), flags, mode); }))
{ }

OpenFile::~OpenFile()
{
    if (isOpen())
        m_calls.close(m_descriptor);
}

bool OpenFile::write(const QByteArray& content)
{
    qsizetype written = 0;
    while (written < content.size()) {
        const auto rest = static_cast<std::size_t>(content.size() - written);
        const ssize_t count =
            uninterrupted([&] { return m_calls.write(m_descriptor, content.constData() + written, rest); });
        if (count <= 0) {
            // Nothing written and no reason given would go on for ever.
            if (count == 0)
                errno = EIO;
            return false;
        }
        written += count;
    }
    return true;
}

bool OpenFile::sync()
{
    return uninterrupted([this] { return m_calls.fsync(m_descriptor); }) == 0;
}

bool OpenFile::close()
{
    // Linux has given the descriptor back even if it reports an interruption, so there is no second try.
    return m_calls.close(std::exchange(m_descriptor, -1)) == 0 || errno == EINTR;
}

} // namespace tarvin::posix
