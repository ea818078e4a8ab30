#pragma once

#include "model/FKeySet.h"
#include "platform/ports/Workspace.h"
#include "profiles/AppProfile.h"
#include "profiles/KeyMappings.h"
#include "profiles/MappingStore.h"
#include "profiles/RuntimeResolution.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace tarvin {

class Console;
class Files;
class Preferences;
class UuidGenerator;

/// The authority on what the user has configured, in two views of one store: the editor's, of `currentProfile`, and the
/// runtime's, of what a key does right now. Main thread only.
///
/// Every edit is on disk, or its failure on the console, when the call returns. Neither the list of profiles nor the
/// current one is stored: an application added to the list has to be added again after a launch, and then finds the
/// mappings that were stored for it.
class KeyProfile : public QObject
{
    Q_OBJECT
    Q_PROPERTY(
        tarvin::AppProfile currentProfile READ currentProfile WRITE setCurrentProfile NOTIFY currentProfileChanged)
    Q_PROPERTY(QList<tarvin::AppProfile> availableProfiles READ availableProfiles NOTIFY availableProfilesChanged)
    Q_PROPERTY(tarvin::ProfileMappings profileMappings READ profileMappings NOTIFY profileMappingsChanged)
    Q_PROPERTY(bool interceptionEnabled READ isInterceptionEnabled WRITE setInterceptionEnabled NOTIFY
            interceptionEnabledChanged)
    Q_PROPERTY(bool functionKeysEnabled READ isFunctionKeysEnabled WRITE setFunctionKeysEnabled NOTIFY
            functionKeysEnabledChanged)
    Q_PROPERTY(bool otherKeysEnabled READ isOtherKeysEnabled WRITE setOtherKeysEnabled NOTIFY otherKeysEnabledChanged)

public:
    /// Told of the action of each custom record that is set, before the record is in force. Must be callable.
    using UsageRecorder = std::function<void(KeyAction)>;

    static constexpr QStringView interceptionEnabledKey = u"Tarvin_InterceptionEnabled";
    static constexpr QStringView functionKeysEnabledKey = u"Tarvin_FunctionKeysEnabled";
    static constexpr QStringView otherKeysEnabledKey = u"Tarvin_OtherKeysEnabled";

    /// @param customStorageURL absolute path of the mapping file, for a separate store; absent: the default place
    KeyProfile(Files& files, Preferences& preferences, Workspace& workspace, Console& console, UuidGenerator& uuids,
        UsageRecorder recordUsage, const std::optional<QString>& customStorageURL = std::nullopt);

    [[nodiscard]] const AppProfile& currentProfile() const { return m_currentProfile; }
    /// Selects the profile to edit, which is also the last that decides at run time.
    void setCurrentProfile(const AppProfile& profile);
    [[nodiscard]] const QList<AppProfile>& availableProfiles() const { return m_availableProfiles; }
    [[nodiscard]] const ProfileMappings& profileMappings() const { return m_profileMappings; }

    /// The master switch.
    [[nodiscard]] bool isInterceptionEnabled() const { return m_interceptionEnabled; }
    void setInterceptionEnabled(bool enabled);
    /// The switch of F1 to F12.
    [[nodiscard]] bool isFunctionKeysEnabled() const { return m_functionKeysEnabled; }
    void setFunctionKeysEnabled(bool enabled);
    /// The switch of all other keys, F13 to F19 among them.
    [[nodiscard]] bool isOtherKeysEnabled() const { return m_otherKeysEnabled; }
    void setOtherKeysEnabled(bool enabled);

    [[nodiscard]] const QString& storageURL() const { return m_store.storageURL(); }
    [[nodiscard]] const QString& backupStorageURL() const { return m_store.backupStorageURL(); }
    /// The front application's own identifier, as the platform last reported it.
    [[nodiscard]] std::optional<QString> cachedFrontmostBundleId() const;

    // Editing; all on the current profile.

    /// Stores the record, or removes the key's entry if the record says no more than the factory does.
    void setConfig(const ConfiguredAction& config, FKey key);
    /// The key's record with another action; its parameters stay.
    void setAction(KeyAction action, FKey key);
    void resetToDefault(FKey key);
    void resetCurrentProfileToDefaults();
    /// Empties every profile, whichever is current.
    void resetAllProfilesToDefaults();
    /// Adds a profile for the application and selects it. A profile whose `id` is this identifier already is left as it
    /// is and not selected. A preset for the same application is no hindrance, its `id` being a word of its own.
    void addAppProfile(const QString& name, const QString& bundleId, const QString& icon);

