#include "profiles/MappingStore.h"

#include "platform/ports/Console.h"
#include "platform/ports/Files.h"
#include "platform/ports/UuidGenerator.h"
#include "profiles/MappingFile.h"

#include <QStringBuilder>

#include <utility>

namespace tarvin {

namespace {

qsizetype startOfFileName(const QString& path)
{
    return path.lastIndexOf(u'/') + 1;
}

/// A leading dot hides a file, it does not begin an extension.
QString withoutExtension(const QString& path)
{
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot > startOfFileName(path) ? path.left(dot) : path;
}

QString defaultStorageURL(Files& files)
{
    const QString directory = files.applicationSupportDirectory();
    files.createDirectory(directory);
    return directory % u"/profiles_mappings.json";
}

} // namespace

MappingStore::MappingStore(
    Files& files, Console& console, UuidGenerator& uuids, const std::optional<QString>& customStorageURL)
    : m_files(files)
    , m_console(console)
    , m_uuids(uuids)
    , m_storageURL(customStorageURL ? *customStorageURL : defaultStorageURL(files))
    , m_backupStorageURL(withoutExtension(m_storageURL) % u".backup.json")
{ }

ProfileMappings MappingStore::load()
{
    if (m_files.exists(m_storageURL)) {
        if (std::optional<ProfileMappings> mappings = loadFromURL(m_storageURL))
            return *std::move(mappings);
    }
    if (m_files.exists(m_backupStorageURL)) {
        m_console.printLine(u"[Tarvin] Restoring profile mappings from safety backup: " % m_backupStorageURL);
        if (std::optional<ProfileMappings> mappings = loadFromURL(m_backupStorageURL)) {
            save(*mappings);
            return *std::move(mappings);
        }
    }
    return {};
}

void MappingStore::save(const ProfileMappings& mappings)
{
    const QByteArray content = encodeMappings(mappings);
    if (const std::optional<FileError> error = m_files.writeAtomically(m_storageURL, content)) {
        m_console.printLine(u"[Tarvin] Failed to save profile mappings: " % error->text);
        return;
    }
    // The main file is good; a copy that lags behind by one save is worth no message.
    static_cast<void>(m_files.writeAtomically(m_backupStorageURL, content));
}

std::optional<ProfileMappings> MappingStore::loadFromURL(const QString& url)
{
    const ReadResult result = m_files.read(url);
    if (const FileError* error = std::get_if<FileError>(&result)) {
        const QString fileName = url.sliced(startOfFileName(url));
        m_console.printLine(u"[Tarvin] Error reading profile mappings from " % fileName % u": " % error->text);
        return std::nullopt;
    }
    return decodeMappings(std::get<QByteArray>(result), [this] { return m_uuids.next(); });
}

} // namespace tarvin
