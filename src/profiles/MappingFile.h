#pragma once

#include "model/UuidSource.h"
#include "profiles/KeyMappings.h"

#include <QByteArray>

#include <optional>

namespace tarvin {

/// The mappings as the text of a file: an object of profiles, each an object of records under the stored names of the
/// keys.
[[nodiscard]] QByteArray encodeMappings(const ProfileMappings& mappings);

/// Absent if @p content is not an object of objects. Inside that, an entry that cannot be read costs itself alone: one
/// under an unknown name, or whose value is no record. A profile without a readable entry stays, empty.
[[nodiscard]] std::optional<ProfileMappings> decodeMappings(const QByteArray& content, const UuidSource& newUuid);

} // namespace tarvin
