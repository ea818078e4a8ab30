#pragma once

#include "platform/ports/Workspace.h"

#include <QString>

#include <chrono>
#include <functional>
#include <optional>

namespace tarvin {

class ProcessInfo;
class Scheduler;

/// Finds the application that the user was working in when the program's own window is in front, and brings it
/// forward. Main thread only.
class TargetApplication
{
public:
    /// What an activated application needs before it takes keystrokes.
    static constexpr std::chrono::milliseconds activationDelay{80};

    TargetApplication(Workspace& workspace, const ProcessInfo& processInfo, Scheduler& scheduler);

    /// Runs the body at most once: at once unless the program itself is in front, otherwise after the target has come
    /// forward. With no other application to act on the body is dropped.
    void prepareTargetAppIfTarvinActive(std::function<void()> body);

    /// The application in front or, if that is the program itself, the owner of the frontmost large ordinary window
    /// and, failing that, the first ordinary application that is not hidden. The program itself when there is no other.
    /// @param myBundleId the program's own identifier
    [[nodiscard]] std::optional<RunningApplication> resolveTargetApplication(
        const std::optional<QString>& myBundleId) const;

private:
    [[nodiscard]] std::optional<RunningApplication> ownerOfFrontmostLargeWindow(const QString& myBundleId) const;
    [[nodiscard]] std::optional<RunningApplication> firstOtherApplication(const QString& myBundleId) const;

    Workspace& m_workspace;
    const ProcessInfo& m_processInfo;
    Scheduler& m_scheduler;
};

} // namespace tarvin
