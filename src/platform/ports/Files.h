#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <variant>

namespace tarvin {

/// Why a file operation failed, in words for a message.
struct FileError
{
    QString text;
};

using ReadResult = std::variant<QByteArray, FileError>;

/// The file system, as far as the program's own state goes. Paths are absolute. Every call may be made from any thread.
class Files
{
public:
    virtual ~Files() = default;
    /// The folder of the program's own data (Application Support on macOS, the XDG data home on Linux), "Tarvin"
    /// included.
    [[nodiscard]] virtual QString applicationSupportDirectory() const = 0;
    [[nodiscard]] virtual bool exists(const QString& path) const = 0;
    [[nodiscard]] virtual ReadResult read(const QString& path) const = 0;
    /// Creates the folder with its parents, for the user alone. A failure shows at the first use of the folder.
    virtual void createDirectory(const QString& path) = 0;
    /// Replaces the file's content in one step: at every moment, a crash included, the path holds the old content or
    /// the new one, whole. The file is readable by the user alone.
    [[nodiscard]] virtual std::optional<FileError> writeAtomically(const QString& path, const QByteArray& content) = 0;
    /// Appends to an existing file; never creates one.
    [[nodiscard]] virtual std::optional<FileError> append(const QString& path, const QByteArray& content) = 0;
};

} // namespace tarvin
