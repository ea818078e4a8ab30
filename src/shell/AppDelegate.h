#pragma once

#include "interception/MainThread.h"
#include "platform/ports/AppShell.h"

#include <functional>

namespace tarvin {

class BackgroundModeManager;
class EventTapManager;
class FnKeyModeHelper;
class RuntimeLog;
class Scheduler;

/// What the program does when it starts, when it is called for again, and when it ends. The Studio window is hidden
/// rather than closed, and closing it never ends the program. Main thread only.
class AppDelegate : public AppShellDelegate
{
public:
    /// The managers are made at their first use, so that they come to life in the order of the start.
    struct Collaborators
    {
        std::function<EventTapManager&()> eventTapManager;
        std::function<BackgroundModeManager&()> backgroundModeManager;
        std::function<FnKeyModeHelper&()> fnKeyModeHelper;
        std::function<void()> saveEverything; ///< what is still to be written to files
        AppShell& appShell;
        Scheduler& scheduler;
        RuntimeLog& log;
    };

    /// Listens to the shell from now on, for as long as it lives.
    explicit AppDelegate(Collaborators collaborators);
    ~AppDelegate() override;
    Q_DISABLE_COPY_MOVE(AppDelegate)

    /// Starts everything; the Studio opens on a later turn, unless the system started the program at login.
    void applicationDidFinishLaunching();

    /// From the decision that the system started the program at login until it first becomes active.
    [[nodiscard]] bool isStartupLaunch() const { return m_isStartupLaunch; }

    void applicationDidBecomeActive() override;
    void applicationShouldHandleReopen(bool hasVisibleWindows) override;
    void applicationOpenUrls(const QStringList& urls) override;
    void windowShouldClose(AppWindow& window) override;
    void windowDidBecomeKey(AppWindow& window) override;
    void applicationWillTerminate() override;

private:
    void finishLaunch();

    Collaborators m_with;
    MainThread m_mainThread;
    bool m_isStartupLaunch = false;
};

} // namespace tarvin
