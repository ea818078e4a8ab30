#include "interception/KeyFunnel.h"

#include "interception/ActionSink.h"
#include "interception/MainThread.h"
#include "interception/RuntimeLog.h"
#include "interception/StudioAnimation.h"
#include "interception/TriggerNotice.h"
#include "model/ConfiguredAction.h"
#include "platform/ports/Scheduler.h"
#include "profiles/KeyProfile.h"

namespace tarvin {

KeyFunnel::KeyFunnel(const Collaborators& collaborators)
    : m_keyProfile(&collaborators.keyProfile)
    , m_actions(collaborators.actions)
    , m_animation(collaborators.animation)
    , m_notice(collaborators.notice)
    , m_log(collaborators.log)
    , m_scheduler(collaborators.scheduler)
    , m_mainThread(collaborators.mainThread)
{ }

bool KeyFunnel::triggerPhysicalKey(FKey key, TriggerSource source)
{
    if (!m_keyProfile->isInterceptionEnabled()) {
        observe(key, source, KeyOutcome::paused, nullptr);
        return false;
    }
    const ConfiguredAction* inForce = m_keyProfile->runtimeCustomConfig(key);
    if (!inForce) {
        observe(key, source, m_keyProfile->isInterceptionActive(key) ? KeyOutcome::notCustomised : KeyOutcome::paused,
            nullptr);
        return false;
    }
    if (m_ledger.apply(key, PressReport::down, m_scheduler.uptime()) != PressDecision::fire) {
        observe(key, source, KeyOutcome::alreadyFired, inForce);
        return true;
    }
    observe(key, source, KeyOutcome::fired, inForce);

    // A copy, because an action may change the mapping that holds the record.
    const ConfiguredAction config = *inForce;
    const QString title = config.displayTitle();
    m_log.log(
        QStringLiteral("[%1] Intercepted Physical %2 -> Executing: %3").arg(rawValue(source), rawValue(key), title));
    m_notice.recordTrigger(key, title);
    m_animation.press(
        rawValue(key), config.action == KeyAction::minimizeWindow ? PressSound::silent : PressSound::audible);
    m_actions.execute(config);
    return true;
}

void KeyFunnel::releasePhysicalKey(FKey key)
{
    m_ledger.apply(key, PressReport::up, m_scheduler.uptime());
    m_animation.release(rawValue(key));
}

void KeyFunnel::report(FKey key, KeyMotion motion, TriggerSource source)
{
    switch (motion) {
    case KeyMotion::down:
        m_mainThread.run([this, key, source] { triggerPhysicalKey(key, source); });
        break;
    case KeyMotion::repeat:
        break;
    case KeyMotion::up:
        m_mainThread.run([this, key] { releasePhysicalKey(key); });
        break;
    }
}

void KeyFunnel::observe(FKey key, TriggerSource source, KeyOutcome outcome, const ConfiguredAction* inForce) const
{
    if (!m_observer)
        return;
    KeyObservation observation{
        .key = key, .source = source, .outcome = outcome, .profileId = std::nullopt, .title = std::nullopt};
    if (inForce) {
        observation.profileId = m_keyProfile->profileInForce(key);
        observation.title = inForce->displayTitle();
    }
    m_observer(observation);
}

bool KeyFunnel::isInterceptionEnabled() const
{
    return m_keyProfile->isInterceptionEnabled();
}

bool KeyFunnel::isCustom(FKey key) const
{
    return m_keyProfile->runtimeCustomConfig(key) != nullptr;
}

} // namespace tarvin
