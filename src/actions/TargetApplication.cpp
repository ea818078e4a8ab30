#include "actions/TargetApplication.h"

#include "actions/OwnApplication.h"
#include "platform/ports/Scheduler.h"

#include <algorithm>
#include <utility>

namespace tarvin {

namespace {

/// Palettes, tooltips and status windows are smaller than this in at least one direction.
constexpr double largestSmallSide = 150.0;

bool isLargeOrdinaryWindow(const OnScreenWindow& window)
{
    return window.layer == 0 && window.size.width > largestSmallSide && window.size.height > largestSmallSide;
}

} // namespace

TargetApplication::TargetApplication(Workspace& workspace, const ProcessInfo& processInfo, Scheduler& scheduler)
    : m_workspace(workspace)
    , m_processInfo(processInfo)
    , m_scheduler(scheduler)
{ }

void TargetApplication::prepareTargetAppIfTarvinActive(std::function<void()> body)
{
    const std::optional<QString> myBundleId = m_processInfo.bundleIdentifier();
    if (identifierOf(m_workspace.frontmostApplication()) != myBundleId) {
        body();
        return;
    }
    const std::optional<RunningApplication> target = resolveTargetApplication(myBundleId);
    if (!target || target->bundleIdentifier() == myBundleId)
        return;
    m_workspace.activate(target->processIdentifier);
    m_scheduler.postAfter(activationDelay, std::move(body));
}

std::optional<RunningApplication> TargetApplication::resolveTargetApplication(
    const std::optional<QString>& myBundleId) const
{
    std::optional<RunningApplication> front = m_workspace.frontmostApplication();
    if (!myBundleId || !front || front->bundleIdentifier() != myBundleId)
        return front;
    if (auto owner = ownerOfFrontmostLargeWindow(*myBundleId))
        return owner;
    if (auto other = firstOtherApplication(*myBundleId))
        return other;
    return front;
}

std::optional<RunningApplication> TargetApplication::ownerOfFrontmostLargeWindow(const QString& myBundleId) const
{
    for (const OnScreenWindow& window : m_workspace.onScreenWindows()) {
        if (!isLargeOrdinaryWindow(window))
            continue;
        auto owner = m_workspace.applicationWithProcess(window.owner);
        if (owner && owner->bundleIdentifier() != myBundleId && owner->activationPolicy == ActivationPolicy::regular)
            return owner;
    }
    return std::nullopt;
}

std::optional<RunningApplication> TargetApplication::firstOtherApplication(const QString& myBundleId) const
{
    const std::vector<RunningApplication> running = m_workspace.runningApplications();
    const auto found = std::ranges::find_if(running, [&](const RunningApplication& application) {
        return application.activationPolicy == ActivationPolicy::regular && application.bundleIdentifier() != myBundleId
            && !application.isTerminated && !application.isHidden;
    });
    return found == running.end() ? std::nullopt : std::optional(*found);
}

} // namespace tarvin
