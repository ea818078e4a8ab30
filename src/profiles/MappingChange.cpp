#include "profiles/MappingChange.h"

#include "model/RecordJson.h"

#include <algorithm>

namespace tarvin {

namespace {

const KeyMappings* mappingsOf(const ProfileMappings& mappings, const QString& profileId)
{
    const auto found = mappings.find(profileId);
    return found == mappings.end() ? nullptr : &found->second;
}

std::optional<ConfiguredAction> recordOf(const KeyMappings* mappings, FKey key)
{
    if (mappings == nullptr)
        return std::nullopt;
    const auto found = mappings->find(key);
    return found == mappings->end() ? std::nullopt : std::optional(found->second);
}

void addProfile(MappingChange& change, const QString& id, const KeyMappings* before, const KeyMappings* after)
{
    ProfileBefore profile{.existed = before != nullptr, .keys = {}};
    for (const FKey key : allFKeys) {
        const std::optional<ConfiguredAction> record = recordOf(before, key);
        if (record != recordOf(after, key))
            profile.keys.emplace(key, record);
    }
    if (!profile.keys.empty() || profile.existed != (after != nullptr))
        change.profiles.emplace(id, std::move(profile));
}

} // namespace

MappingChange changeBetween(const ProfileMappings& before, const ProfileMappings& after, const QDateTime& at)
{
    MappingChange change{.at = at, .profiles = {}};
    for (const auto& [id, mappings] : before)
        addProfile(change, id, &mappings, mappingsOf(after, id));
    for (const auto& [id, mappings] : after) {
        if (mappingsOf(before, id) == nullptr)
            addProfile(change, id, nullptr, &mappings);
    }
    return change;
}

ProfileMappings withoutChange(ProfileMappings mappings, const MappingChange& change)
{
    for (const auto& [id, profile] : change.profiles) {
        KeyMappings& keys = mappings[id];
        for (const auto& [key, record] : profile.keys) {
            if (record)
                keys.insert_or_assign(key, *record);
            else
                keys.erase(key);
        }
        if (!profile.existed && keys.empty())
            mappings.erase(id);
    }
    return mappings;
}

QJsonObject toJson(const MappingChange& change)
{
    QJsonObject profiles;
    for (const auto& [id, profile] : change.profiles) {
        QJsonObject keys;
        for (const auto& [key, record] : profile.keys)
            keys.insert(rawValue(key), record ? toJson(*record) : QJsonValue());
        profiles.insert(id, QJsonObject{{QStringLiteral("existed"), profile.existed}, {QStringLiteral("keys"), keys}});
    }
    return {{QStringLiteral("at"), change.at.toString(Qt::ISODateWithMs)}, {QStringLiteral("profiles"), profiles}};
}

std::optional<MappingChange> mappingChangeFromJson(const QJsonValue& value, const UuidSource& newUuid)
{
    const QJsonValue profiles = value.toObject().value(u"profiles");
    if (!profiles.isObject())
        return std::nullopt;
    MappingChange change{
        .at = QDateTime::fromString(value.toObject().value(u"at").toString(), Qt::ISODateWithMs), .profiles = {}};
    const QJsonObject objects = profiles.toObject();
    for (auto entry = objects.begin(); entry != objects.end(); ++entry) {
        ProfileBefore profile{.existed = entry.value().toObject().value(u"existed").toBool(), .keys = {}};
        const QJsonObject keys = entry.value().toObject().value(u"keys").toObject();
        for (auto record = keys.begin(); record != keys.end(); ++record) {
            if (const std::optional<FKey> key = fKeyFromRawValue(record.key()))
                profile.keys.emplace(*key, configuredActionFromJson(record.value(), newUuid));
        }
        change.profiles.emplace(entry.key(), std::move(profile));
    }
    return change;
}

} // namespace tarvin
