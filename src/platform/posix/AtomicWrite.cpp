#include "platform/posix/AtomicWrite.h"

#include "platform/posix/OpenFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>

#include <cerrno>

namespace tarvin::posix {

namespace {

constexpr mode_t forTheUserAlone = 0600;

/// As many links as the system itself follows.
constexpr int maximumLinkDepth = 40;

/// Where the links that begin at @p path end, whether or not a file is there; absent if they run in a circle.
std::optional<QString> endOfLinks(const QString& path)
{
    QString end = path;
    for (int depth = 0; depth <= maximumLinkDepth; ++depth) {
        const QString next = QFileInfo(end).symLinkTarget();
        if (next.isEmpty())
            return end;
        end = next;
    }
    return std::nullopt;
}

/// A name that no other writer uses, in this process or another, now or in the past.
QByteArray freshTemporaryName(const QByteArray& name)
{
    return '.' + name + '.' + QByteArray::number(QRandomGenerator::global()->generate64(), 16) + ".tmp";
}

/// A new file that is gone at the end of its scope unless it took another's name.
class TemporaryFile
{
public:
    TemporaryFile(FileCalls& calls, const OpenFile& directory, const QByteArray& name)
        : m_calls(calls)
        , m_directory(directory)
        , m_name(freshTemporaryName(name))
        , m_file(calls, directory, m_name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, forTheUserAlone)
        , m_exists(m_file.isOpen())
    { }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        if (m_exists)
            m_calls.unlinkat(m_directory.descriptor(), m_name.constData());
    }

    [[nodiscard]] bool exists() const { return m_exists; }

    /// Nothing but content that is safely on the disk may get the name.
    [[nodiscard]] bool fill(const QByteArray& content)
    {
        return m_file.write(content) && m_file.sync() && m_file.close();
    }

    [[nodiscard]] bool takeName(const QByteArray& name)
    {
        const int directory = m_directory.descriptor();
        m_exists = m_calls.renameat(directory, m_name.constData(), directory, name.constData()) != 0;
        return !m_exists;
    }

private:
    FileCalls& m_calls;
    const OpenFile& m_directory;
    QByteArray m_name;
    OpenFile m_file;
    bool m_exists;
};

} // namespace

FileError lastFileError()
{
    return {qt_error_string(errno)};
}

std::optional<FileError> writeFileAtomically(FileCalls& calls, const QString& path, const QByteArray& content)
{
    const std::optional<QString> target = endOfLinks(path);
    if (!target)
        return FileError{qt_error_string(ELOOP)};
    const QFileInfo place(*target);
    const QByteArray name = QFile::encodeName(place.fileName());

    // The folder comes first, so that all that can fail does so before anything has changed.
    OpenFile directory(calls, QFile::encodeName(place.path()), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (!directory.isOpen())
        return lastFileError();
    TemporaryFile temporary(calls, directory, name);
    if (!temporary.exists() || !temporary.fill(content) || !temporary.takeName(name))
        return lastFileError();

    // From here on the path holds the new content. If the folder cannot be flushed, a machine that stops now may bring
    // the old content back, which is whole too; that is no failure of the write.
    static_cast<void>(directory.sync());
    return std::nullopt;
}

} // namespace tarvin::posix
