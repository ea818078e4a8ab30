#include "actions/content/ApplicationLauncher.h"

#include "interception/TriggerNotice.h"
#include "model/ConfiguredAction.h"
#include "model/OptionalText.h"
#include "platform/ports/ApplicationControl.h"
#include "platform/ports/UserEnvironment.h"

#include <algorithm>
#include <array>

namespace tarvin {

namespace {

constexpr QStringView applicationsFolder = u"/Applications";

} // namespace

ApplicationLauncher::ApplicationLauncher(
    ApplicationControl& applications, Workspace& workspace, const UserEnvironment& user, TriggerNotice& notice)
    : m_applications(applications)
    , m_workspace(workspace)
    , m_user(user)
    , m_notice(notice)
{ }

void ApplicationLauncher::launchApp(const QString& bundleId, const QString& path)
{
    m_applications.openPath(m_applications.pathOfApplication(bundleId).value_or(path));
}

void ApplicationLauncher::executeOpenApplication(const ConfiguredAction& config)
{
    const QString opened = u"Opened "_qs + config.customAppName.value_or(u"App"_qs);
    if (hasText(config.customAppBundleId) && activateRunning(*config.customAppBundleId)) {
        m_notice.recordTriggerDirectly(opened);
        return;
    }
    if (const std::optional<QString> path = pathFor(config)) {
        m_applications.openApplication(*path);
        m_notice.recordTriggerDirectly(opened);
        return;
    }
    m_notice.recordTriggerDirectly(u"No App Configured"_qs);
    m_applications.openPath(applicationsFolder.toString());
}

bool ApplicationLauncher::activateRunning(const QString& bundleId)
{
    const std::vector<RunningApplication> running = m_workspace.runningApplications();
    const auto found = std::ranges::find_if(running, [&](const RunningApplication& application) {
        return application.bundleIdentifiers.contains(bundleId) && !application.isTerminated;
    });
    if (found == running.end())
        return false;
    m_workspace.activate(found->processIdentifier);
    return true;
}

std::optional<QString> ApplicationLauncher::pathFor(const ConfiguredAction& config) const
{
    if (hasText(config.customAppBundleId)) {
        if (auto path = m_applications.pathOfApplication(*config.customAppBundleId))
            return path;
    }
    if (hasText(config.customAppPath) && m_applications.exists(*config.customAppPath))
        return config.customAppPath;
    return hasText(config.customAppName) ? pathByName(*config.customAppName) : std::nullopt;
}

std::optional<QString> ApplicationLauncher::pathByName(const QString& name) const
{
    const std::array folders = {u"/Applications"_qs, u"/System/Applications"_qs, u"/System/Applications/Utilities"_qs,
        m_user.homeDirectory() + u"/Applications"_qs};
    for (const QString& folder : folders) {
        QString path = folder + u'/' + name + u".app"_qs;
        if (m_applications.exists(path))
            return path;
    }
    return std::nullopt;
}

} // namespace tarvin
