// The part of the stage where other applications play.

#include "app/simulate/FieldTypes.h"
#include "app/simulate/Stage.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <algorithm>

namespace tarvin::simulate {

Problem Stage::apply(const RunApplication& application)
{
    const ProcessIdentifier process = processFor(application);
    if (process == simulated::SimulatedWorkspace::ownProcess)
        return u"process %1 is the program itself; expected another"_qs.arg(process);
    m_platform.workspace().setApplication({.processIdentifier = process,
        .bundleIdentifiers = application.bundleIdentifiers,
        .localizedName = application.name,
        .activationPolicy = application.policy,
        .isHidden = application.isHidden,
        .isTerminated = application.isTerminated});
    if (application.executable)
        m_platform.applicationControl().setExecutable(process, *application.executable);
    if (application.forceQuit)
        m_platform.applicationControl().setForceQuitAnswer(process, *application.forceQuit);
    if (application.inFront)
        m_platform.workspace().setFrontmostProcess(process);
    return std::nullopt;
}

Problem Stage::apply(const InstallApplication& installation)
{
    m_platform.applicationControl().install(installation.application);
    return std::nullopt;
}

Problem Stage::apply(const QuitApplication& quit)
{
    const std::optional<RunningApplication> application = findApplication(quit.application);
    if (!application)
        return noSuchApplication(quit.application);
    if (application->processIdentifier == simulated::SimulatedWorkspace::ownProcess)
        return u"the program itself cannot be quit like that; expected \"terminate\""_qs;
    m_platform.workspace().removeApplication(application->processIdentifier);
    return std::nullopt;
}

Problem Stage::apply(const BringToFront& front)
{
    std::optional<ProcessIdentifier> process;
    if (front.application) {
        const std::optional<RunningApplication> application = findApplication(*front.application);
        if (!application)
            return noSuchApplication(*front.application);
        process = application->processIdentifier;
    }
    switch (front.announcement) {
    case FrontAnnouncement::named:
        m_platform.workspace().setFrontmostProcess(process);
        break;
    case FrontAnnouncement::unnamed:
        m_platform.workspace().setFrontmostSilently(process);
        m_platform.workspace().announceActivation(std::nullopt);
        break;
    case FrontAnnouncement::never:
        m_platform.workspace().setFrontmostSilently(process);
        break;
    }
    return std::nullopt;
}

std::optional<RunningApplication> Stage::findApplication(const QString& application) const
{
    const std::vector<RunningApplication> running = m_platform.workspace().runningApplications();
    auto found = std::ranges::find_if(running,
        [&application](const RunningApplication& candidate) { return candidate.bundleIdentifier() == application; });
    if (found == running.end())
        found = std::ranges::find(running, application, &RunningApplication::localizedName);
    return found == running.end() ? std::nullopt : std::optional(*found);
}

QString Stage::noSuchApplication(const QString& application) const
{
    QStringList known;
    for (const RunningApplication& candidate : m_platform.workspace().runningApplications())
        known.append(candidate.bundleIdentifier().value_or(candidate.localizedName));
    return u"no running application has the identifier or the name \"%1\"; expected %2, or an \"application\" before"_qs
        .arg(application, field::alternatives(known));
}

ProcessIdentifier Stage::processFor(const RunApplication& application) const
{
    if (application.process)
        return *application.process;
    for (const RunningApplication& candidate : m_platform.workspace().runningApplications()) {
        if (candidate.localizedName == application.name)
            return candidate.processIdentifier;
    }
    return m_platform.workspace().nextProcess();
}

} // namespace tarvin::simulate
