#pragma once

#include "platform/ports/Files.h"
#include "platform/ports/Preferences.h"

#include <QJsonObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace tarvin {
class Scheduler;
}

namespace tarvin::posix {

class PosixFiles;

/// The settings as one flat JSON object in a file, read once and written whole at each change. Main thread only.
///
/// Keys that the program does not know stay in the file. A file that is no JSON object is set aside, so that nothing is
/// lost, and the program starts with unset settings. Should even that fail, the file is left alone: changes then live
/// until the program ends, and each is reported as not saved.
///
/// With a scheduler the file is written off the main thread: the settings may hold long texts, and a keystroke in a
/// note must not wait for a disk. One write is under way at a time, and what changes meanwhile goes into the next. The
/// end of this object waits for nothing but writes what is not on disk yet, so background work has to be over by then.
class JsonPreferences final : public Preferences
{
public:
    /// Takes one line for the log; must be callable.
    using Report = std::function<void(const QString&)>;

    /// @param path absolute; its folder is made at the first change
    /// @param scheduler absent: every change is on disk, or reported, when `setValue` returns
    JsonPreferences(PosixFiles& files, const QString& path, Report report, Scheduler* scheduler = nullptr);
    ~JsonPreferences() override;
    JsonPreferences(const JsonPreferences&) = delete;
    JsonPreferences& operator=(const JsonPreferences&) = delete;

    [[nodiscard]] QJsonValue value(const QString& key) const override { return m_values.value(key); }
    void setValue(const QString& key, const QJsonValue& value) override;
    void removeValue(const QString& key) override { setValue(key, QJsonValue(QJsonValue::Undefined)); }

private:
    /// May the file be replaced by what the program knows?
    enum class FileState { replaceable, damagedInPlace };

    /// What of the settings is on disk.
    enum class DiskState {
        current,
        writing,
        behind, ///< a write is under way, of what was there before
    };

    void load();
    void keepDamagedFile(const QString& problem);
    void save();
    void startWriting();
    void writingEnded(const std::optional<FileError>& error);
    void report(const std::optional<FileError>& error) const;
    [[nodiscard]] static std::optional<FileError> write(
        PosixFiles& files, const QString& path, const QJsonObject& values);

    PosixFiles& m_files;
    QString m_path;
    Report m_report;
    Scheduler* m_scheduler;
    FileState m_fileState = FileState::replaceable;
    DiskState m_diskState = DiskState::current;
    QJsonObject m_values;
    std::shared_ptr<const bool> m_life = std::make_shared<const bool>(true); ///< gone before we are
};

} // namespace tarvin::posix
