#include "shell/BackgroundModeManager.h"

#include "interception/RuntimeLog.h"
#include "platform/ports/AppShell.h"
#include "platform/ports/Preferences.h"
#include "platform/ports/ProcessInfo.h"
#include "platform/ports/Scheduler.h"
#include "profiles/StoredBoolean.h"

#include <utility>

namespace tarvin {

BackgroundModeManager::BackgroundModeManager(AppShell& appShell, Preferences& preferences, LoginItem& loginItem,
    Scripts& scripts, Scheduler& scheduler, ProcessInfo& processInfo, Workspace& workspace, RuntimeLog& log)
    : m_appShell(appShell)
    , m_preferences(preferences)
    , m_scheduler(scheduler)
    , m_processInfo(processInfo)
    , m_workspace(workspace)
    , m_log(log)
    , m_loginRegistration(loginItem, scripts, scheduler, processInfo, log)
    , m_openAtStartup(storedOpenAtStartup())
    , m_startupDockMode(storedStartupDockMode())
    , m_behavior(storedBehavior())
{
    updateActivationPolicy();
}

bool BackgroundModeManager::storedOpenAtStartup() const
{
    return storedBoolean(m_preferences, openAtStartupKey.toString(), true);
}

StartupDockMode BackgroundModeManager::storedStartupDockMode() const
{
    const QString text = m_preferences.value(startupDockModeKey.toString()).toString();
    if (const auto mode = startupDockModeFromRawValue(text))
        return *mode;
    // What an older version stored in its place.
    const bool hides = storedBoolean(m_preferences, backgroundModeEnabledKey.toString(), true);
    return hides ? StartupDockMode::hideFromDock : StartupDockMode::showInDock;
}

BackgroundBehavior BackgroundModeManager::storedBehavior() const
{
    const QString text = m_preferences.value(backgroundBehaviorKey.toString()).toString();
    return backgroundBehaviorFromRawValue(text).value_or(BackgroundBehavior::menuBarOnly);
}

void BackgroundModeManager::publish(bool& field, bool value, ChangeSignal changed)
{
    if (std::exchange(field, value) != value)
        Q_EMIT(this->*changed)();
}

void BackgroundModeManager::setOpenAtStartup(bool open)
{
    const bool changed = std::exchange(m_openAtStartup, open) != open;
    m_preferences.setValue(openAtStartupKey.toString(), open);
    syncOpenAtStartupRegistration(open);
    if (changed)
        Q_EMIT openAtStartupChanged();
}

void BackgroundModeManager::setStartupDockMode(StartupDockMode mode)
{
    const bool changed = std::exchange(m_startupDockMode, mode) != mode;
    m_preferences.setValue(startupDockModeKey.toString(), rawValue(mode).toString());
    m_preferences.setValue(backgroundModeEnabledKey.toString(), isBackgroundModeEnabled());
    updateActivationPolicy();
    if (changed)
        Q_EMIT startupDockModeChanged();
}

void BackgroundModeManager::setBehavior(BackgroundBehavior behavior)
{
    const bool changed = std::exchange(m_behavior, behavior) != behavior;
    m_preferences.setValue(backgroundBehaviorKey.toString(), rawValue(behavior).toString());
    updateActivationPolicy();
    if (changed)
        Q_EMIT behaviorChanged();
}

void BackgroundModeManager::setBackgroundModeEnabled(bool enabled)
{
    setStartupDockMode(enabled ? StartupDockMode::hideFromDock : StartupDockMode::showInDock);
}

void BackgroundModeManager::setCloseWindowHidesToBackground(bool hides)
{
    publish(m_closeWindowHidesToBackground, hides, &BackgroundModeManager::closeWindowHidesToBackgroundChanged);
}

void BackgroundModeManager::setZeroPowerIdleEngine(bool enabled)
{
    publish(m_zeroPowerIdleEngine, enabled, &BackgroundModeManager::zeroPowerIdleEngineChanged);
}

void BackgroundModeManager::setShowMenuBarIcon(bool show)
{
    publish(m_showMenuBarIcon, show, &BackgroundModeManager::showMenuBarIconChanged);
}

void BackgroundModeManager::setGlobalSummonShortcutEnabled(bool enabled)
{
    publish(m_globalSummonShortcutEnabled, enabled, &BackgroundModeManager::globalSummonShortcutEnabledChanged);
}

void BackgroundModeManager::setStudioWindowVisible(bool visible)
{
    const bool changed = std::exchange(m_studioWindowVisible, visible) != visible;
    updateActivationPolicy();
    if (changed)
        Q_EMIT studioWindowVisibleChanged();
}

void BackgroundModeManager::updateActivationPolicy()
{
    const bool showsInDock = m_startupDockMode == StartupDockMode::showInDock || m_studioWindowVisible;
    const auto wanted = showsInDock ? ActivationPolicy::regular : ActivationPolicy::accessory;
    if (m_appShell.activationPolicy() != wanted)
        m_appShell.setActivationPolicy(wanted);
}

void BackgroundModeManager::syncOpenAtStartupRegistration(bool enabled)
{
    m_loginRegistration.sync(enabled);
}

bool BackgroundModeManager::wasLaunchedAtStartupOrLogin() const
{
    const QStringList arguments = m_processInfo.arguments();
    for (const QString& marker : {u"--startup"_qs, u"--background"_qs, u"-loginItem"_qs}) {
        if (arguments.contains(marker))
            return true;
    }
    return m_processInfo.wasStartedAsLoginItem() || m_scheduler.uptime() < startupLaunchUptime;
}

void BackgroundModeManager::applyInitialPolicy()
{
    updateActivationPolicy();
    syncOpenAtStartupRegistration(m_openAtStartup);
}

void BackgroundModeManager::resetToFactoryDefaults()
{
    setOpenAtStartup(true);
    setStartupDockMode(StartupDockMode::hideFromDock);
    setBehavior(BackgroundBehavior::menuBarOnly);
    for (const QStringView key :
        {openAtStartupKey, startupDockModeKey, backgroundModeEnabledKey, backgroundBehaviorKey})
        m_preferences.removeValue(key.toString());
    syncOpenAtStartupRegistration(m_openAtStartup);
    updateActivationPolicy();
}

} // namespace tarvin
