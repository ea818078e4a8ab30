#pragma once

#include "interception/HidRouting.h"
#include "interception/KeyFunnel.h"
#include "interception/MainThread.h"
#include "interception/MonitorRouting.h"
#include "interception/StudioAnimation.h"
#include "interception/TapRouting.h"
#include "platform/ports/InputTaps.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace tarvin {

class AppShell;
class Permission;
class Timer;

/// Owns every channel by which the program sees the keyboard, and reconciles them with the permission to have them.
/// Main thread only, but for `log`. A report that a platform makes on another thread all the same is not lost: firing,
/// releasing and opening wait for the main thread, and `handleEvent` answers at once; no lock guards what it reads.
///
///   state                | isRunning | taps       | permission monitor | way out
///   ---------------------+-----------+------------+--------------------+-----------------------------------
///   waiting              | false     | none       | every 2.0 s        | permission given: the taps start
///   running              | true      | one or two | absent             | permission withdrawn: `stop`
///
/// The monitors and the HID manager are there from the beginning. The monitors end with the first `stop` for good; the
/// HID manager stays. Whether the master switch is on makes no difference to any of them.
class EventTapManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)
    Q_PROPERTY(bool hasAccessibilityPermission READ hasAccessibilityPermission NOTIFY hasAccessibilityPermissionChanged)
    Q_PROPERTY(std::optional<QString> lastTriggeredInfo READ lastTriggeredInfo NOTIFY lastTriggeredInfoChanged)

public:
    struct Collaborators
    {
        KeyProfile& keyProfile;
        ActionSink& actions;
        StudioPresence& studio;
        KeyFeedback& feedback;
        TriggerNotice& notice;
        RuntimeLog& log;
        InputTaps& inputTaps;
        Permission& permission;
        AppShell& appShell;
        Scheduler& scheduler;
    };

    /// Adds the monitors and the HID manager, and starts the taps if they are permitted.
    explicit EventTapManager(const Collaborators& collaborators);
    ~EventTapManager() override;

    /// At least one tap exists.
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    /// What the last check or start found. A trusted program whose taps could not be created counts as not permitted.
    [[nodiscard]] bool hasAccessibilityPermission() const { return m_hasAccessibilityPermission; }
    [[nodiscard]] const std::optional<QString>& lastTriggeredInfo() const;

    [[nodiscard]] KeyProfile& keyProfile() const { return m_funnel.keyProfile(); }
    /// Asks another profile from now on. It outlives this object.
    void setKeyProfile(KeyProfile& profile);
    /// A switch for whoever tests the program from outside; no routing decision reads it.
    [[nodiscard]] bool isForceActiveForTesting() const { return m_forceActiveForTesting; }
    void setForceActiveForTesting(bool force) { m_forceActiveForTesting = force; }

    /// Creates the taps. Each is independent of the other; one is enough.
    void start();
    /// Removes the taps and the monitors.
    void stop();
    /// Reconciles taps and permission; called at creation, at each activation of the program and by the permission
    /// monitor.
    void checkPermissionAndStart();

    /// The handler of both taps.
    [[nodiscard]] EventVerdict handleEvent(const InputEvent& event);
    void handleGlobalNSEvent(const InputEvent& event) { m_monitorRouting.handleGlobalNSEvent(event); }
    [[nodiscard]] EventVerdict handleLocalNSEvent(const InputEvent& event)
    {
        return m_monitorRouting.handleLocalNSEvent(event);
    }
    void handleHIDKey(std::uint32_t page, std::uint32_t usage, bool isDown)
    {
        m_hidRouting.handleHIDKey(page, usage, isDown);
    }
    bool triggerPhysicalKey(FKey key, TriggerSource source) { return m_funnel.triggerPhysicalKey(key, source); }
    void releasePhysicalKey(FKey key) { m_funnel.releasePhysicalKey(key); }
    /// See `KeyFunnel::setObserver`.
    void setKeyObserver(KeyObserver observer) { m_funnel.setObserver(std::move(observer)); }
    [[nodiscard]] const PressLedger& pressLedger() const { return m_funnel.ledger(); }

    void recordTrigger(FKey key, const QString& title);
    void recordTriggerDirectly(const QString& title);
    void log(const QString& message);

    /// Tells the platform which keys to consume. Follows the profile by itself; whoever owns the summon shortcut's
    /// switch calls it at each change of the switch.
    void publishConsumedKeys();

Q_SIGNALS:
    void isRunningChanged();
    void hasAccessibilityPermissionChanged();
    void lastTriggeredInfoChanged();

private:
    [[nodiscard]] std::unique_ptr<EventTap> createTap(TapLocation location, const QString& announcement);
    void enableDisabledTaps();
    void startPermissionMonitor();
    void setUpHidManager();
    void setRunning(bool running);
    void setHasAccessibilityPermission(bool permitted);

    StudioPresence& m_studio;
    TriggerNotice& m_notice;
    RuntimeLog& m_log;
    InputTaps& m_inputTaps;
    Permission& m_permission;
    AppShell& m_appShell;
    Scheduler& m_scheduler;

    MainThread m_mainThread;
    StudioAnimation m_animation;
    KeyFunnel m_funnel;
    TapRouting m_tapRouting;
    MonitorRouting m_monitorRouting;
    HidRouting m_hidRouting;

    bool m_isRunning = false;
    bool m_hasAccessibilityPermission = false;
    bool m_forceActiveForTesting = false;
    bool m_unhandledKeysAreSilent = false;
    QMetaObject::Connection m_customKeysConnection;

    // Last, so that no handler outlives what it calls.
    std::unique_ptr<EventTap> m_sessionEventTap;
    std::unique_ptr<EventTap> m_hidEventTap;
    std::unique_ptr<Timer> m_timer;
    std::unique_ptr<EventMonitor> m_globalEventMonitor;
    std::unique_ptr<EventMonitor> m_localEventMonitor;
    std::unique_ptr<HidManager> m_hidManager;
};

} // namespace tarvin
