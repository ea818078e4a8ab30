#include "profiles/MappingFile.h"

#include "model/RecordJson.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace tarvin {

namespace {

KeyMappings readableEntries(const QJsonObject& profile, const UuidSource& newUuid)
{
    KeyMappings mappings;
    for (auto entry = profile.begin(); entry != profile.end(); ++entry) {
        const std::optional<FKey> key = fKeyFromRawValue(entry.key());
        if (!key)
            continue;
        if (std::optional<ConfiguredAction> record = configuredActionFromJson(entry.value(), newUuid))
            mappings.emplace(*key, *std::move(record));
    }
    return mappings;
}

} // namespace

QByteArray encodeMappings(const ProfileMappings& mappings)
{
    QJsonObject profiles;
    for (const auto& [id, keyMappings] : mappings) {
        QJsonObject profile;
        for (const auto& [key, record] : keyMappings)
            profile.insert(rawValue(key), toJson(record));
        profiles.insert(id, profile);
    }
    return QJsonDocument(profiles).toJson(QJsonDocument::Indented);
}

// One pass serves a sound file and a damaged one. Reading strictly first and tolerantly after a failure would come to
// the same: where every entry is sound the tolerant reader skips none but the unknown names, which the strict one drops
// too, and what is not an object of objects fails for both.
std::optional<ProfileMappings> decodeMappings(const QByteArray& content, const UuidSource& newUuid)
{
    const QJsonDocument document = QJsonDocument::fromJson(content);
    if (!document.isObject())
        return std::nullopt;

    ProfileMappings mappings;
    const QJsonObject profiles = document.object();
    for (auto profile = profiles.begin(); profile != profiles.end(); ++profile) {
        if (!profile.value().isObject())
            return std::nullopt;
        mappings.emplace(profile.key(), readableEntries(profile.value().toObject(), newUuid));
    }
    return mappings;
}

} // namespace tarvin
