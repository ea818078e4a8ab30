#include "profiles/KeyProfile.h"

#include "platform/ports/Preferences.h"
#include "profiles/StoredBoolean.h"

#include <algorithm>
#include <utility>

namespace tarvin {

KeyProfile::KeyProfile(Files& files, Preferences& preferences, Workspace& workspace, Console& console,
    UuidGenerator& uuids, UsageRecorder recordUsage, const std::optional<QString>& customStorageURL)
    : m_preferences(preferences)
    , m_workspace(workspace)
    , m_recordUsage(std::move(recordUsage))
    , m_interceptionEnabled(storedBoolean(preferences, interceptionEnabledKey.toString(), true))
    , m_functionKeysEnabled(storedBoolean(preferences, functionKeysEnabledKey.toString(), true))
    , m_otherKeysEnabled(storedBoolean(preferences, otherKeysEnabledKey.toString(), true))
    , m_store(files, console, uuids, customStorageURL)
    , m_profileMappings(m_store.load())
    , m_frontmostBundleIds(askForFrontmost())
{
    resolve();
    m_workspaceObserver = workspace.observeActivation(
        [this](const std::optional<RunningApplication>& application) { applicationCameToFront(application); });
}

void KeyProfile::setCurrentProfile(const AppProfile& profile)
{
    if (profile == m_currentProfile)
        return;
    m_currentProfile = profile;
    resolve();
    Q_EMIT currentProfileChanged();
}

void KeyProfile::setInterceptionEnabled(bool enabled)
{
    setSwitch(m_interceptionEnabled, enabled, interceptionEnabledKey, &KeyProfile::interceptionEnabledChanged);
}

void KeyProfile::setFunctionKeysEnabled(bool enabled)
{
    setSwitch(m_functionKeysEnabled, enabled, functionKeysEnabledKey, &KeyProfile::functionKeysEnabledChanged);
}

void KeyProfile::setOtherKeysEnabled(bool enabled)
{
    setSwitch(m_otherKeysEnabled, enabled, otherKeysEnabledKey, &KeyProfile::otherKeysEnabledChanged);
}

std::optional<QString> KeyProfile::cachedFrontmostBundleId() const
{
    return m_frontmostBundleIds.isEmpty() ? std::nullopt : std::optional(m_frontmostBundleIds.first());
}

void KeyProfile::setConfig(const ConfiguredAction& config, FKey key)
{
    setConfigInProfile(config, key, m_currentProfile.id);
}

void KeyProfile::setConfigInProfile(const ConfiguredAction& config, FKey key, const QString& profileId)
{
    KeyMappings& mappings = m_profileMappings[profileId];
    if (config.isEffectivelyCustom(key)) {
        m_recordUsage(config.action);
        mappings.insert_or_assign(key, config);
    } else {
        mappings.erase(key);
    }
    mappingsChanged();
    save();
}

void KeyProfile::resetToDefaultInProfile(FKey key, const QString& profileId)
{
    if (const auto found = m_profileMappings.find(profileId); found != m_profileMappings.end())
        found->second.erase(key);
    mappingsChanged();
    save();
}

void KeyProfile::resetProfileToDefaults(const QString& profileId)
{
    m_profileMappings.insert_or_assign(profileId, KeyMappings());
    mappingsChanged();
    save();
}

void KeyProfile::replaceMappings(ProfileMappings mappings)
{
    m_profileMappings = std::move(mappings);
    mappingsChanged();
    save();
}

void KeyProfile::setAction(KeyAction action, FKey key)
{
    ConfiguredAction config = actionConfig(key);
    config.action = action;
    setConfig(config, key);
}

void KeyProfile::resetToDefault(FKey key)
{
    KeyMappings mappings = currentMappings();
    mappings.erase(key);
    setCurrentMappings(std::move(mappings));
    save();
}

void KeyProfile::resetCurrentProfileToDefaults()
{
    setCurrentMappings({});
    save();
}

void KeyProfile::resetAllProfilesToDefaults()
{
    m_profileMappings.clear();
    mappingsChanged();
    save();
}

void KeyProfile::addAppProfile(const QString& name, const QString& bundleId, const QString& icon)
{
    if (std::ranges::find(m_availableProfiles, bundleId, &AppProfile::id) != m_availableProfiles.end())
        return;
    const AppProfile profile{bundleId, name, bundleId, icon};
    m_availableProfiles.append(profile);
    resolve();
    Q_EMIT availableProfilesChanged();
    setCurrentProfile(profile);
}

const KeyMappings& KeyProfile::currentMappings() const
{
    static const KeyMappings none;
    const auto found = m_profileMappings.find(m_currentProfile.id);
    return found != m_profileMappings.end() ? found->second : none;
}

void KeyProfile::setCurrentMappings(KeyMappings mappings)
{
    m_profileMappings.insert_or_assign(m_currentProfile.id, std::move(mappings));
    mappingsChanged();
}

ConfiguredAction KeyProfile::actionConfig(FKey key) const
{
    const KeyMappings& mappings = currentMappings();
    const auto found = mappings.find(key);
    return found != mappings.end() ? found->second : ConfiguredAction(defaultAction(key));
}

KeyAction KeyProfile::actionInEditor(FKey key) const
{
    return actionConfig(key).action;
}

bool KeyProfile::isCustomized(FKey key) const
{
    const KeyMappings& mappings = currentMappings();
    const auto found = mappings.find(key);
    return found != mappings.end() && found->second.isEffectivelyCustom(key);
}

bool KeyProfile::isInterceptionActive(FKey key) const
{
    return m_interceptionEnabled && (isFunctionRowKey(key) ? m_functionKeysEnabled : m_otherKeysEnabled);
}

bool KeyProfile::isEffectivelyActive(FKey key) const
{
    return isCustomized(key) && isInterceptionActive(key);
}

int KeyProfile::customizedFunctionKeysCount() const
{
    return static_cast<int>(
        std::ranges::count_if(allFKeys, [this](FKey key) { return isFunctionRowKey(key) && isCustomized(key); }));
}

int KeyProfile::customizedOtherKeysCount() const
{
    return static_cast<int>(
        std::ranges::count_if(allFKeys, [this](FKey key) { return !isFunctionRowKey(key) && isCustomized(key); }));
}

int KeyProfile::totalCustomizedKeysCount() const
{
    return static_cast<int>(currentMappings().size());
}

const ConfiguredAction* KeyProfile::runtimeCustomConfigOfUnknownFront(FKey key) const
{
    if (!isInterceptionActive(key))
        return nullptr;
    const QStringList frontmost = askForFrontmost();
    return recordInForce(resolutionLevels(resolutionInputs(frontmost)), key);
}

ConfiguredAction KeyProfile::runtimeEffectiveConfig(FKey key) const
{
    const ConfiguredAction* config = runtimeCustomConfig(key);
    return config != nullptr ? *config : ConfiguredAction(defaultAction(key));
}

std::optional<KeyAction> KeyProfile::runtimeCustomAction(FKey key) const
{
    const ConfiguredAction* config = runtimeCustomConfig(key);
    return config != nullptr ? std::optional(config->action) : std::nullopt;
}

std::optional<QString> KeyProfile::profileInForce(FKey key) const
{
    const ConfiguredAction* const inForce = runtimeCustomConfig(key);
    for (const auto& [id, mappings] : m_profileMappings) {
        const auto found = mappings.find(key);
        if (inForce != nullptr && found != mappings.end() && &found->second == inForce)
            return id;
    }
    return std::nullopt;
}

FKeySet KeyProfile::customKeys() const
{
    if (!m_frontmostBundleIds.isEmpty())
        return m_resolution.customKeys();
    RuntimeResolution resolution;
    const QStringList frontmost = askForFrontmost();
    resolution.resolve(resolutionInputs(frontmost));
    return resolution.customKeys();
}

void KeyProfile::setSwitch(bool& member, bool enabled, QStringView key, void (KeyProfile::*changed)())
{
    const bool differs = member != enabled;
    member = enabled;
    // Stored even if it was so before: the setting may never have been written.
    m_preferences.setValue(key.toString(), enabled);
    if (!differs)
        return;
    resolve();
    Q_EMIT(this->*changed)();
}

void KeyProfile::applicationCameToFront(const std::optional<RunningApplication>& application)
{
    m_frontmostBundleIds =
        application && application->bundleIdentifier() ? application->bundleIdentifiers : askForFrontmost();
    resolve();
}

QStringList KeyProfile::askForFrontmost() const
{
    const std::optional<RunningApplication> application = m_workspace.frontmostApplication();
    return application ? application->bundleIdentifiers : QStringList();
}

ResolutionInputs KeyProfile::resolutionInputs(const QStringList& frontmostBundleIds) const
{
    FKeySet activeKeys;
    for (const FKey key : allFKeys) {
        if (isInterceptionActive(key))
            activeKeys.insert(key);
    }
    return {m_profileMappings, m_availableProfiles, m_currentProfile.id, activeKeys, frontmostBundleIds};
}

void KeyProfile::mappingsChanged()
{
    resolve();
    Q_EMIT profileMappingsChanged();
}

void KeyProfile::resolve()
{
    const QStringList frontmost = m_frontmostBundleIds.isEmpty() ? askForFrontmost() : m_frontmostBundleIds;
    m_resolution.resolve(resolutionInputs(frontmost));
    const FKeySet keys = m_resolution.customKeys();
    if (keys == m_publishedKeys)
        return;
    m_publishedKeys = keys;
    Q_EMIT customKeysChanged(keys);
}

void KeyProfile::save()
{
    m_store.save(m_profileMappings);
}

} // namespace tarvin
