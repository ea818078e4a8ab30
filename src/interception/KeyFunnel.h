#pragma once

#include "interception/KeyMotion.h"
#include "interception/KeyObservation.h"
#include "interception/PressLedger.h"
#include "interception/TriggerSource.h"

#include <utility>

namespace tarvin {

class ActionSink;
struct ConfiguredAction;
class KeyProfile;
class MainThread;
class RuntimeLog;
class Scheduler;
class StudioAnimation;
class TriggerNotice;

/// The one place where keys fire. All input paths report the same press, each in its time; here it fires once.
class KeyFunnel
{
public:
    struct Collaborators
    {
        KeyProfile& keyProfile;
        ActionSink& actions;
        StudioAnimation& animation;
        TriggerNotice& notice;
        RuntimeLog& log;
        Scheduler& scheduler;
        MainThread& mainThread;
    };

    explicit KeyFunnel(const Collaborators& collaborators);

    [[nodiscard]] KeyProfile& keyProfile() const { return *m_keyProfile; }
    void setKeyProfile(KeyProfile& profile) { m_keyProfile = &profile; }

    /// Fires the key's action unless this press has already fired. Main thread only.
    /// @return whether the key is customised at this moment, fired or not
    bool triggerPhysicalKey(FKey key, TriggerSource source);
    /// Ends the press, customised or not. Main thread only.
    void releasePhysicalKey(FKey key);
    /// Fires or releases on the main thread: at once if this is it, else on a later turn. A repeat does nothing.
    void report(FKey key, KeyMotion motion, TriggerSource source);

    /// Tells an observer of every press from now on, before its action runs; an empty one ends that. Main thread only.
    void setObserver(KeyObserver observer) { m_observer = std::move(observer); }

    /// The master switch.
    [[nodiscard]] bool isInterceptionEnabled() const;
    /// Whether the key has an action of the user's at this moment.
    [[nodiscard]] bool isCustom(FKey key) const;
    [[nodiscard]] const PressLedger& ledger() const { return m_ledger; }

private:
    void observe(FKey key, TriggerSource source, KeyOutcome outcome, const ConfiguredAction* inForce) const;

    KeyProfile* m_keyProfile;
    ActionSink& m_actions;
    StudioAnimation& m_animation;
    TriggerNotice& m_notice;
    RuntimeLog& m_log;
    Scheduler& m_scheduler;
    MainThread& m_mainThread;
    PressLedger m_ledger;
    KeyObserver m_observer;
};

} // namespace tarvin
