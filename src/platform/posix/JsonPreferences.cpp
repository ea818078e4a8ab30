#include "platform/posix/JsonPreferences.h"

#include "platform/ports/Scheduler.h"
#include "platform/posix/PosixFiles.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QStringBuilder>

#include <utility>

namespace tarvin::posix {

JsonPreferences::JsonPreferences(PosixFiles& files, const QString& path, Report report, Scheduler* scheduler)
    : m_files(files)
    , m_path(path)
    , m_report(std::move(report))
    , m_scheduler(scheduler)
{
    load();
}

JsonPreferences::~JsonPreferences()
{
    if (m_diskState != DiskState::current)
        report(write(m_files, m_path, m_values));
}

void JsonPreferences::setValue(const QString& key, const QJsonValue& value)
{
    // Inserting an undefined value takes the key away.
    m_values.insert(key, value);
    save();
}

void JsonPreferences::load()
{
    if (!m_files.exists(m_path))
        return;
    const ReadResult content = m_files.read(m_path);
    if (const FileError* error = std::get_if<FileError>(&content)) {
        keepDamagedFile(error->text);
        return;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(std::get<QByteArray>(content), &error);
    if (document.isObject())
        m_values = document.object();
    else
        keepDamagedFile(error.error == QJsonParseError::NoError ? u"not an object"_qs : error.errorString());
}

void JsonPreferences::keepDamagedFile(const QString& problem)
{
    const std::variant<QString, FileError> aside = m_files.setAside(m_path);
    QString outcome;
    if (const QString* path = std::get_if<QString>(&aside)) {
        outcome = u"The file is kept as " % *path;
    } else {
        m_fileState = FileState::damagedInPlace;
        outcome = u"It cannot be set aside and is left alone: " % std::get<FileError>(aside).text;
    }
    m_report(u"[Tarvin] Error reading settings from " % m_path % u": " % problem % u". " % outcome);
}

void JsonPreferences::save()
{
    if (m_fileState == FileState::damagedInPlace) {
        report(FileError{u"the damaged file is still in place"_qs});
        return;
    }
    if (!m_scheduler) {
        report(write(m_files, m_path, m_values));
        return;
    }
    switch (m_diskState) {
    case DiskState::current:
        startWriting();
        return;
    case DiskState::writing:
    case DiskState::behind:
        m_diskState = DiskState::behind;
        return;
    }
}

void JsonPreferences::startWriting()
{
    m_diskState = DiskState::writing;
    // The values are shared with the task, not copied; the next change makes a copy of its own.
    m_scheduler->runInBackground(BackgroundQueue::utility,
        [this, life = std::weak_ptr(m_life), scheduler = m_scheduler, &files = m_files, path = m_path,
            values = m_values] {
            const std::optional<FileError> error = write(files, path, values);
            scheduler->post([this, life, error] {
                if (!life.expired())
                    writingEnded(error);
            });
        });
}

void JsonPreferences::writingEnded(const std::optional<FileError>& error)
{
    report(error);
    if (std::exchange(m_diskState, DiskState::current) == DiskState::behind)
        startWriting();
}

void JsonPreferences::report(const std::optional<FileError>& error) const
{
    if (error)
        m_report(u"[Tarvin] Failed to save settings: " % error->text);
}

std::optional<FileError> JsonPreferences::write(PosixFiles& files, const QString& path, const QJsonObject& values)
{
    files.createDirectory(QFileInfo(path).path());
    return files.writeAtomically(path, QJsonDocument(values).toJson(QJsonDocument::Indented));
}

} // namespace tarvin::posix
