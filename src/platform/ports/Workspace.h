#pragma once

#include "platform/ports/Geometry.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tarvin {

using ProcessIdentifier = std::int32_t;

/// How an application presents itself. The numbers are those that log lines show.
enum class ActivationPolicy { regular = 0, accessory = 1, prohibited = 2 };

/// One running application, as it was when asked.
struct RunningApplication
{
    ProcessIdentifier processIdentifier = 0;
    /// Its own identifier first, then the well-known identifiers of the roles that it fills (the default web browser
    /// also answers to "com.apple.Safari"). Empty for an application without identifier. Whatever compares an
    /// application with a stored identifier tries them in this order.
    QStringList bundleIdentifiers;
    QString localizedName;
    ActivationPolicy activationPolicy = ActivationPolicy::regular;
    bool isHidden = false;
    bool isTerminated = false;

    /// Its own identifier, absent if it has none.
    [[nodiscard]] std::optional<QString> bundleIdentifier() const
    {
        return bundleIdentifiers.isEmpty() ? std::nullopt : std::optional(bundleIdentifiers.first());
    }
};

/// One window on the screens.
struct OnScreenWindow
{
    ProcessIdentifier owner = 0;
    std::optional<int> layer; ///< 0 for ordinary windows
    Size size;
};

/// An observer at work; destroying it ends the observation.
class WorkspaceObserver
{
public:
    virtual ~WorkspaceObserver() = default;
};

/// The applications of the session. Main thread only.
class Workspace
{
public:
    /// Called with the application that came to the front, or nothing if the platform could not tell which.
    using ActivationHandler = std::function<void(std::optional<RunningApplication>)>;

    virtual ~Workspace() = default;
    [[nodiscard]] virtual std::optional<RunningApplication> frontmostApplication() const = 0;
    [[nodiscard]] virtual std::vector<RunningApplication> runningApplications() const = 0;
    [[nodiscard]] virtual std::optional<RunningApplication> applicationWithProcess(ProcessIdentifier process) const = 0;
    /// Front to back, without desktop elements; empty where the list cannot be read.
    [[nodiscard]] virtual std::vector<OnScreenWindow> onScreenWindows() const = 0;
    /// Brings an application's front window forward. A process that has gone is ignored.
    virtual void activate(ProcessIdentifier process) = 0;
    /// Opens an address with whatever handles its scheme; returns at once, failures are not reported.
    virtual void openUrl(const QString& url) = 0;
    [[nodiscard]] virtual std::unique_ptr<WorkspaceObserver> observeActivation(ActivationHandler handler) = 0;
};

} // namespace tarvin
