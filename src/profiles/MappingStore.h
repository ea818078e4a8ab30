#pragma once

#include "profiles/KeyMappings.h"

#include <QString>

#include <optional>

namespace tarvin {

class Console;
class Files;
class UuidGenerator;

/// The mapping file and its safety copy. Both hold the same after a good save; of the two the main file is always
/// written first, so that at every moment at least one of them is whole. Main thread only; every call waits for the
/// disk.
class MappingStore
{
public:
    /// @param customStorageURL absolute path of the main file; absent: the default place, whose folder is made
    MappingStore(Files& files, Console& console, UuidGenerator& uuids, const std::optional<QString>& customStorageURL);

    /// Absolute path of the main file.
    [[nodiscard]] const QString& storageURL() const { return m_storageURL; }
    /// Absolute path of the safety copy.
    [[nodiscard]] const QString& backupStorageURL() const { return m_backupStorageURL; }

    /// What the main file holds, else the safety copy, which is then written back to both, else nothing. A damaged main
    /// file stays where it is until the next save.
    [[nodiscard]] ProfileMappings load();
    /// Writes the main file, then the copy. After a failure with the first the copy is left alone, as the last good
    /// state.
    void save(const ProfileMappings& mappings);

private:
    [[nodiscard]] std::optional<ProfileMappings> loadFromURL(const QString& url);

    Files& m_files;
    Console& m_console;
    UuidGenerator& m_uuids;
    QString m_storageURL;
    QString m_backupStorageURL;
};

} // namespace tarvin
