#pragma once

#include "platform/linux/services/UserNotice.h"
#include "platform/ports/ApplicationControl.h"
#include "platform/ports/Scheduler.h"

namespace tarvin::desktop {
class InstalledApplications;
}

namespace tarvin::applications {

class ApplicationLauncher;

/// The applications of a Linux desktop. The path of an application is that of its desktop entry.
///
/// Some paths are those of another system and have a meaning here: the folder of its applications shows the installed
/// ones, its overview is silent, since the keystroke that goes with it shows the overview already, and any other of its
/// applications is told to be missing.
class LinuxApplicationControl : public ApplicationControl
{
public:
    LinuxApplicationControl(const desktop::InstalledApplications& applications, Workspace& workspace,
        ApplicationLauncher& launcher, Scheduler& scheduler, services::TellUser tellUser);

    [[nodiscard]] std::optional<QString> pathOfApplication(const QString& bundleIdentifier) const override;
    [[nodiscard]] bool exists(const QString& path) const override;
    void openApplication(const QString& path) override;
    void openPath(const QString& path) override;
    [[nodiscard]] std::optional<QString> executableOf(ProcessIdentifier process) const override;
    bool forceTerminate(ProcessIdentifier process) override;
    [[nodiscard]] bool isTerminated(ProcessIdentifier process) const override;
    void kill(ProcessIdentifier process) override;

private:
    void openNow(const QString& path);
    void openEntry(const QString& path);
    void openByHandler(const QString& path);

    const desktop::InstalledApplications& m_applications;
    Workspace& m_workspace;
    ApplicationLauncher& m_launcher;
    Scheduler& m_scheduler;
    services::TellUser m_tellUser;
};

} // namespace tarvin::applications
