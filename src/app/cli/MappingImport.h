#pragma once

#include "model/UuidSource.h"
#include "profiles/KeyMappings.h"

#include <QByteArray>
#include <QStringList>

namespace tarvin {

/// What a file of mappings holds, checked entry by entry.
struct MappingImport
{
    ProfileMappings mappings;
    QStringList problems; ///< each with its place; if there is one, nothing may be imported
    int records = 0;
};

/// Reads the form of the mapping file, but where the program would step over what it doesn't understand, this tells.
[[nodiscard]] MappingImport checkMappings(const QByteArray& content, const UuidSource& newUuid);

/// The mappings with those of the file: key by key, a record that says no more than the factory taking the key's away.
[[nodiscard]] ProfileMappings merged(ProfileMappings mappings, const ProfileMappings& imported);

} // namespace tarvin
