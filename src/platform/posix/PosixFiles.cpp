#include "platform/posix/PosixFiles.h"

#include "platform/posix/AtomicWrite.h"
#include "platform/posix/OpenFile.h"

#include <QFile>
#include <QFileInfo>
#include <QStringBuilder>

#include <fcntl.h>

namespace tarvin::posix {

namespace {

constexpr mode_t folderForTheUserAlone = 0700;

QString freeNameBeside(const QString& path)
{
    const QString damaged = path % u".damaged";
    QString name = damaged;
    for (int number = 2; QFileInfo::exists(name); ++number)
        name = damaged % u'.' % QString::number(number);
    return name;
}

} // namespace

bool PosixFiles::exists(const QString& path) const
{
    return QFileInfo::exists(path);
}

ReadResult PosixFiles::read(const QString& path) const
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return FileError{file.errorString()};
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return FileError{file.errorString()};
    return content;
}

void PosixFiles::createDirectory(const QString& path)
{
    if (exists(path))
        return;
    createDirectory(QFileInfo(path).path());
    m_calls.mkdir(QFile::encodeName(path).constData(), folderForTheUserAlone);
}

std::optional<FileError> PosixFiles::writeAtomically(const QString& path, const QByteArray& content)
{
    return writeFileAtomically(m_calls, path, content);
}

std::optional<FileError> PosixFiles::append(const QString& path, const QByteArray& content)
{
    OpenFile file(m_calls, QFile::encodeName(path), O_WRONLY | O_APPEND | O_CLOEXEC);
    if (!file.isOpen() || !file.write(content) || !file.close())
        return lastFileError();
    return std::nullopt;
}

std::variant<QString, FileError> PosixFiles::setAside(const QString& path)
{
    QString aside = freeNameBeside(path);
    const QByteArray from = QFile::encodeName(path);
    if (m_calls.renameat(AT_FDCWD, from.constData(), AT_FDCWD, QFile::encodeName(aside).constData()) != 0)
        return lastFileError();
    return aside;
}

} // namespace tarvin::posix
