#include "profiles/RuntimeResolution.h"

#include <algorithm>

namespace tarvin {

namespace {

void appendLevel(ResolutionLevels& levels, const ProfileMappings& mappings, const QString& profileId)
{
    const auto found = mappings.find(profileId);
    if (found != mappings.end())
        levels.push_back(&found->second);
}

} // namespace

ResolutionLevels resolutionLevels(const ResolutionInputs& inputs)
{
    ResolutionLevels levels;
    for (const QString& identifier : inputs.frontmostBundleIds) {
        const auto profile = std::ranges::find(inputs.availableProfiles, identifier, &AppProfile::bundleIdentifier);
        if (profile != inputs.availableProfiles.end())
            appendLevel(levels, inputs.mappings, profile->id);
    }
    appendLevel(levels, inputs.mappings, AppProfile::global().id);
    appendLevel(levels, inputs.mappings, inputs.currentProfileId);
    return levels;
}

const ConfiguredAction* recordInForce(const ResolutionLevels& levels, FKey key)
{
    for (const KeyMappings* mappings : levels) {
        const auto found = mappings->find(key);
        if (found != mappings->end() && found->second.isEffectivelyCustom(key))
            return &found->second;
    }
    return nullptr;
}

void RuntimeResolution::resolve(const ResolutionInputs& inputs)
{
    const ResolutionLevels levels = resolutionLevels(inputs);
    for (const FKey key : allFKeys)
        m_records[orderOf(key)] = inputs.activeKeys.contains(key) ? recordInForce(levels, key) : nullptr;
}

FKeySet RuntimeResolution::customKeys() const noexcept
{
    FKeySet keys;
    for (const FKey key : allFKeys) {
        if (record(key) != nullptr)
            keys.insert(key);
    }
    return keys;
}

} // namespace tarvin
