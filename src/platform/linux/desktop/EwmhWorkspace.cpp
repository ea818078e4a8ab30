#include "platform/linux/desktop/EwmhWorkspace.h"

#include "platform/linux/desktop/ApplicationId.h"
#include "platform/linux/desktop/Ewmh.h"
#include "platform/linux/desktop/ProcessFacts.h"
#include "platform/linux/desktop/UrlOpener.h"

#include <QCoreApplication>
#include <QUrl>

#include <algorithm>

namespace tarvin::desktop {

namespace {

class Observer : public QObject, public WorkspaceObserver
{ };

bool isSameApplication(const std::optional<RunningApplication>& a, const std::optional<RunningApplication>& b)
{
    if (a.has_value() != b.has_value())
        return false;
    return !a
        || (a->processIdentifier == b->processIdentifier && a->bundleIdentifiers == b->bundleIdentifiers
            && a->localizedName == b->localizedName);
}

} // namespace

EwmhWorkspace::EwmhWorkspace(XConnection& connection, InstalledApplications& applications, Scheduler& scheduler,
    OwnUrlHandler openOwnUrl, double pixelsPerPoint)
    : m_connection(connection)
    , m_applications(applications)
    , m_scheduler(scheduler)
    , m_openOwnUrl(std::move(openOwnUrl))
    , m_pixelsPerPoint(pixelsPerPoint)
    , m_focus(scheduler, [this](std::optional<FocusSettler::WindowId>) { frontWindowSettled(); })
{
    connect(&connection, &XConnection::eventArrived, this, &EwmhWorkspace::handleEvent);
    connect(&connection, &XConnection::connected, this, &EwmhWorkspace::startWatching);
    connect(&connection, &XConnection::lost, this, &EwmhWorkspace::stopWatching);
    connect(&applications, &InstalledApplications::changed, this, &EwmhWorkspace::identifyFrontApplication);
    startWatching();
}

std::optional<RunningApplication> EwmhWorkspace::frontmostApplication() const
{
    return m_frontApplication;
}

std::vector<RunningApplication> EwmhWorkspace::runningApplications() const
{
    std::vector<RunningApplication> applications;
    const std::vector<WindowFacts> windows = readWindows(m_connection, windowList(m_connection, XAtom::netClientList));
    for (const WindowFacts& window : windows) {
        const auto known = std::find_if(applications.begin(), applications.end(),
            [&](const RunningApplication& one) { return one.processIdentifier == window.process; });
        RunningApplication application = applicationOf(window);
        if (window.process == 0 || known == applications.end()) {
            applications.push_back(std::move(application));
            continue;
        }
        // One ordinary, visible window makes the application an ordinary, visible one.
        known->activationPolicy = std::min(known->activationPolicy, application.activationPolicy);
        known->isHidden = known->isHidden && application.isHidden;
    }
    return applications;
}

std::optional<RunningApplication> EwmhWorkspace::applicationWithProcess(ProcessIdentifier process) const
{
    const std::vector<RunningApplication> applications = runningApplications();
    const auto found = std::find_if(applications.begin(), applications.end(),
        [&](const RunningApplication& one) { return one.processIdentifier == process; });
    if (found != applications.end())
        return *found;
    if (!isRunning(process))
        return std::nullopt;
    WindowFacts noWindow;
    noWindow.process = process;
    RunningApplication application = applicationOf(noWindow);
    application.activationPolicy = ActivationPolicy::prohibited;
    application.isHidden = false;
    return application;
}

std::vector<OnScreenWindow> EwmhWorkspace::onScreenWindows() const
{
    std::vector<OnScreenWindow> windows;
    const std::vector<WindowFacts> all = windowsFrontToBack();
    for (const WindowFacts& window : all) {
        if (window.isOnScreen && !window.isDesktop)
            windows.push_back({.owner = window.process,
                .layer = window.layer,
                .size = {window.size.width / m_pixelsPerPoint, window.size.height / m_pixelsPerPoint}});
    }
    return windows;
}

void EwmhWorkspace::activate(ProcessIdentifier process)
{
    std::vector<WindowFacts> windows = windowsFrontToBack();
    std::erase_if(windows, [&](const WindowFacts& window) { return window.process != process || window.isDesktop; });
    if (windows.empty())
        return;
    // The front window is one on the screen; of an application without any, a minimised one comes back.
    const auto onScreen =
        std::find_if(windows.begin(), windows.end(), [](const WindowFacts& window) { return window.isOnScreen; });
    const WindowFacts& front = onScreen == windows.end() ? windows.front() : *onScreen;
    requestActivation(m_connection, m_connection.handle(), front.window, m_connection.serverTime());
}

void EwmhWorkspace::openUrl(const QString& url)
{
    if (QUrl(url).scheme() == urlScheme) {
        m_scheduler.post([handler = m_openOwnUrl, url] { handler(url); });
        return;
    }
    m_scheduler.runInBackground(BackgroundQueue::userInitiated, [url] { (void)UrlOpener::open(url); });
}

std::unique_ptr<WorkspaceObserver> EwmhWorkspace::observeActivation(ActivationHandler handler)
{
    auto observer = std::make_unique<Observer>();
    connect(this, &EwmhWorkspace::frontApplicationChanged, observer.get(), std::move(handler));
    return observer;
}

bool EwmhWorkspace::isTerminalInFront() const
{
    return m_frontApplication && m_frontApplication->bundleIdentifiers.contains(terminalRole);
}

void EwmhWorkspace::startWatching()
{
    if (!m_connection.isConnected())
        return;
    watchWindow(m_connection.root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    readFrontWindow();
}

void EwmhWorkspace::stopWatching()
{
    m_watchedFrontWindow = XCB_NONE;
    m_managerWindow = XCB_NONE;
    m_focus.focusMoved(std::nullopt);
}

void EwmhWorkspace::handleEvent(const xcb_generic_event_t& event)
{
    const int type = event.response_type & 0x7F;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        const bool isOfRoot = change.window == m_connection.root();
        if (isOfRoot
            && (change.atom == m_connection.atom(XAtom::netActiveWindow)
                || change.atom == m_connection.atom(XAtom::netClientList)
                || change.atom == m_connection.atom(XAtom::netSupportingWmCheck)))
            readFrontWindow();
        else if (change.window == m_watchedFrontWindow
            && (change.atom == XCB_ATOM_WM_CLASS || change.atom == m_connection.atom(XAtom::netWmPid)))
            identifyFrontApplication();
    } else if (type == XCB_DESTROY_NOTIFY) {
        const auto& destruction = reinterpret_cast<const xcb_destroy_notify_event_t&>(event);
        if (destruction.window == m_managerWindow)
            readFrontWindow();
    }
}

void EwmhWorkspace::readFrontWindow()
{
    const xcb_window_t managerWindow = windowManagerWindow(m_connection).value_or(XCB_NONE);
    if (managerWindow != m_managerWindow) {
        m_managerWindow = managerWindow;
        watchWindow(managerWindow, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    }
    const std::optional<xcb_window_t> window = activeWindow(m_connection);
    const bool isSameNumber = window && m_focus.current() == window;
    m_focus.focusMoved(window);
    // A number is given to another window after its own was closed.
    if (isSameNumber)
        frontWindowSettled();
}

void EwmhWorkspace::frontWindowSettled()
{
    const auto window = static_cast<xcb_window_t>(m_focus.current().value_or(XCB_NONE));
    // A closed window's number may be given to another one, so the old watch is taken back.
    watchWindow(m_watchedFrontWindow, XCB_EVENT_MASK_NO_EVENT);
    m_watchedFrontWindow = window;
    watchWindow(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    identifyFrontApplication();
}

void EwmhWorkspace::identifyFrontApplication()
{
    std::optional<RunningApplication> application;
    if (m_watchedFrontWindow != XCB_NONE) {
        const std::vector<WindowFacts> windows = readWindows(m_connection, {m_watchedFrontWindow});
        // A window that went in between keeps its application in front until the manager names the next.
        application = windows.empty() ? m_frontApplication : applicationOf(windows.front());
        // A dialog that the taskbar leaves out does not make its application a background one.
        if (!windows.empty() && application->activationPolicy != ActivationPolicy::regular)
            application = applicationWithProcess(application->processIdentifier).value_or(*application);
    }
    if (isSameApplication(application, m_frontApplication))
        return;
    m_frontApplication = std::move(application);
    Q_EMIT frontApplicationChanged(m_frontApplication);
}

void EwmhWorkspace::watchWindow(xcb_window_t window, std::uint32_t eventMask)
{
    if (window == XCB_NONE || !m_connection.isConnected())
        return;
    xcb_change_window_attributes(m_connection.handle(), window, XCB_CW_EVENT_MASK, &eventMask);
    xcb_flush(m_connection.handle());
}

RunningApplication EwmhWorkspace::applicationOf(const WindowFacts& window) const
{
    RunningApplication application;
    application.processIdentifier = window.process;
    application.activationPolicy = window.isSkippedByTaskbar ? ActivationPolicy::accessory : ActivationPolicy::regular;
    application.isHidden = window.isMinimized;
    if (window.process == QCoreApplication::applicationPid()) {
        application.bundleIdentifiers = {applicationId.toString()};
        application.localizedName = applicationName.toString();
        return application;
    }
    const ProcessFacts process = readProcess(window.process);
    const DesktopEntry* entry = m_applications.index().catalog.match({.className = window.className,
        .instanceName = window.instanceName,
        .desktopFile = window.desktopFile,
        .executable = process.executable,
        .arguments = process.arguments});
    if (entry) {
        application.bundleIdentifiers =
            QStringList{entry->id} + m_applications.index().roles.wellKnownIdentifiersOf(entry->id);
        application.localizedName = entry->name;
    } else {
        application.localizedName =
            window.className.isEmpty() ? process.executable.section(u'/', -1) : window.className;
    }
    return application;
}

std::vector<WindowFacts> EwmhWorkspace::windowsFrontToBack() const
{
    std::vector<xcb_window_t> windows = windowList(m_connection, XAtom::netClientListStacking);
    std::reverse(windows.begin(), windows.end());
    return readWindows(m_connection, windows);
}

} // namespace tarvin::desktop
