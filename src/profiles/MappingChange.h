#pragma once

#include "model/UuidSource.h"
#include "profiles/KeyMappings.h"

#include <QDateTime>
#include <QJsonObject>

#include <optional>

namespace tarvin {

/// What one profile said before a change, of the keys that changed alone.
struct ProfileBefore
{
    bool existed = false; ///< a profile may store nothing and yet be there, after a reset
    std::map<FKey, std::optional<ConfiguredAction>> keys; ///< nothing: the key had no record

    bool operator==(const ProfileBefore&) const = default;
};

/// One change of mappings, told by what was before it, so that it can be taken back.
struct MappingChange
{
    QDateTime at; ///< UTC
    std::map<QString, ProfileBefore> profiles; ///< by their `id`, those alone that changed

    bool operator==(const MappingChange&) const = default;
};

/// What changed on the way from @p before to @p after; no profiles if nothing did.
[[nodiscard]] MappingChange changeBetween(
    const ProfileMappings& before, const ProfileMappings& after, const QDateTime& at);

/// The mappings without the change. What it did not touch stays, also where it changed since.
[[nodiscard]] ProfileMappings withoutChange(ProfileMappings mappings, const MappingChange& change);

[[nodiscard]] QJsonObject toJson(const MappingChange& change);
/// Absent for what is no change. A record that can't be read counts as none.
[[nodiscard]] std::optional<MappingChange> mappingChangeFromJson(const QJsonValue& value, const UuidSource& newUuid);

} // namespace tarvin
