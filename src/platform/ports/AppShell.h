#pragma once

#include "platform/ports/Workspace.h"

#include <QString>

#include <functional>
#include <vector>

namespace tarvin {

/// A window of the program itself. Owned by the shell, alive until the process ends.
class AppWindow
{
public:
    virtual ~AppWindow() = default;
    [[nodiscard]] virtual QString title() const = 0;
    /// A floating tool panel rather than an ordinary window.
    [[nodiscard]] virtual bool isPanel() const = 0;
    [[nodiscard]] virtual bool isVisible() const = 0;
    [[nodiscard]] virtual bool isMiniaturized() const = 0;
    virtual void setVisible() = 0;
    virtual void miniaturize() = 0;
    virtual void deminiaturize() = 0;
    virtual void makeKeyAndOrderFront() = 0;
    /// Raises the window even when another application is active.
    virtual void orderFrontRegardless() = 0;
    virtual void orderOut() = 0;
};

/// What the system tells the program about itself. Called on the main thread.
class AppShellDelegate
{
public:
    virtual ~AppShellDelegate() = default;
    virtual void applicationDidBecomeActive() = 0;
    /// The program was started again while it runs, or its icon was clicked.
    virtual void applicationShouldHandleReopen(bool hasVisibleWindows) = 0;
    virtual void applicationOpenUrls(const QStringList& urls) = 0;
    /// The user asks to close a window. The window stays; the delegate hides it.
    virtual void windowShouldClose(AppWindow& window) = 0;
    virtual void windowDidBecomeKey(AppWindow& window) = 0;
    virtual void applicationWillTerminate() = 0;
};

/// The application object: its windows, its presence in the Dock or the taskbar, its end. Main thread only.
class AppShell
{
public:
    virtual ~AppShell() = default;
    /// Null takes the delegate back. Not owned.
    virtual void setDelegate(AppShellDelegate* delegate) = 0;
    /// Whether one of the program's windows has the keyboard.
    [[nodiscard]] virtual bool isActive() const = 0;
    /// Called each time the program becomes the active one, after the delegate. Handlers stay for the life of the
    /// shell.
    virtual void observeDidBecomeActive(std::function<void()> handler) = 0;
    [[nodiscard]] virtual ActivationPolicy activationPolicy() const = 0;
    virtual void setActivationPolicy(ActivationPolicy policy) = 0;
    /// Brings the program to the front with all its windows.
    virtual void activateAllWindows() = 0;
    virtual void activateIgnoringOtherApps() = 0;
    /// The program's windows that exist now; a window that has not been made yet is not among them.
    [[nodiscard]] virtual std::vector<AppWindow*> windows() = 0;
    /// The window of the program's own that has the keyboard; null if none of them has it.
    [[nodiscard]] virtual AppWindow* keyWindow() = 0;
    /// From now on a key that nobody takes makes no alert sound in the program's windows. Once is enough.
    virtual void silenceUnhandledKeys() = 0;
    /// From now on a request to minimise a window goes straight to it. Once is enough.
    virtual void letMinimizeRequestsThrough() = 0;
    /// Ends the program in an orderly way; the delegate hears `applicationWillTerminate`.
    virtual void terminate() = 0;
};

} // namespace tarvin
