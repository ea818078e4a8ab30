#pragma once

#include "platform/ports/Workspace.h"

namespace tarvin::macos {

/// The applications of the session, as the system's workspace knows them. Main thread only.
class MacWorkspace final : public Workspace
{
public:
    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override;
    [[nodiscard]] std::vector<RunningApplication> runningApplications() const override;
    [[nodiscard]] std::optional<RunningApplication> applicationWithProcess(ProcessIdentifier process) const override;
    [[nodiscard]] std::vector<OnScreenWindow> onScreenWindows() const override;
    void activate(ProcessIdentifier process) override;
    void openUrl(const QString& url) override;
    /// The handler runs on the main queue; it may destroy its own observer.
    [[nodiscard]] std::unique_ptr<WorkspaceObserver> observeActivation(ActivationHandler handler) override;
};

} // namespace tarvin::macos
