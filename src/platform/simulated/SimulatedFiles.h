#pragma once

#include "platform/ports/Files.h"
#include "platform/simulated/EffectLog.h"

#include <map>
#include <set>

namespace tarvin::simulated {

enum class FailureSpan { once, always };
enum class FileOperation { read, write, append };

/// A file system in memory. A file can be written only into a folder that exists.
class SimulatedFiles final : public Files
{
public:
    explicit SimulatedFiles(EffectLog& log);

    [[nodiscard]] QString applicationSupportDirectory() const override;
    [[nodiscard]] bool exists(const QString& path) const override;
    [[nodiscard]] ReadResult read(const QString& path) const override;
    void createDirectory(const QString& path) override;
    [[nodiscard]] std::optional<FileError> writeAtomically(const QString& path, const QByteArray& content) override;
    [[nodiscard]] std::optional<FileError> append(const QString& path, const QByteArray& content) override;

    /// Puts the file there as if it had been written before, with its folders; no effect is recorded.
    void stage(const QString& path, const QByteArray& content);
    void remove(const QString& path);
    /// The next operation of this kind on the path, or each, fails with these words.
    void failOn(
        FileOperation operation, const QString& path, const QString& words, FailureSpan span = FailureSpan::always);
    /// Lets the operation succeed again.
    void succeedOn(FileOperation operation, const QString& path);

    /// Absent where there is no such file.
    [[nodiscard]] std::optional<QByteArray> content(const QString& path) const;

private:
    struct Failure
    {
        QString words;
        FailureSpan span = FailureSpan::always;
    };
    using FailureKey = std::pair<FileOperation, QString>;

    [[nodiscard]] std::optional<FileError> failureOf(FileOperation operation, const QString& path) const;
    void makeFolders(const QString& path);

    EffectLog& m_log;
    std::map<QString, QByteArray> m_contents;
    std::set<QString> m_directories;
    mutable std::map<FailureKey, Failure> m_failures;
};

} // namespace tarvin::simulated
