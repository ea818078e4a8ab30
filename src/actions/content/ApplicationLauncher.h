#pragma once

#include <QString>

#include <optional>

namespace tarvin {

class ApplicationControl;
class TriggerNotice;
class UserEnvironment;
class Workspace;
struct ConfiguredAction;

/// Opens applications. The caller has seen to test-safe mode. Main thread only.
class ApplicationLauncher
{
public:
    ApplicationLauncher(
        ApplicationControl& applications, Workspace& workspace, const UserEnvironment& user, TriggerNotice& notice);

    /// Opens the application with the identifier or, if it is not installed, whatever stands at the path.
    void launchApp(const QString& bundleId, const QString& path);
    /// Brings the record's application forward or launches it, found by identifier, path and name in this order. Shows
    /// the folder of applications if nothing was found.
    void executeOpenApplication(const ConfiguredAction& config);

private:
    [[nodiscard]] bool activateRunning(const QString& bundleId);
    [[nodiscard]] std::optional<QString> pathFor(const ConfiguredAction& config) const;
    [[nodiscard]] std::optional<QString> pathByName(const QString& name) const;

    ApplicationControl& m_applications;
    Workspace& m_workspace;
    const UserEnvironment& m_user;
    TriggerNotice& m_notice;
};

} // namespace tarvin
