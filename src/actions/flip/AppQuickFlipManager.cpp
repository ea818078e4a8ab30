#include "actions/flip/AppQuickFlipManager.h"

#include "interception/TriggerNotice.h"
#include "model/OptionalText.h"
#include "platform/ports/ApplicationControl.h"
#include "platform/ports/ProcessInfo.h"
#include "platform/ports/Scheduler.h"

#include <algorithm>

namespace tarvin {

namespace {

QString nameOr(const RunningApplication& application, const QString& otherwise)
{
    return application.localizedName.isEmpty() ? otherwise : application.localizedName;
}

bool isSameProcess(const RunningApplication& application, const std::optional<RunningApplication>& other)
{
    return other && application.processIdentifier == other->processIdentifier;
}

} // namespace

AppQuickFlipManager::AppQuickFlipManager(const Collaborators& collaborators)
    : m_with(collaborators)
    , m_currentApp(collaborators.workspace.frontmostApplication())
{
    startTracking();
}

AppQuickFlipManager::~AppQuickFlipManager() = default;

void AppQuickFlipManager::startTracking()
{
    m_observer = m_with.workspace.observeActivation([this](const std::optional<RunningApplication>& application) {
        if (!application)
            return;
        m_with.scheduler.post([this, life = std::weak_ptr(m_life), application = *application] {
            if (!life.expired())
                handleAppActivation(application);
        });
    });
}

void AppQuickFlipManager::handleAppActivation(const RunningApplication& application)
{
    if (isOwn(application) || application.activationPolicy != ActivationPolicy::regular)
        return;
    // The program itself stands here only if it was in front when this object was made.
    if (m_currentApp && !isSameProcess(application, m_currentApp) && !isOwn(*m_currentApp))
        m_previousApp = m_currentApp;
    m_currentApp = application;
    Q_EMIT pairChanged();
}

void AppQuickFlipManager::quickFlip(const std::optional<QString>& companionBundleId)
{
    const std::optional<RunningApplication> front = m_with.workspace.frontmostApplication();
    if (hasText(companionBundleId) && flipWithCompanion(front, *companionBundleId))
        return;
    if (!flipToPrevious(front))
        flipToAnyOther(front);
}

bool AppQuickFlipManager::flipWithCompanion(
    const std::optional<RunningApplication>& front, const QString& companionBundleId)
{
    if (front && front->bundleIdentifiers.contains(companionBundleId)) {
        const std::optional<RunningApplication> previous = livePrevious();
        if (previous)
            activate(*previous, u"Flipped to "_qs + nameOr(*previous, u"Previous App"_qs));
        return previous.has_value();
    }
    const std::vector<RunningApplication> running = m_with.workspace.runningApplications();
    const auto found = std::ranges::find_if(running, [&](const RunningApplication& application) {
        return application.bundleIdentifiers.contains(companionBundleId);
    });
    if (found != running.end() && !found->isTerminated) {
        activate(*found, u"Flipped to "_qs + nameOr(*found, companionBundleId));
        return true;
    }
    const std::optional<QString> path = m_with.applications.pathOfApplication(companionBundleId);
    if (path) {
        m_with.applications.openApplication(*path);
        m_with.notice.recordTriggerDirectly(u"Launched Companion App"_qs);
    }
    return path.has_value();
}

bool AppQuickFlipManager::flipToPrevious(const std::optional<RunningApplication>& front)
{
    const std::optional<RunningApplication> previous = livePrevious();
    if (!previous || isSameProcess(*previous, front))
        return false;
    activate(*previous, u"Quick-Flipped to "_qs + nameOr(*previous, u"App"_qs));
    return true;
}

void AppQuickFlipManager::flipToAnyOther(const std::optional<RunningApplication>& front)
{
    const std::vector<RunningApplication> running = m_with.workspace.runningApplications();
    const auto other = std::ranges::find_if(running, [&](const RunningApplication& application) {
        return application.activationPolicy == ActivationPolicy::regular && !isSameProcess(application, front)
            && !isOwn(application) && !application.isTerminated;
    });
    if (other != running.end())
        activate(*other, u"Quick-Flipped to "_qs + nameOr(*other, u"App"_qs));
}

void AppQuickFlipManager::activate(const RunningApplication& application, const QString& notice)
{
    m_with.workspace.activate(application.processIdentifier);
    m_with.notice.recordTriggerDirectly(notice);
}

bool AppQuickFlipManager::isOwn(const RunningApplication& application) const
{
    // Two that have no identifier count as equal.
    return application.bundleIdentifier() == m_with.processInfo.bundleIdentifier();
}

std::optional<RunningApplication> AppQuickFlipManager::livePrevious() const
{
    if (!m_previousApp)
        return std::nullopt;
    auto now = m_with.workspace.applicationWithProcess(m_previousApp->processIdentifier);
    return now && !now->isTerminated ? now : std::nullopt;
}

} // namespace tarvin
