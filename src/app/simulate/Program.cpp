#include "app/simulate/Program.h"

#include "actions/ActionExecutor.h"
#include "app/simulate/FieldTypes.h"
#include "interception/EventTapManager.h"
#include "interception/FnKeyModeHelper.h"
#include "interception/TriggerNotice.h"
#include "model/RecordJson.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "shell/AppDelegate.h"
#include "shell/BackgroundModeManager.h"
#include "shell/KeyboardTactileEngine.h"

#include <algorithm>
#include <utility>

namespace tarvin::simulate {

Program::Program(simulated::SimulatedPlatform& platform)
    : m_platform(platform)
    , m_panels(platform)
    , m_shared(platform.ports(), m_panels)
{ }

void Program::start()
{
    // The notice is watched first: it can be set as soon as there are taps.
    QObject::connect(&m_shared.triggerNotice(), &TriggerNotice::lastTriggeredInfoChanged, &m_watch, [this] {
        m_platform.effects().record(simulated::NoticeChanged{m_shared.triggerNotice().lastTriggeredInfo()});
    });
    m_shared.appDelegate().applicationDidFinishLaunching();
    // The Studio opens on a later turn, and finds by then what makes its window.
    m_shared.backgroundModeManager().setOpenWindowAction([this] {
        simulated::SimulatedWindow& window =
            m_platform.appShell().addWindow(u"Tarvin — MacBook Air Keyboard Studio"_qs);
        window.makeKeyAndOrderFront();
    });
    recordPublishedState();
}

Problem Program::apply(const ExecuteRecord& execute)
{
    m_shared.actionExecutor().execute(recordFrom(execute.record));
    return std::nullopt;
}

Problem Program::apply(const ExecuteAction& execute)
{
    m_shared.actionExecutor().execute(execute.action);
    return std::nullopt;
}

Problem Program::apply(const FlipSwitches& flip)
{
    if (flip.interception)
        m_shared.keyProfile().setInterceptionEnabled(*flip.interception);
    if (flip.functionKeys)
        m_shared.keyProfile().setFunctionKeysEnabled(*flip.functionKeys);
    if (flip.otherKeys)
        m_shared.keyProfile().setOtherKeysEnabled(*flip.otherKeys);
    return std::nullopt;
}

Problem Program::apply(const EditProfile& edit)
{
    const QList<AppProfile> profiles = m_shared.keyProfile().availableProfiles();
    const auto found = std::ranges::find(profiles, edit.id, &AppProfile::id);
    if (found == profiles.end()) {
        QStringList known;
        for (const AppProfile& profile : profiles)
            known.append(profile.id);
        return u"there is no profile \"%1\"; expected %2, or an \"addProfile\" before"_qs.arg(
            edit.id, field::alternatives(known));
    }
    m_shared.keyProfile().setCurrentProfile(*found);
    return std::nullopt;
}

Problem Program::apply(const AddProfile& add)
{
    m_shared.keyProfile().addAppProfile(add.name, add.bundleIdentifier, add.icon);
    return std::nullopt;
}

Problem Program::apply(const EditKey& edit)
{
    m_shared.keyProfile().setConfig(recordFrom(edit.record), edit.key);
    return std::nullopt;
}

Problem Program::apply(const ResetKey& reset)
{
    m_shared.keyProfile().resetToDefault(reset.key);
    return std::nullopt;
}

void Program::recordPublishedState()
{
    EventTapManager& taps = m_shared.eventTapManager();
    QObject::connect(&taps, &EventTapManager::isRunningChanged, &m_watch,
        [this, &taps] { recordState(u"isRunning", taps.isRunning()); });
    QObject::connect(&taps, &EventTapManager::hasAccessibilityPermissionChanged, &m_watch,
        [this, &taps] { recordState(u"hasAccessibilityPermission", taps.hasAccessibilityPermission()); });
    BackgroundModeManager& background = m_shared.backgroundModeManager();
    QObject::connect(&background, &BackgroundModeManager::studioWindowVisibleChanged, &m_watch,
        [this, &background] { recordState(u"isStudioWindowVisible", background.isStudioWindowVisible()); });
    QObject::connect(&m_shared.keyboardTactileEngine(), &KeyboardTactileEngine::pressedKeyIdChanged, &m_watch,
        [this] { recordKeycap(); });
    KeyProfile& profile = m_shared.keyProfile();
    QObject::connect(&profile, &KeyProfile::currentProfileChanged, &m_watch,
        [this, &profile] { recordState(u"currentProfile", profile.currentProfile().id); });
    recordState(u"isRunning", taps.isRunning());
    recordState(u"hasAccessibilityPermission", taps.hasAccessibilityPermission());
}

void Program::recordKeycap()
{
    using namespace simulated;
    const std::optional<QString> pressed = m_shared.keyboardTactileEngine().pressedKeyId();
    if (const auto released = std::exchange(m_pressedKeycap, pressed))
        m_platform.effects().record(KeycapAnimated{*released, KeycapStep::released});
    if (pressed)
        m_platform.effects().record(KeycapAnimated{*pressed, KeycapStep::pressed});
}

void Program::recordState(QStringView name, const QJsonValue& value)
{
    m_platform.effects().record(simulated::StateChanged{name.toString(), value});
}

ConfiguredAction Program::recordFrom(const QJsonObject& json)
{
    // Checked when the scenario was read; only the identities of its parts are new.
    return configuredActionFromJson(json, [this] {
        return m_platform.uuids().next();
    }).value_or(ConfiguredAction(KeyAction::unassigned));
}

} // namespace tarvin::simulate
