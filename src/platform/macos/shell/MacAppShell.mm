#include "platform/macos/shell/MacAppShell.h"

#include "platform/macos/NotificationToken.h"
#include "platform/macos/shell/AppleEventHandler.h"
#include "platform/macos/shell/NativeWindow.h"
#include "platform/macos/shell/WindowMethods.h"
#include "platform/macos/translation/ApplicationRecord.h"
#include "platform/macos/translation/LaunchEvent.h"

#include <QCoreApplication>
#include <QFileOpenEvent>
#include <QUrl>

#include <algorithm>
#include <list>
#include <utility>

namespace tarvin::macos {

static_assert(NSApplicationActivationPolicyRegular == static_cast<NSInteger>(ActivationPolicy::regular));
static_assert(NSApplicationActivationPolicyAccessory == static_cast<NSInteger>(ActivationPolicy::accessory));
static_assert(NSApplicationActivationPolicyProhibited == static_cast<NSInteger>(ActivationPolicy::prohibited));

/// What the shell hears from the system. AppKit posts its notifications on the main thread.
struct MacAppShell::Native
{
    void observe(NSNotificationName name, NotificationToken::Handler handler)
    {
        tokens.emplace_back(
            NSNotificationCenter.defaultCenter, name, NotificationDelivery::whilePosted, std::move(handler));
    }

    std::list<NotificationToken> tokens;
    std::optional<AppleEventHandler> reopening;
    std::function<void()> launched;
};

MacAppShell::MacAppShell(Scheduler& scheduler)
    : m_scheduler(scheduler)
    , m_native(std::make_unique<Native>())
{
    qApp->installEventFilter(this);
    // By now the system has put its own handlers in place, and ours takes the place of one of them.
    m_native->observe(NSApplicationWillFinishLaunchingNotification, [this](NSNotification*) {
        m_native->reopening.emplace(coreEventClass, reopenApplication, [this] { reopen(); });
    });
    m_native->observe(NSApplicationDidFinishLaunchingNotification, [this](NSNotification*) {
        if (const auto launched = std::exchange(m_native->launched, nullptr))
            launched();
    });
    m_native->observe(NSApplicationDidBecomeActiveNotification, [this](NSNotification*) { becameActive(); });
    m_native->observe(NSApplicationWillTerminateNotification, [this](NSNotification*) { tellDelegateOfTheEnd(); });
    m_native->observe(NSWindowDidBecomeKeyNotification, [this](NSNotification* notification) {
        const auto found = std::ranges::find_if(
            m_windows, [&](const auto& window) { return nativeWindow(window->widget()) == notification.object; });
        if (m_delegate && found != m_windows.end())
            m_delegate->windowDidBecomeKey(**found);
    });
}

MacAppShell::~MacAppShell()
{
    m_native.reset();
    qApp->removeEventFilter(this);
}

void MacAppShell::setDelegate(AppShellDelegate* delegate)
{
    m_delegate = delegate;
    if (m_delegate && !m_pendingMessages.empty())
        m_scheduler.post([this] { deliverPending(); });
}

bool MacAppShell::isActive() const
{
    return NSApplication.sharedApplication.active;
}

void MacAppShell::observeDidBecomeActive(std::function<void()> handler)
{
    m_becameActiveHandlers.push_back(std::move(handler));
}

ActivationPolicy MacAppShell::activationPolicy() const
{
    return activationPolicyOf(NSApplication.sharedApplication.activationPolicy);
}

void MacAppShell::setActivationPolicy(ActivationPolicy policy)
{
    [NSApplication.sharedApplication setActivationPolicy:static_cast<NSApplicationActivationPolicy>(policy)];
}

void MacAppShell::activateAllWindows()
{
    [NSRunningApplication.currentApplication activateWithOptions:NSApplicationActivateAllWindows];
}

void MacAppShell::activateIgnoringOtherApps()
{
    [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
}

std::vector<AppWindow*> MacAppShell::windows()
{
    std::vector<AppWindow*> windows;
    for (const auto& window : m_windows)
        windows.push_back(window.get());
    return windows;
}

AppWindow* MacAppShell::keyWindow()
{
    NSWindow* const key = NSApplication.sharedApplication.keyWindow;
    const auto found = std::ranges::find_if(
        m_windows, [&](const auto& window) { return key && nativeWindow(window->widget()) == key; });
    return found != m_windows.end() ? found->get() : nullptr;
}

void MacAppShell::silenceUnhandledKeys()
{
    macos::silenceUnhandledKeys();
}

void MacAppShell::letMinimizeRequestsThrough()
{
    macos::letMinimizeRequestsThrough();
}

void MacAppShell::terminate()
{
    tellDelegateOfTheEnd();
    // Not the toolkit's `quit`, which asks every window first; and on a later turn, so that it holds before the loop
    // runs too.
    m_scheduler.post([] { QCoreApplication::exit(0); });
}

MacAppWindow& MacAppShell::addWindow(QWidget& widget, AppWindowKind kind, std::function<void()> onCloseRequested)
{
    return *m_windows.emplace_back(std::make_unique<MacAppWindow>(
        widget, kind, [this, onCloseRequested = std::move(onCloseRequested)](MacAppWindow& window) {
            if (onCloseRequested)
                onCloseRequested();
            else if (m_delegate)
                m_delegate->windowShouldClose(window);
        }));
}

void MacAppShell::whenLaunched(std::function<void()> handler)
{
    m_native->launched = std::move(handler);
}

void MacAppShell::openUrls(const QStringList& urls)
{
    deliver([urls](AppShellDelegate& delegate) { delegate.applicationOpenUrls(urls); });
}

bool MacAppShell::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != qApp)
        return false;
    switch (event->type()) {
    case QEvent::FileOpen:
        // An address of the program's scheme; the toolkit takes the system's event for it.
        openUrls({static_cast<QFileOpenEvent*>(event)->url().toString()});
        return true;
    case QEvent::Quit:
        // The user's session ends, or somebody asks the program to. The toolkit would close the windows and stay when
        // one of them refuses, as all of ours do.
        terminate();
        return true;
    default:
        return false;
    }
}

void MacAppShell::reopen()
{
    deliver([this](AppShellDelegate& delegate) {
        const bool hasVisibleWindows = std::ranges::any_of(
            m_windows, [](const auto& window) { return !window->isPanel() && window->isVisible(); });
        delegate.applicationShouldHandleReopen(hasVisibleWindows);
    });
}

void MacAppShell::deliver(std::function<void(AppShellDelegate&)> message)
{
    m_pendingMessages.push_back(std::move(message));
    if (m_delegate)
        m_scheduler.post([this] { deliverPending(); });
}

void MacAppShell::deliverPending()
{
    while (m_delegate && !m_pendingMessages.empty()) {
        const auto message = std::move(m_pendingMessages.front());
        m_pendingMessages.erase(m_pendingMessages.begin());
        message(*m_delegate);
    }
}

void MacAppShell::becameActive()
{
    if (m_delegate)
        m_delegate->applicationDidBecomeActive();
    for (const auto& handler : m_becameActiveHandlers)
        handler();
}

void MacAppShell::tellDelegateOfTheEnd()
{
    if (std::exchange(m_hasEnded, true) || !m_delegate)
        return;
    m_delegate->applicationWillTerminate();
}

} // namespace tarvin::macos
