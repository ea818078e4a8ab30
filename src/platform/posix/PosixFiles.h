#pragma once

#include "platform/ports/Files.h"
#include "platform/posix/FileCalls.h"

#include <variant>

namespace tarvin::posix {

/// The file system of a Unix. Folders get the mode 0700 and files 0600; what exists with another mode keeps it until it
/// is replaced. Symbolic links are followed, and a file that is written through one stays where it is.
class PosixFiles final : public Files
{
public:
    /// @param applicationSupportDirectory absolute; see `XdgDirectories.h`
    explicit PosixFiles(const QString& applicationSupportDirectory, FileCalls& calls = systemFileCalls())
        : m_calls(calls)
        , m_applicationSupportDirectory(applicationSupportDirectory)
    { }

    [[nodiscard]] QString applicationSupportDirectory() const override { return m_applicationSupportDirectory; }
    [[nodiscard]] bool exists(const QString& path) const override;
    [[nodiscard]] ReadResult read(const QString& path) const override;
    void createDirectory(const QString& path) override;
    [[nodiscard]] std::optional<FileError> writeAtomically(const QString& path, const QByteArray& content) override;
    [[nodiscard]] std::optional<FileError> append(const QString& path, const QByteArray& content) override;

    /// Gives a damaged file a name beside its own that no file has yet: ".damaged" behind it, and a number from the
    /// second on.
    /// @return the new path
    [[nodiscard]] std::variant<QString, FileError> setAside(const QString& path);

private:
    FileCalls& m_calls;
    QString m_applicationSupportDirectory;
};

} // namespace tarvin::posix
