#include "profiles/MappingArchive.h"

#include "platform/ports/Files.h"
#include "platform/ports/Scheduler.h"
#include "platform/ports/UuidGenerator.h"
#include "profiles/KeyProfile.h"
#include "profiles/MappingFile.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <utility>

namespace tarvin {

namespace {

const QString changesFile = QStringLiteral(".changes.json");
const QString statesFile = QStringLiteral(".saved.json");

QByteArray digestOf(const QByteArray& content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex();
}

QString folderOf(const QString& path)
{
    return path.left(path.lastIndexOf(u'/') + 1);
}

QString baseNameOf(const QString& path)
{
    const QString name = path.mid(path.lastIndexOf(u'/') + 1);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.left(dot) : name;
}

} // namespace

MappingArchive::MappingArchive(KeyProfile& keyProfile, Files& files, UuidGenerator& uuids, const Scheduler& scheduler)
    : m_keyProfile(keyProfile)
    , m_files(files)
    , m_uuids(uuids)
    , m_scheduler(scheduler)
    , m_folder(folderOf(keyProfile.storageURL()))
    , m_baseName(baseNameOf(keyProfile.storageURL()))
    , m_last(keyProfile.profileMappings())
{
    loadChanges();
    loadStates();
    connect(&keyProfile, &KeyProfile::profileMappingsChanged, this, &MappingArchive::mappingsChanged);
}

std::optional<MappingChange> MappingArchive::undo()
{
    if (m_changes.empty())
        return std::nullopt;
    MappingChange change = std::move(m_changes.back());
    m_changes.pop_back();
    saveChanges();
    m_isUndoing = true;
    m_keyProfile.replaceMappings(withoutChange(m_keyProfile.profileMappings(), change));
    m_isUndoing = false;
    return change;
}

std::optional<ProfileMappings> MappingArchive::read(const SavedState& state) const
{
    const std::optional<QByteArray> content = readFile(m_folder + state.fileName);
    if (!content)
        return std::nullopt;
    return decodeMappings(*content, [this] { return m_uuids.next(); });
}

bool MappingArchive::restore(const SavedState& state)
{
    std::optional<ProfileMappings> mappings = read(state);
    if (!mappings)
        return false;
    m_keyProfile.replaceMappings(*std::move(mappings));
    return true;
}

void MappingArchive::mappingsChanged()
{
    const ProfileMappings before = std::exchange(m_last, m_keyProfile.profileMappings());
    MappingChange change = changeBetween(before, m_last, now());
    if (change.profiles.empty())
        return;
    if (!m_isUndoing) {
        m_changes.push_back(std::move(change));
        if (m_changes.size() > keptChanges)
            m_changes.erase(m_changes.begin());
        saveChanges();
    }
    // What was there before the first change of all may have come from elsewhere, and would be lost.
    if (m_states.isEmpty() && !before.empty())
        keepState(before);
    keepState(m_last);
}

void MappingArchive::keepState(const ProfileMappings& mappings)
{
    const QByteArray content = encodeMappings(mappings);
    const QByteArray digest = digestOf(content);
    const auto known = std::ranges::find(m_states, digest, &SavedState::digest);
    SavedState state{.fileName = {}, .savedAt = now(), .digest = digest};
    if (known != m_states.end()) {
        state.fileName = known->fileName;
        m_states.erase(known);
    } else {
        state.fileName = m_states.size() < keptStates ? freeFileName() : m_states.takeLast().fileName;
    }
    if (m_files.writeAtomically(m_folder + state.fileName, content))
        return;
    m_states.prepend(state);
    saveStates();
}

QString MappingArchive::freeFileName() const
{
    for (qsizetype number = 1; number <= keptStates; ++number) {
        QString name = QStringLiteral("%1.saved-%2.json").arg(m_baseName).arg(number);
        if (std::ranges::find(m_states, name, &SavedState::fileName) == m_states.end())
            return name;
    }
    return QStringLiteral("%1.saved-%2.json").arg(m_baseName).arg(keptStates); // not reached: one of them is free
}

void MappingArchive::loadChanges()
{
    const QByteArray content = readFile(m_folder + m_baseName + changesFile).value_or(QByteArray());
    const QJsonArray changes = QJsonDocument::fromJson(content).array();
    for (const auto& value : changes) {
        if (std::optional<MappingChange> change = mappingChangeFromJson(value, [this] { return m_uuids.next(); }))
            m_changes.push_back(*std::move(change));
    }
    if (m_changes.size() > keptChanges)
        m_changes.erase(m_changes.begin(), m_changes.end() - keptChanges);
}

void MappingArchive::saveChanges()
{
    QJsonArray changes;
    for (const MappingChange& change : m_changes)
        changes.append(toJson(change));
    static_cast<void>(m_files.writeAtomically(
        m_folder + m_baseName + changesFile, QJsonDocument(changes).toJson(QJsonDocument::Compact)));
}

void MappingArchive::loadStates()
{
    const QByteArray content = readFile(m_folder + m_baseName + statesFile).value_or(QByteArray());
    const QJsonArray states = QJsonDocument::fromJson(content).array();
    for (const auto& value : states) {
        const QJsonObject object = value.toObject();
        const QString fileName = object.value(u"file").toString();
        if (m_states.size() < keptStates && !fileName.isEmpty() && !fileName.contains(u'/')) {
            m_states.append({fileName, QDateTime::fromString(object.value(u"savedAt").toString(), Qt::ISODateWithMs),
                object.value(u"digest").toString().toLatin1()});
        }
    }
    if (!m_states.isEmpty())
        return;
    // The list is lost, but the states may be there.
    for (qsizetype number = 1; number <= keptStates; ++number) {
        const QString fileName = QStringLiteral("%1.saved-%2.json").arg(m_baseName).arg(number);
        if (const std::optional<QByteArray> state = readFile(m_folder + fileName))
            m_states.append({fileName, {}, digestOf(*state)});
    }
}

void MappingArchive::saveStates()
{
    QJsonArray states;
    for (const SavedState& state : std::as_const(m_states)) {
        states.append(QJsonObject{{QStringLiteral("file"), state.fileName},
            {QStringLiteral("savedAt"), state.savedAt.toString(Qt::ISODateWithMs)},
            {QStringLiteral("digest"), QString::fromLatin1(state.digest)}});
    }
    static_cast<void>(m_files.writeAtomically(m_folder + m_baseName + statesFile, QJsonDocument(states).toJson()));
}

QDateTime MappingArchive::now() const
{
    const auto sinceEpoch = std::chrono::duration_cast<std::chrono::milliseconds>(m_scheduler.now().time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(sinceEpoch.count(), Qt::UTC);
}

std::optional<QByteArray> MappingArchive::readFile(const QString& path) const
{
    if (!m_files.exists(path))
        return std::nullopt;
    ReadResult result = m_files.read(path);
    if (auto* const content = std::get_if<QByteArray>(&result))
        return std::move(*content);
    return std::nullopt;
}

} // namespace tarvin
