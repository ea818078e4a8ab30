#pragma once

#include "model/FKeySet.h"
#include "profiles/AppProfile.h"
#include "profiles/KeyMappings.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace tarvin {

/// Everything that decides what a key does right now.
struct ResolutionInputs
{
    const ProfileMappings& mappings;
    const QList<AppProfile>& availableProfiles;
    const QString& currentProfileId;
    FKeySet activeKeys; ///< the keys that no switch pauses
    const QStringList& frontmostBundleIds; ///< the application's own identifier first, then those of its roles
};

/// The profiles that are asked, in order; the first with an effectively custom record for a key wins.
using ResolutionLevels = std::vector<const KeyMappings*>;

/// For each identifier of the front application the first profile that carries it, then the profile for all
/// applications, then the one being edited. This last level counts in every application, on purpose: a key under edit
/// can be tried out at once.
[[nodiscard]] ResolutionLevels resolutionLevels(const ResolutionInputs& inputs);

/// The record in force for @p key, null if it behaves as the factory made it. Points into the mappings.
[[nodiscard]] const ConfiguredAction* recordInForce(const ResolutionLevels& levels, FKey key);

/// The answer for every key, worked out at each change so that a key event costs one look into a table, however many
/// profiles there are. The pointers hold until the mappings change.
class RuntimeResolution
{
public:
    void resolve(const ResolutionInputs& inputs);

    [[nodiscard]] const ConfiguredAction* record(FKey key) const noexcept { return m_records[orderOf(key)]; }
    /// The keys that have a record.
    [[nodiscard]] FKeySet customKeys() const noexcept;

private:
    std::array<const ConfiguredAction*, fKeyCount> m_records{};
};

} // namespace tarvin
