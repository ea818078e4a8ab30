#include "interception/TapRouting.h"

#include "interception/KeyFunnel.h"
#include "interception/KeyIdentifier.h"
#include "interception/StudioAnimation.h"
#include "interception/StudioPresence.h"
#include "interception/SummonGesture.h"
#include "model/FKey.h"
#include "platform/ports/Scheduler.h"

namespace tarvin {

TapRouting::TapRouting(KeyFunnel& funnel, StudioPresence& studio, StudioAnimation& animation, Scheduler& scheduler)
    : m_funnel(funnel)
    , m_studio(studio)
    , m_animation(animation)
    , m_scheduler(scheduler)
{ }

EventVerdict TapRouting::handleEvent(const InputEvent& event)
{
    if (event.isSelfPosted())
        return EventVerdict::pass;
    if (isSummonGesture(event) && m_studio.isGlobalSummonShortcutEnabled()) {
        m_scheduler.post([&studio = m_studio] { studio.openStudioWindow(); });
        return EventVerdict::consume;
    }
    if (!m_funnel.isInterceptionEnabled())
        return EventVerdict::pass;

    const std::optional<FKey> key = keyOf(event);
    if (!key) {
        animatePlainKey(event);
        return EventVerdict::pass;
    }
    if (!m_funnel.isCustom(*key)) {
        animateFactoryKey(*key, event);
        return EventVerdict::pass;
    }
    m_funnel.report(
        *key, motionOf(event, *key, m_funnel.ledger().pressedPhysicalKeys()), eventTapSources.of(event.type));
    return EventVerdict::consume;
}

/// A key outside the vocabulary. With Command or Control it is a shortcut and not typing.
void TapRouting::animatePlainKey(const InputEvent& event)
{
    const bool isPress = event.type == InputEventType::keyDown;
    if (!isPress && event.type != InputEventType::keyUp)
        return;
    if (containsAny(event.flags, EventFlags::command | EventFlags::control))
        return;
    const std::optional<QStringView> identifier = keyIdentifier(event.keyCode);
    if (!identifier)
        return;
    if (isPress)
        m_animation.press(*identifier, PressSound::audible);
    else
        m_animation.release(*identifier);
}

/// A customisable key that is not customised now. Its media events come beside key events and are not animated.
void TapRouting::animateFactoryKey(FKey key, const InputEvent& event)
{
    if (event.type == InputEventType::systemDefined)
        return;
    if (motionOf(event, key, m_funnel.ledger().pressedPhysicalKeys()) == KeyMotion::up)
        m_animation.release(rawValue(key));
    else
        m_animation.press(rawValue(key), PressSound::audible);
}

} // namespace tarvin
