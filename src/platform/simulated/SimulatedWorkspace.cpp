#include "platform/simulated/SimulatedWorkspace.h"

#include "platform/simulated/SimulatedScheduler.h"

#include <algorithm>

namespace tarvin::simulated {

namespace {

/// Where the processes of applications begin that are given no number.
constexpr ProcessIdentifier firstProcess = 501;

} // namespace

class SimulatedWorkspace::Observer final : public WorkspaceObserver
{
public:
    Observer(SimulatedWorkspace& owner, ActivationHandler activationHandler)
        : handler(std::move(activationHandler))
        , m_owner(owner)
    {
        m_owner.m_observers.push_back(this);
    }
    ~Observer() override { std::erase(m_owner.m_observers, this); }

    ActivationHandler handler;

private:
    SimulatedWorkspace& m_owner;
};

SimulatedWorkspace::SimulatedWorkspace(EffectLog& log, SimulatedScheduler& scheduler)
    : m_log(log)
    , m_scheduler(scheduler)
{
    m_applications.push_back({.processIdentifier = ownProcess,
        .bundleIdentifiers = {QStringLiteral("com.velmor.Tarvin")},
        .localizedName = QStringLiteral("Tarvin"),
        .activationPolicy = ActivationPolicy::accessory});
}

std::optional<RunningApplication> SimulatedWorkspace::frontmostApplication() const
{
    return m_frontmost ? applicationWithProcess(*m_frontmost) : std::nullopt;
}

std::optional<RunningApplication> SimulatedWorkspace::applicationWithProcess(ProcessIdentifier process) const
{
    const auto found = std::ranges::find(m_applications, process, &RunningApplication::processIdentifier);
    return found == m_applications.end() ? std::nullopt : std::optional(*found);
}

void SimulatedWorkspace::activate(ProcessIdentifier process)
{
    m_log.expectMainThread("Workspace::activate");
    const std::optional<RunningApplication> application = applicationWithProcess(process);
    m_log.record(ApplicationActivated{process, application ? application->localizedName : QString()});
    m_scheduler.post([this, process] {
        if (applicationWithProcess(process))
            setFrontmostProcess(process);
    });
}

void SimulatedWorkspace::openUrl(const QString& url)
{
    m_log.expectMainThread("Workspace::openUrl");
    m_log.record(UrlOpened{url});
}

std::unique_ptr<WorkspaceObserver> SimulatedWorkspace::observeActivation(ActivationHandler handler)
{
    m_log.expectMainThread("Workspace::observeActivation");
    return std::make_unique<Observer>(*this, std::move(handler));
}

void SimulatedWorkspace::setApplication(const RunningApplication& application)
{
    const auto found =
        std::ranges::find(m_applications, application.processIdentifier, &RunningApplication::processIdentifier);
    if (found == m_applications.end())
        m_applications.push_back(application);
    else
        *found = application;
}

void SimulatedWorkspace::removeApplication(ProcessIdentifier process)
{
    std::erase_if(m_applications,
        [process](const RunningApplication& application) { return application.processIdentifier == process; });
    if (m_frontmost == process)
        setFrontmostSilently(std::nullopt);
}

ProcessIdentifier SimulatedWorkspace::nextProcess() const
{
    ProcessIdentifier next = firstProcess;
    for (const RunningApplication& application : m_applications)
        next = std::max(next, application.processIdentifier + 1);
    return next;
}

void SimulatedWorkspace::setFrontmost(const RunningApplication& application)
{
    setApplication(application);
    setFrontmostProcess(application.processIdentifier);
}

void SimulatedWorkspace::setFrontmostProcess(std::optional<ProcessIdentifier> process)
{
    if (m_frontmost == process && process)
        return;
    setFrontmostSilently(process);
    announceActivation(frontmostApplication());
}

void SimulatedWorkspace::setFrontmostSilently(std::optional<ProcessIdentifier> process)
{
    if (m_frontmost == process)
        return;
    m_frontmost = process;
    const std::optional<RunningApplication> front = frontmostApplication();
    m_log.record(FrontApplicationChanged{
        front ? std::optional(front->localizedName) : std::nullopt, front ? front->bundleIdentifier() : std::nullopt});
    if (m_frontmostListener)
        m_frontmostListener();
}

void SimulatedWorkspace::announceActivation(const std::optional<RunningApplication>& application)
{
    // A handler may add and remove observers, its own included.
    const std::vector<Observer*> observers = m_observers;
    for (Observer* observer : observers) {
        if (std::ranges::find(m_observers, observer) != m_observers.end()) {
            const ActivationHandler handler = observer->handler;
            handler(application);
        }
    }
}

} // namespace tarvin::simulated