    // Editing for whoever is no editor: the current profile stays what it is.

    /// As `setConfig`, in the profile with that `id`, which need not be on the list.
    void setConfigInProfile(const ConfiguredAction& config, FKey key, const QString& profileId);
    /// As `resetToDefault`. A profile that stores nothing is not made.
    void resetToDefaultInProfile(FKey key, const QString& profileId);
    /// As `resetCurrentProfileToDefaults`.
    void resetProfileToDefaults(const QString& profileId);
    /// Puts other mappings in the place of all, as they are. No use is counted.
    void replaceMappings(ProfileMappings mappings);

    // The editor's view.

    /// Empty for a profile that stores nothing.
    [[nodiscard]] const KeyMappings& currentMappings() const;
    /// Replaces them without saving.
    void setCurrentMappings(KeyMappings mappings);
    /// The stored record, or the factory's action without parameters.
    [[nodiscard]] ConfiguredAction actionConfig(FKey key) const;
    [[nodiscard]] KeyAction actionInEditor(FKey key) const;
    [[nodiscard]] bool isCustomized(FKey key) const;
    /// Whether no switch pauses the key.
    [[nodiscard]] bool isInterceptionActive(FKey key) const;
    [[nodiscard]] bool isEffectivelyActive(FKey key) const;
    [[nodiscard]] int customizedFunctionKeysCount() const;
    [[nodiscard]] int customizedOtherKeysCount() const;
    /// The number of entries, whether or not their records differ from the factory's.
    [[nodiscard]] int totalCustomizedKeysCount() const;

    // The runtime's view.

    /// The record in force for the key; null if the key must behave as the factory made it. Valid until the next
    /// change: copy the record before doing anything that may edit, or return to the event loop.
    ///
    /// Asked at every key event, so the answer lies ready. Only while no front application is known the platform is
    /// asked, each time.
    [[nodiscard]] const ConfiguredAction* runtimeCustomConfig(FKey key) const
    {
        return m_frontmostBundleIds.isEmpty() ? runtimeCustomConfigOfUnknownFront(key) : m_resolution.record(key);
    }
    [[nodiscard]] ConfiguredAction runtimeEffectiveConfig(FKey key) const;
    [[nodiscard]] std::optional<KeyAction> runtimeCustomAction(FKey key) const;
    /// The profile that holds the record in force; absent if there is none.
    [[nodiscard]] std::optional<QString> profileInForce(FKey key) const;
    /// The keys for which `runtimeCustomConfig` has a record.
    [[nodiscard]] FKeySet customKeys() const;

Q_SIGNALS:
    void currentProfileChanged();
    void availableProfilesChanged();
    void profileMappingsChanged();
    void interceptionEnabledChanged();
    void functionKeysEnabledChanged();
    void otherKeysEnabledChanged();
    /// Another mapping, profile, switch or front application changed the set.
    void customKeysChanged(tarvin::FKeySet keys);

private:
    void setSwitch(bool& member, bool enabled, QStringView key, void (KeyProfile::*changed)());
    /// @param application absent if the platform could not tell which; then it is asked
    void applicationCameToFront(const std::optional<RunningApplication>& application);
    /// Empty if there is no front application, or if it has no identifier.
    [[nodiscard]] QStringList askForFrontmost() const;
    [[nodiscard]] const ConfiguredAction* runtimeCustomConfigOfUnknownFront(FKey key) const;
    [[nodiscard]] ResolutionInputs resolutionInputs(const QStringList& frontmostBundleIds) const;
    void mappingsChanged();
    /// Brings the table up to date; to be called after each change of anything that decides.
    void resolve();
    void save();

    Preferences& m_preferences;
    const Workspace& m_workspace;
    UsageRecorder m_recordUsage;
    AppProfile m_currentProfile = AppProfile::global();
    QList<AppProfile> m_availableProfiles = AppProfile::presets();
    bool m_interceptionEnabled;
    bool m_functionKeysEnabled;
    bool m_otherKeysEnabled;
    MappingStore m_store;
    ProfileMappings m_profileMappings;
    QStringList m_frontmostBundleIds; ///< as last reported; empty: none, or one without identifier
    RuntimeResolution m_resolution;
    FKeySet m_publishedKeys;
    std::unique_ptr<WorkspaceObserver> m_workspaceObserver;
};

} // namespace tarvin
