#include "interception/EventTapManager.h"

#include "interception/RuntimeLog.h"
#include "interception/StudioPresence.h"
#include "interception/TriggerNotice.h"
#include "platform/ports/AppShell.h"
#include "platform/ports/Permission.h"
#include "platform/ports/Scheduler.h"
#include "profiles/KeyProfile.h"

namespace tarvin {

using namespace std::chrono_literals;

namespace {

constexpr auto permissionCheckInterval = 2000ms;

constexpr bool isTapDisabled(InputEventType type) noexcept
{
    return type == InputEventType::tapDisabledByTimeout || type == InputEventType::tapDisabledByUserInput;
}

} // namespace

EventTapManager::EventTapManager(const Collaborators& collaborators)
    : m_studio(collaborators.studio)
    , m_notice(collaborators.notice)
    , m_log(collaborators.log)
    , m_inputTaps(collaborators.inputTaps)
    , m_permission(collaborators.permission)
    , m_appShell(collaborators.appShell)
    , m_scheduler(collaborators.scheduler)
    , m_mainThread(m_scheduler)
    , m_animation(m_appShell, m_studio, collaborators.feedback)
    , m_funnel(
          {collaborators.keyProfile, collaborators.actions, m_animation, m_notice, m_log, m_scheduler, m_mainThread})
    , m_tapRouting(m_funnel, m_studio, m_animation, m_scheduler)
    , m_monitorRouting(m_funnel, m_studio)
    , m_hidRouting(m_funnel)
{
    connect(&m_notice, &TriggerNotice::lastTriggeredInfoChanged, this, &EventTapManager::lastTriggeredInfoChanged);
    log(QStringLiteral("[Tarvin] Initializing EventTapManager..."));
    setKeyProfile(collaborators.keyProfile);
    checkPermissionAndStart();
    m_globalEventMonitor = m_inputTaps.addGlobalMonitor(
        [this](const InputEvent& event) { m_mainThread.run([this, event] { handleGlobalNSEvent(event); }); });
    m_localEventMonitor =
        m_inputTaps.addLocalMonitor([this](const InputEvent& event) { return handleLocalNSEvent(event); });
    setUpHidManager();
    m_appShell.observeDidBecomeActive(m_mainThread.whileAlive([this] { checkPermissionAndStart(); }));
}

EventTapManager::~EventTapManager()
{
    stop();
}

const std::optional<QString>& EventTapManager::lastTriggeredInfo() const
{
    return m_notice.lastTriggeredInfo();
}

void EventTapManager::setKeyProfile(KeyProfile& profile)
{
    disconnect(m_customKeysConnection);
    m_funnel.setKeyProfile(profile);
    m_customKeysConnection =
        connect(&profile, &KeyProfile::customKeysChanged, this, &EventTapManager::publishConsumedKeys);
    publishConsumedKeys();
}

void EventTapManager::start()
{
    if (m_isRunning)
        return;
    if (!m_unhandledKeysAreSilent) {
        m_unhandledKeysAreSilent = true;
        m_appShell.silenceUnhandledKeys();
    }
    m_sessionEventTap = createTap(TapLocation::session, QStringLiteral("[Tarvin] Session event tap active."));
    m_hidEventTap = createTap(TapLocation::hid, QStringLiteral("[Tarvin] HID event tap active."));
    const bool ok = m_sessionEventTap || m_hidEventTap;
    setRunning(ok);
    setHasAccessibilityPermission(ok);
    log(ok ? QStringLiteral("[Tarvin] Keyboard interception engine active.")
           : QStringLiteral("[Tarvin] Failed to create CGEventTap. Awaiting accessibility authorization."));
}

void EventTapManager::stop()
{
    if (!m_isRunning)
        return;
    for (std::unique_ptr<EventTap>* tap : {&m_sessionEventTap, &m_hidEventTap}) {
        if (*tap) {
            (*tap)->disable();
            (*tap)->detachFromMainLoop();
        }
    }
    m_sessionEventTap.reset();
    m_hidEventTap.reset();
    m_globalEventMonitor.reset();
    m_localEventMonitor.reset();
    setRunning(false);
    log(QStringLiteral("[Tarvin] Event tap stopped."));
}

void EventTapManager::checkPermissionAndStart()
{
    const bool trusted = m_permission.isProcessTrusted();
    setHasAccessibilityPermission(trusted);
    if (!trusted) {
        stop();
        if (!m_timer)
            startPermissionMonitor();
        return;
    }
    if (m_isRunning)
        enableDisabledTaps();
    else
        start();
    if (m_isRunning)
        m_timer.reset();
}

EventVerdict EventTapManager::handleEvent(const InputEvent& event)
{
    if (!isTapDisabled(event.type))
        return m_tapRouting.handleEvent(event);
    for (EventTap* tap : {m_sessionEventTap.get(), m_hidEventTap.get()}) {
        if (tap)
            tap->enable();
    }
    return EventVerdict::pass;
}

void EventTapManager::recordTrigger(FKey key, const QString& title)
{
    m_notice.recordTrigger(key, title);
}

void EventTapManager::recordTriggerDirectly(const QString& title)
{
    m_notice.recordTriggerDirectly(title);
}

void EventTapManager::log(const QString& message)
{
    m_log.log(message);
}

void EventTapManager::publishConsumedKeys()
{
    m_inputTaps.publishConsumedKeys(keyProfile().customKeys(),
        m_studio.isGlobalSummonShortcutEnabled() ? SummonShortcut::taken : SummonShortcut::released);
}

void EventTapManager::enableDisabledTaps()
{
    for (EventTap* tap : {m_sessionEventTap.get(), m_hidEventTap.get()}) {
        if (tap && !tap->isEnabled())
            tap->enable();
    }
}

std::unique_ptr<EventTap> EventTapManager::createTap(TapLocation location, const QString& announcement)
{
    auto tap = m_inputTaps.createTap(location, [this](const InputEvent& event) { return handleEvent(event); });
    if (tap) {
        tap->attachToMainLoop();
        tap->enable();
        log(announcement);
    }
    return tap;
}

void EventTapManager::startPermissionMonitor()
{
    if (m_hasAccessibilityPermission && m_isRunning)
        return;
    m_timer = m_scheduler.startRepeating(permissionCheckInterval, [this] { checkPermissionAndStart(); });
}

void EventTapManager::setUpHidManager()
{
    m_hidManager = m_inputTaps.openHidManager([this](const HidValue& value) { m_hidRouting.handleHidValue(value); });
    log(QStringLiteral("[Tarvin] Hardware IOHIDManager active (status: %1).")
            .arg(m_hidManager->isOpen() ? QStringLiteral("true") : QStringLiteral("false")));
}

void EventTapManager::setRunning(bool running)
{
    if (m_isRunning == running)
        return;
    m_isRunning = running;
    Q_EMIT isRunningChanged();
}

void EventTapManager::setHasAccessibilityPermission(bool permitted)
{
    if (m_hasAccessibilityPermission == permitted)
        return;
    m_hasAccessibilityPermission = permitted;
    Q_EMIT hasAccessibilityPermissionChanged();
}

} // namespace tarvin
