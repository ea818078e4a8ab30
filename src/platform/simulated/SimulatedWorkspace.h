#pragma once

#include "platform/ports/Workspace.h"
#include "platform/simulated/EffectLog.h"

#include <functional>
#include <vector>

namespace tarvin::simulated {

class SimulatedScheduler;

/// The applications of the simulated session: the program itself and those that a test adds.
class SimulatedWorkspace final : public Workspace
{
public:
    /// The program's own entry among the running applications.
    static constexpr ProcessIdentifier ownProcess = 100;

    SimulatedWorkspace(EffectLog& log, SimulatedScheduler& scheduler);

    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override;
    [[nodiscard]] std::vector<RunningApplication> runningApplications() const override { return m_applications; }
    [[nodiscard]] std::optional<RunningApplication> applicationWithProcess(ProcessIdentifier process) const override;
    [[nodiscard]] std::vector<OnScreenWindow> onScreenWindows() const override { return m_windows; }
    /// The application comes forward on a later turn of the main queue.
    void activate(ProcessIdentifier process) override;
    void openUrl(const QString& url) override;
    [[nodiscard]] std::unique_ptr<WorkspaceObserver> observeActivation(ActivationHandler handler) override;

    /// Adds the application, or replaces the one with its process identifier.
    void setApplication(const RunningApplication& application);
    void removeApplication(ProcessIdentifier process);
    /// Brings the application to the front, adding it first if it is new, and tells the observers.
    void setFrontmost(const RunningApplication& application);
    /// The same with a running application; nothing leaves no application in front.
    void setFrontmostProcess(std::optional<ProcessIdentifier> process);
    /// Changes the front application without telling anyone.
    void setFrontmostSilently(std::optional<ProcessIdentifier> process);
    /// Calls the observers as the platform does, with nothing where it cannot tell which application it was.
    void announceActivation(const std::optional<RunningApplication>& application);
    void setOnScreenWindows(std::vector<OnScreenWindow> windows) { m_windows = std::move(windows); }
    /// Told of each change of the front application, before the observers; for the simulated shell.
    void setFrontmostListener(std::function<void()> listener) { m_frontmostListener = std::move(listener); }
    /// A process identifier that no application has.
    [[nodiscard]] ProcessIdentifier nextProcess() const;
    [[nodiscard]] bool isOwnProcessFrontmost() const { return m_frontmost == ownProcess; }

private:
    class Observer;

    EffectLog& m_log;
    SimulatedScheduler& m_scheduler;
    std::vector<RunningApplication> m_applications;
    std::optional<ProcessIdentifier> m_frontmost;
    std::vector<OnScreenWindow> m_windows;
    std::vector<Observer*> m_observers;
    std::function<void()> m_frontmostListener;
};

} // namespace tarvin::simulated
