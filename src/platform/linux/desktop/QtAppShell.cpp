#include "platform/linux/desktop/QtAppShell.h"

#include "platform/linux/desktop/Ewmh.h"

#include <QApplication>
#include <QSessionManager>

#include <algorithm>
#include <cstdlib>

namespace tarvin::desktop {

namespace {

/// The one shell of the process, for the handler of a sudden exit.
QtAppShell* theShell = nullptr;

} // namespace

QtAppShell::QtAppShell(Scheduler& scheduler, XConnection& connection)
    : m_connection(connection)
    , m_scheduler(scheduler)
    , m_focus(scheduler, [this](std::optional<FocusSettler::WindowId>) { focusSettled(); })
{
    QApplication::setQuitOnLastWindowClosed(false);
    qApp->installEventFilter(this);
    connect(&m_inputFocus, &InputFocus::moved, this, &QtAppShell::focusMoved);
    connect(qApp, &QGuiApplication::commitDataRequest, this,
        // The autostart entry brings the program back at the next login; the session manager need not.
        [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); });

    theShell = this;
    static const int isRegistered = std::atexit(&QtAppShell::lastChance);
    (void)isRegistered;
}

QtAppShell::~QtAppShell()
{
    theShell = nullptr;
    qApp->removeEventFilter(this);
}

void QtAppShell::setDelegate(AppShellDelegate* delegate)
{
    m_delegate = delegate;
    if (m_delegate && !m_pendingMessages.empty())
        m_scheduler.post([this] { deliverPending(); });
}

bool QtAppShell::isActive() const
{
    return m_focus.current().has_value();
}

void QtAppShell::observeDidBecomeActive(std::function<void()> handler)
{
    m_becameActiveHandlers.push_back(std::move(handler));
}

void QtAppShell::setActivationPolicy(ActivationPolicy policy)
{
    m_policy = policy;
    for (const auto& window : m_windows)
        window->setInTaskbar(policy == ActivationPolicy::regular && !window->isPanel());
}

void QtAppShell::activateAllWindows()
{
    for (const auto& window : m_windows) {
        if (window->isVisible())
            window->orderFrontRegardless();
    }
}

void QtAppShell::activateIgnoringOtherApps()
{
    // A panel that has just been given the keyboard makes the program active by that; another window would take the
    // keyboard from it again.
    if (m_wantedKeyWindow && m_wantedKeyWindow->isPanel())
        return;
    const auto visible = std::find_if(m_windows.begin(), m_windows.end(),
        [](const auto& window) { return !window->isPanel() && window->isVisible(); });
    if (visible != m_windows.end())
        (*visible)->makeKeyAndOrderFront();
}

std::vector<AppWindow*> QtAppShell::windows()
{
    std::vector<AppWindow*> windows;
    for (const auto& window : m_windows)
        windows.push_back(window.get());
    return windows;
}

void QtAppShell::terminate()
{
    tellDelegateOfTheEnd();
    // Not `quit`, which asks every window first; and on a later turn, so that it holds before the loop runs too.
    m_scheduler.post([] { QCoreApplication::exit(0); });
}

QtAppWindow& QtAppShell::addWindow(QWidget& widget, AppWindowKind kind)
{
    QtAppWindow& window = *m_windows.emplace_back(std::make_unique<QtAppWindow>(widget, kind, m_connection));
    connect(&window, &QtAppWindow::closeRequested, this, [this, &window] {
        if (m_delegate && !window.isPanel())
            m_delegate->windowShouldClose(window);
    });
    connect(&window, &QtAppWindow::keyWanted, this, [this, &window] { m_wantedKeyWindow = &window; });
    connect(&window, &QtAppWindow::hidden, this, [this, &window] {
        if (m_keyWindow == &window)
            m_keyWindow = nullptr;
        if (m_wantedKeyWindow == &window)
            m_wantedKeyWindow = nullptr;
    });
    window.setInTaskbar(m_policy == ActivationPolicy::regular && !window.isPanel());
    return window;
}

void QtAppShell::reopen(const QByteArray& startupId)
{
    deliver(
        [this](AppShellDelegate& delegate) {
            const bool hasVisibleWindows = std::any_of(m_windows.begin(), m_windows.end(),
                [](const auto& window) { return !window->isPanel() && window->isVisible(); });
            delegate.applicationShouldHandleReopen(hasVisibleWindows);
        },
        startupId);
}

void QtAppShell::openUrls(const QStringList& urls, const QByteArray& startupId)
{
    deliver([urls](AppShellDelegate& delegate) { delegate.applicationOpenUrls(urls); }, startupId);
}

bool QtAppShell::eventFilter(QObject* watched, QEvent* event)
{
    // The session manager's last word, or a call of `QCoreApplication::quit`. The toolkit would close the windows and
    // stay when one of them refuses, as all of ours do.
    if (event->type() == QEvent::Quit && watched == qApp) {
        terminate();
        return true;
    }
    return false;
}

void QtAppShell::deliver(std::function<void(AppShellDelegate&)> message, const QByteArray& startupId)
{
    m_pendingMessages.emplace_back([this, message = std::move(message), startupId](AppShellDelegate& delegate) {
        for (const auto& window : m_windows)
            window->setWishTime(startupTime(startupId));
        message(delegate);
        completeStartup(m_connection, startupId);
    });
    if (m_delegate)
        m_scheduler.post([this] { deliverPending(); });
}

void QtAppShell::deliverPending()
{
    while (m_delegate && !m_pendingMessages.empty()) {
        const auto message = std::move(m_pendingMessages.front());
        m_pendingMessages.erase(m_pendingMessages.begin());
        message(*m_delegate);
    }
}

void QtAppShell::focusMoved(std::optional<WId> number)
{
    const bool isOurs = number && QWidget::find(*number);
    m_focus.focusMoved(isOurs ? number : std::nullopt);
    QtAppWindow* const window = isOurs ? windowWithNumber(*number) : nullptr;
    if (!window || window == m_keyWindow)
        return;
    m_keyWindow = window;
    if (m_delegate)
        m_delegate->windowDidBecomeKey(*window);
}

void QtAppShell::focusSettled()
{
    if (!isActive())
        m_keyWindow = nullptr;
    if (std::exchange(m_wasActive, isActive()) == isActive())
        return;
    Q_EMIT activeChanged(isActive());
    if (!isActive())
        return;
    if (m_delegate)
        m_delegate->applicationDidBecomeActive();
    for (const auto& handler : m_becameActiveHandlers)
        handler();
}

void QtAppShell::tellDelegateOfTheEnd()
{
    if (std::exchange(m_hasEnded, true) || !m_delegate)
        return;
    m_delegate->applicationWillTerminate();
}

QtAppWindow* QtAppShell::windowWithNumber(WId number) const
{
    const auto found =
        std::find_if(m_windows.begin(), m_windows.end(), [&](const auto& window) { return window->hasNumber(number); });
    return found == m_windows.end() ? nullptr : found->get();
}

void QtAppShell::lastChance()
{
    // The toolkit leaves the process by `exit` when the X server goes, under the feet of everything on the stack.
    if (theShell)
        theShell->tellDelegateOfTheEnd();
}

} // namespace tarvin::desktop
