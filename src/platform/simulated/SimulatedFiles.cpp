#include "platform/simulated/SimulatedFiles.h"

namespace tarvin::simulated {

namespace {

QString folderOf(const QString& path)
{
    return path.left(path.lastIndexOf(u'/'));
}

} // namespace

SimulatedFiles::SimulatedFiles(EffectLog& log)
    : m_log(log)
{
    makeFolders(folderOf(applicationSupportDirectory()));
}

QString SimulatedFiles::applicationSupportDirectory() const
{
    return QStringLiteral("/data/Tarvin");
}

bool SimulatedFiles::exists(const QString& path) const
{
    return m_contents.contains(path) || m_directories.contains(path);
}

ReadResult SimulatedFiles::read(const QString& path) const
{
    if (std::optional<FileError> failure = failureOf(FileOperation::read, path))
        return *failure;
    const auto found = m_contents.find(path);
    if (found == m_contents.end())
        return FileError{QStringLiteral("No such file or directory")};
    return found->second;
}

void SimulatedFiles::createDirectory(const QString& path)
{
    if (m_directories.contains(path))
        return;
    makeFolders(path);
    m_log.record(FileChanged{FileStep::directoryCreated, path, {}, std::nullopt});
}

std::optional<FileError> SimulatedFiles::writeAtomically(const QString& path, const QByteArray& content)
{
    std::optional<FileError> failure = failureOf(FileOperation::write, path);
    if (!failure && !m_directories.contains(folderOf(path)))
        failure = FileError{QStringLiteral("No such file or directory")};
    if (failure) {
        m_log.record(FileChanged{FileStep::writeFailed, path, content, failure->text});
        return failure;
    }
    m_contents.insert_or_assign(path, content);
    m_log.record(FileChanged{FileStep::written, path, content, std::nullopt});
    return std::nullopt;
}

std::optional<FileError> SimulatedFiles::append(const QString& path, const QByteArray& content)
{
    if (std::optional<FileError> failure = failureOf(FileOperation::append, path)) {
        m_log.record(FileChanged{FileStep::appendFailed, path, content, failure->text});
        return failure;
    }
    // To find no file is how callers learn that they have to make one: nothing happened that could be seen.
    const auto found = m_contents.find(path);
    if (found == m_contents.end())
        return FileError{QStringLiteral("No such file or directory")};
    found->second += content;
    m_log.record(FileChanged{FileStep::appended, path, content, std::nullopt});
    return std::nullopt;
}

void SimulatedFiles::stage(const QString& path, const QByteArray& content)
{
    makeFolders(folderOf(path));
    m_contents.insert_or_assign(path, content);
}

void SimulatedFiles::remove(const QString& path)
{
    m_contents.erase(path);
    m_directories.erase(path);
}

void SimulatedFiles::failOn(FileOperation operation, const QString& path, const QString& words, FailureSpan span)
{
    m_failures.insert_or_assign(FailureKey{operation, path}, Failure{words, span});
}

void SimulatedFiles::succeedOn(FileOperation operation, const QString& path)
{
    m_failures.erase(FailureKey{operation, path});
}

std::optional<QByteArray> SimulatedFiles::content(const QString& path) const
{
    const auto found = m_contents.find(path);
    return found == m_contents.end() ? std::nullopt : std::optional(found->second);
}

std::optional<FileError> SimulatedFiles::failureOf(FileOperation operation, const QString& path) const
{
    const auto found = m_failures.find(FailureKey{operation, path});
    if (found == m_failures.end())
        return std::nullopt;
    FileError error{found->second.words};
    if (found->second.span == FailureSpan::once)
        m_failures.erase(found);
    return error;
}

void SimulatedFiles::makeFolders(const QString& path)
{
    for (QString folder = path; !folder.isEmpty(); folder = folderOf(folder))
        m_directories.insert(folder);
}

} // namespace tarvin::simulated
