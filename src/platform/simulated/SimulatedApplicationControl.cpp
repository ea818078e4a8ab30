#include "platform/simulated/SimulatedApplicationControl.h"

#include "platform/simulated/SimulatedFiles.h"
#include "platform/simulated/SimulatedScheduler.h"
#include "platform/simulated/SimulatedWorkspace.h"

#include <algorithm>

namespace tarvin::simulated {

SimulatedApplicationControl::SimulatedApplicationControl(
    EffectLog& log, SimulatedScheduler& scheduler, SimulatedWorkspace& workspace, const SimulatedFiles& files)
    : m_log(log)
    , m_scheduler(scheduler)
    , m_workspace(workspace)
    , m_files(files)
{ }

std::optional<QString> SimulatedApplicationControl::pathOfApplication(const QString& bundleIdentifier) const
{
    m_log.expectMainThread("ApplicationControl::pathOfApplication");
    const auto found = std::ranges::find_if(m_installed, [&](const InstalledApplication& application) {
        return application.bundleIdentifiers.contains(bundleIdentifier);
    });
    return found == m_installed.end() ? std::nullopt : std::optional(found->path);
}

bool SimulatedApplicationControl::exists(const QString& path) const
{
    m_log.expectMainThread("ApplicationControl::exists");
    return std::ranges::find(m_installed, path, &InstalledApplication::path) != m_installed.end()
        || m_files.exists(path);
}

void SimulatedApplicationControl::openApplication(const QString& path)
{
    m_log.expectMainThread("ApplicationControl::openApplication");
    m_log.record(ApplicationOpened{path});
    startOrActivate(path);
}

void SimulatedApplicationControl::openPath(const QString& path)
{
    m_log.expectMainThread("ApplicationControl::openPath");
    m_log.record(PathOpened{path});
    startOrActivate(path);
}

std::optional<QString> SimulatedApplicationControl::executableOf(ProcessIdentifier process) const
{
    const auto found = m_executables.find(process);
    const bool isKnown = found != m_executables.end() && m_workspace.applicationWithProcess(process);
    return isKnown ? std::optional(found->second) : std::nullopt;
}

bool SimulatedApplicationControl::forceTerminate(ProcessIdentifier process)
{
    m_log.expectMainThread("ApplicationControl::forceTerminate");
    const auto found = m_answers.find(process);
    const ForceQuitAnswer answer = found == m_answers.end() ? ForceQuitAnswer::endsLater : found->second;
    m_log.record(ApplicationForceQuit{process, nameOf(process), answer != ForceQuitAnswer::refuses});
    switch (answer) {
    case ForceQuitAnswer::endsLater:
        m_scheduler.post([this, process] { end(process); });
        return true;
    case ForceQuitAnswer::endsAtOnce:
        end(process);
        return true;
    case ForceQuitAnswer::refuses:
        return false;
    }
    return false;
}

bool SimulatedApplicationControl::isTerminated(ProcessIdentifier process) const
{
    const std::optional<RunningApplication> application = m_workspace.applicationWithProcess(process);
    return !application || application->isTerminated;
}

void SimulatedApplicationControl::kill(ProcessIdentifier process)
{
    m_log.expectMainThread("ApplicationControl::kill");
    m_log.record(ProcessKilled{process, nameOf(process)});
    m_scheduler.post([this, process] { end(process); });
}

void SimulatedApplicationControl::install(const InstalledApplication& application)
{
    std::erase_if(
        m_installed, [&](const InstalledApplication& installed) { return installed.path == application.path; });
    m_installed.push_back(application);
}

void SimulatedApplicationControl::setExecutable(ProcessIdentifier process, const std::optional<QString>& path)
{
    if (path)
        m_executables[process] = *path;
    else
        m_executables.erase(process);
}

QString SimulatedApplicationControl::nameOf(ProcessIdentifier process) const
{
    const std::optional<RunningApplication> application = m_workspace.applicationWithProcess(process);
    return application ? application->localizedName : QString();
}

void SimulatedApplicationControl::startOrActivate(const QString& path)
{
    const auto installed = std::ranges::find(m_installed, path, &InstalledApplication::path);
    if (installed == m_installed.end())
        return;
    m_scheduler.post([this, application = *installed] {
        const std::vector<RunningApplication> running = m_workspace.runningApplications();
        const auto found = std::ranges::find(running, application.name, &RunningApplication::localizedName);
        if (found != running.end()) {
            m_workspace.setFrontmostProcess(found->processIdentifier);
            return;
        }
        m_workspace.setFrontmost({.processIdentifier = m_workspace.nextProcess(),
            .bundleIdentifiers = application.bundleIdentifiers,
            .localizedName = application.name});
    });
}

void SimulatedApplicationControl::end(ProcessIdentifier process)
{
    m_workspace.removeApplication(process);
    m_answers.erase(process);
    m_executables.erase(process);
}

} // namespace tarvin::simulated
