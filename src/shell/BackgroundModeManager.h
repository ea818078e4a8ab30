#pragma once

#include "interception/StudioPresence.h"
#include "shell/BackgroundBehavior.h"
#include "shell/LoginRegistration.h"
#include "shell/StartupDockMode.h"

#include <QObject>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

namespace tarvin {

class AppShell;
class AppWindow;
class Preferences;
class Workspace;

/// Whether the program shows in the Dock, whether it opens at login, and its Studio window. Main thread only.
class BackgroundModeManager : public QObject, public StudioPresence
{
    Q_OBJECT
    Q_PROPERTY(bool openAtStartup READ openAtStartup WRITE setOpenAtStartup NOTIFY openAtStartupChanged)
    Q_PROPERTY(tarvin::StartupDockMode startupDockMode READ startupDockMode WRITE setStartupDockMode NOTIFY
            startupDockModeChanged)
    Q_PROPERTY(tarvin::BackgroundBehavior behavior READ behavior WRITE setBehavior NOTIFY behaviorChanged)
    Q_PROPERTY(bool closeWindowHidesToBackground READ closeWindowHidesToBackground WRITE setCloseWindowHidesToBackground
            NOTIFY closeWindowHidesToBackgroundChanged)
    Q_PROPERTY(bool zeroPowerIdleEngine READ zeroPowerIdleEngine WRITE setZeroPowerIdleEngine NOTIFY
            zeroPowerIdleEngineChanged)
    Q_PROPERTY(bool showMenuBarIcon READ showMenuBarIcon WRITE setShowMenuBarIcon NOTIFY showMenuBarIconChanged)
    Q_PROPERTY(bool isGlobalSummonShortcutEnabled READ isGlobalSummonShortcutEnabled WRITE
            setGlobalSummonShortcutEnabled NOTIFY globalSummonShortcutEnabledChanged)
    Q_PROPERTY(bool isStudioWindowVisible READ isStudioWindowVisible WRITE setStudioWindowVisible NOTIFY
            studioWindowVisibleChanged)

public:
    static constexpr QStringView openAtStartupKey = u"Tarvin_OpenAtStartup";
    static constexpr QStringView startupDockModeKey = u"Tarvin_StartupDockMode";
    static constexpr QStringView backgroundModeEnabledKey = u"Tarvin_BackgroundModeEnabled";
    static constexpr QStringView backgroundBehaviorKey = u"Tarvin_BackgroundBehavior";
    // Reserved: nothing is stored under these.
    static constexpr QStringView closeWindowHidesKey = u"Tarvin_CloseWindowHidesToBackground";
    static constexpr QStringView zeroPowerIdleKey = u"Tarvin_ZeroPowerIdleEngine";
    static constexpr QStringView showMenuBarIconKey = u"Tarvin_ShowMenuBarIcon";
    static constexpr QStringView globalSummonShortcutEnabledKey = u"Tarvin_GlobalSummonShortcutEnabled";

    /// A launch this soon after the system's start, in seconds, counts as one at login, also when made by hand.
    static constexpr double startupLaunchUptime = 120.0;

    /// Reads the settings, writes none of them back and applies the Dock rule.
    BackgroundModeManager(AppShell& appShell, Preferences& preferences, LoginItem& loginItem, Scripts& scripts,
        Scheduler& scheduler, ProcessInfo& processInfo, Workspace& workspace, RuntimeLog& log);

    /// The Studio window, null while it has not been made. Not owned.
    [[nodiscard]] AppWindow* mainWindow() const { return m_mainWindow; }
    void setMainWindow(AppWindow* window) { m_mainWindow = window; }
    /// What makes the Studio window when there is none; set by the view.
    void setOpenWindowAction(std::function<void()> action) { m_openWindowAction = std::move(action); }

