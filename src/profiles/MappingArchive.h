#pragma once

#include "profiles/KeyMappings.h"
#include "profiles/MappingChange.h"

#include <QDateTime>
#include <QList>
#include <QObject>

#include <vector>

namespace tarvin {

class Files;
class KeyProfile;
class Scheduler;
class UuidGenerator;

/// A state of the mapping file that was kept.
struct SavedState
{
    QString fileName; ///< beside the mapping file, and of the same form
    QDateTime savedAt; ///< UTC; invalid where it is not known
    QByteArray digest; ///< tells states apart

    bool operator==(const SavedState&) const = default;
};

/// Remembers what the mappings were: the last changes, so that they can be undone, and the last distinct states as
/// files beside the mapping file, for the day when both that and its safety copy are of no use. The store reads none of
/// them; only the user's word brings one back. A file here that can't be read or written costs what it held and nothing
/// else. Main thread only.
class MappingArchive : public QObject
{
    Q_OBJECT

public:
    static constexpr std::size_t keptChanges = 50;
    static constexpr qsizetype keptStates = 10;

    /// Follows the mappings from now on. Everything given outlives this object.
    MappingArchive(KeyProfile& keyProfile, Files& files, UuidGenerator& uuids, const Scheduler& scheduler);

    /// Oldest first.
    [[nodiscard]] const std::vector<MappingChange>& changes() const { return m_changes; }
    /// Takes the last change back, and forgets it.
    /// @return the change; nothing if there is none left
    std::optional<MappingChange> undo();

    /// Newest first.
    [[nodiscard]] const QList<SavedState>& savedStates() const { return m_states; }
    /// The mappings of a kept state; absent where its file is gone or damaged.
    [[nodiscard]] std::optional<ProfileMappings> read(const SavedState& state) const;
    /// Puts a kept state in force. It counts as a change and can be undone.
    /// @return false where it can't be read
    [[nodiscard]] bool restore(const SavedState& state);

private:
    void mappingsChanged();
    void keepState(const ProfileMappings& mappings);
    void loadChanges();
    void saveChanges();
    void loadStates();
    void saveStates();
    [[nodiscard]] QString freeFileName() const;
    [[nodiscard]] QDateTime now() const;
    [[nodiscard]] std::optional<QByteArray> readFile(const QString& path) const;

    KeyProfile& m_keyProfile;
    Files& m_files;
    UuidGenerator& m_uuids;
    const Scheduler& m_scheduler;
    const QString m_folder; ///< with the slash
    const QString m_baseName; ///< of the mapping file, without extension
    ProfileMappings m_last;
    std::vector<MappingChange> m_changes;
    QList<SavedState> m_states;
    bool m_isUndoing = false;
};

} // namespace tarvin
