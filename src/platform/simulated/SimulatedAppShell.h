#pragma once

#include "platform/ports/AppShell.h"
#include "platform/simulated/EffectLog.h"
#include "platform/simulated/SimulatedWindow.h"

#include <functional>
#include <memory>
#include <vector>

namespace tarvin::simulated {

class SimulatedScheduler;
class SimulatedWorkspace;

/// The application object. The program is active exactly while the workspace has it in front; what the system tells the
/// delegate in answer to a call of the program comes on a later turn of the main queue.
class SimulatedAppShell final : public AppShell
{
public:
    SimulatedAppShell(EffectLog& log, SimulatedScheduler& scheduler, SimulatedWorkspace& workspace);

    void setDelegate(AppShellDelegate* delegate) override { m_delegate = delegate; }
    [[nodiscard]] bool isActive() const override;
    void observeDidBecomeActive(std::function<void()> handler) override;
    [[nodiscard]] ActivationPolicy activationPolicy() const override { return m_policy; }
    void setActivationPolicy(ActivationPolicy policy) override;
    void activateAllWindows() override;
    void activateIgnoringOtherApps() override;
    [[nodiscard]] std::vector<AppWindow*> windows() override;
    /// The window that was made key last, while the program is in front and the window visible.
    [[nodiscard]] AppWindow* keyWindow() override;
    void silenceUnhandledKeys() override;
    void letMinimizeRequestsThrough() override;
    void terminate() override;

    /// Makes a hidden window.
    SimulatedWindow& addWindow(const QString& title, WindowKind kind = WindowKind::ordinary);
    /// The program becomes the active one, at once; the delegate hears of it, then the observers.
    void becomeActive();
    /// The program is started again, or its icon clicked.
    void reopen();
    void openUrls(const QStringList& urls);
    /// The user asks to close the window.
    void requestClose(SimulatedWindow& window);
    /// The same by title; false if the program has no such window.
    bool requestClose(const QString& title);
    void setPolicySilently(ActivationPolicy policy) { m_policy = policy; }
    [[nodiscard]] AppShellDelegate* delegate() const { return m_delegate; }
    [[nodiscard]] bool isTerminated() const { return m_terminated; }

private:
    void frontmostChanged();
    void requestActivation(OwnActivation way);
    void windowBecameKey(SimulatedWindow& window);

    EffectLog& m_log;
    SimulatedScheduler& m_scheduler;
    SimulatedWorkspace& m_workspace;
    AppShellDelegate* m_delegate = nullptr;
    std::vector<std::function<void()>> m_activeObservers;
    std::vector<std::unique_ptr<SimulatedWindow>> m_windows;
    SimulatedWindow* m_keyWindow = nullptr;
    ActivationPolicy m_policy = ActivationPolicy::accessory;
    bool m_wasActive = false;
    bool m_terminated = false;
};

} // namespace tarvin::simulated