    [[nodiscard]] bool openAtStartup() const { return m_openAtStartup; }
    /// Stores the wish and registers accordingly.
    void setOpenAtStartup(bool open);
    [[nodiscard]] StartupDockMode startupDockMode() const { return m_startupDockMode; }
    /// Stores the mode, under its key and under the older one, and applies it.
    void setStartupDockMode(StartupDockMode mode);
    [[nodiscard]] BackgroundBehavior behavior() const { return m_behavior; }
    void setBehavior(BackgroundBehavior behavior);
    /// True when the Dock icon goes away with the Studio.
    [[nodiscard]] bool isBackgroundModeEnabled() const { return m_startupDockMode == StartupDockMode::hideFromDock; }
    void setBackgroundModeEnabled(bool enabled);

    // The next three change nothing: the close button always hides the Studio, the menu bar item is always there, and
    // an idle program needs no power to save.

    [[nodiscard]] bool closeWindowHidesToBackground() const { return m_closeWindowHidesToBackground; }
    void setCloseWindowHidesToBackground(bool hides);
    [[nodiscard]] bool zeroPowerIdleEngine() const { return m_zeroPowerIdleEngine; }
    void setZeroPowerIdleEngine(bool enabled);
    [[nodiscard]] bool showMenuBarIcon() const { return m_showMenuBarIcon; }
    void setShowMenuBarIcon(bool show);

    [[nodiscard]] bool isGlobalSummonShortcutEnabled() const override { return m_globalSummonShortcutEnabled; }
    void setGlobalSummonShortcutEnabled(bool enabled);
    [[nodiscard]] bool isStudioWindowVisible() const override { return m_studioWindowVisible; }
    /// Says that the Studio is open or not, and applies the Dock rule; moves no window.
    void setStudioWindowVisible(bool visible);

    /// Applies the Dock rule: an icon while the Studio is open, or always if the mode says so.
    void updateActivationPolicy();
    /// Brings the login registration in line with @p enabled, whatever the setting says.
    void syncOpenAtStartupRegistration(bool enabled);
    /// Whether this run was started by the system at login rather than by the user. Found afresh at each call.
    [[nodiscard]] bool wasLaunchedAtStartupOrLogin() const;
    /// Shows the Studio and brings the program to the front, making the window if there is none.
    void openStudioWindow() override;
    void hideStudioWindow();
    /// The Dock rule and the login registration, as they are set.
    void applyInitialPolicy();
    void resetToFactoryDefaults();

Q_SIGNALS:
    void openAtStartupChanged();
    void startupDockModeChanged();
    void behaviorChanged();
    void closeWindowHidesToBackgroundChanged();
    void zeroPowerIdleEngineChanged();
    void showMenuBarIconChanged();
    void globalSummonShortcutEnabledChanged();
    void studioWindowVisibleChanged();

private:
    using ChangeSignal = void (BackgroundModeManager::*)();

    void publish(bool& field, bool value, ChangeSignal changed);
    [[nodiscard]] bool storedOpenAtStartup() const;
    [[nodiscard]] StartupDockMode storedStartupDockMode() const;
    [[nodiscard]] BackgroundBehavior storedBehavior() const;
    [[nodiscard]] std::vector<AppWindow*> studioWindows() const;

    AppShell& m_appShell;
    Preferences& m_preferences;
    Scheduler& m_scheduler;
    ProcessInfo& m_processInfo;
    Workspace& m_workspace;
    RuntimeLog& m_log;
    LoginRegistration m_loginRegistration;

    AppWindow* m_mainWindow = nullptr;
    std::function<void()> m_openWindowAction;
    bool m_openAtStartup;
    StartupDockMode m_startupDockMode;
    BackgroundBehavior m_behavior;
    bool m_closeWindowHidesToBackground = true;
    bool m_zeroPowerIdleEngine = true;
    bool m_showMenuBarIcon = true;
    bool m_globalSummonShortcutEnabled = true;
    bool m_studioWindowVisible = false;
};

} // namespace tarvin
