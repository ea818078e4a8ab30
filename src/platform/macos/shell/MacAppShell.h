#pragma once

#include "platform/macos/shell/MacAppWindow.h"
#include "platform/ports/Scheduler.h"

#include <memory>
#include <vector>

namespace tarvin::macos {

/// The application object of the system and that of the toolkit as one. Made after the toolkit's, before its event loop
/// runs. Main thread only.
class MacAppShell final : public QObject, public AppShell
{
public:
    explicit MacAppShell(Scheduler& scheduler);
    ~MacAppShell() override;
    Q_DISABLE_COPY_MOVE(MacAppShell)

    void setDelegate(AppShellDelegate* delegate) override;
    [[nodiscard]] bool isActive() const override;
    void observeDidBecomeActive(std::function<void()> handler) override;
    [[nodiscard]] ActivationPolicy activationPolicy() const override;
    void setActivationPolicy(ActivationPolicy policy) override;
    void activateAllWindows() override;
    void activateIgnoringOtherApps() override;
    [[nodiscard]] std::vector<AppWindow*> windows() override;
    [[nodiscard]] AppWindow* keyWindow() override;
    void silenceUnhandledKeys() override;
    void letMinimizeRequestsThrough() override;
    void terminate() override;

    /// Makes a top-level widget a window of the program. The widget outlives the shell.
    /// @param onCloseRequested absent: the delegate is told, as for every ordinary window
    MacAppWindow& addWindow(QWidget& widget, AppWindowKind kind, std::function<void()> onCloseRequested = {});

    /// Called once, when the system has finished launching the program, and within the system's own call: only then can
    /// the event be asked for that opened the program.
    void whenLaunched(std::function<void()> handler);

    /// Gives the delegate addresses to open, as the system does with those of the program's scheme.
    void openUrls(const QStringList& urls);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Native;

    void reopen();
    void deliver(std::function<void(AppShellDelegate&)> message);
    void deliverPending();
    void becameActive();
    void tellDelegateOfTheEnd();

    Scheduler& m_scheduler;
    AppShellDelegate* m_delegate = nullptr;
    std::vector<std::function<void(AppShellDelegate&)>> m_pendingMessages; ///< what came before there was a delegate
    std::vector<std::function<void()>> m_becameActiveHandlers;
    std::vector<std::unique_ptr<MacAppWindow>> m_windows;
    bool m_hasEnded = false;
    std::unique_ptr<Native> m_native; ///< the last member: what it observes calls the others
};

} // namespace tarvin::macos
