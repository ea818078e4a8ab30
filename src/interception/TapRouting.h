#pragma once

#include "platform/ports/InputTaps.h"

namespace tarvin {

class KeyFunnel;
class Scheduler;
class StudioAnimation;
class StudioPresence;

/// What happens to a keyboard event in the event taps, the two places where it can be consumed. The verdict
/// never waits for the action.
///
///   event                                 | verdict
///   --------------------------------------+-----------------------------------------------
///   one of our own                        | pass
///   summon shortcut, enabled              | consume, open the Studio
///   master switch off                     | pass
///   key that is not customised now        | pass, animate the drawn keyboard
///   customised key going down             | consume, fire
///   customised key repeating              | consume
///   customised key going up               | consume, release
class TapRouting
{
public:
    TapRouting(KeyFunnel& funnel, StudioPresence& studio, StudioAnimation& animation, Scheduler& scheduler);

    [[nodiscard]] EventVerdict handleEvent(const InputEvent& event);

private:
    void animatePlainKey(const InputEvent& event);
    void animateFactoryKey(FKey key, const InputEvent& event);

    KeyFunnel& m_funnel;
    StudioPresence& m_studio;
    StudioAnimation& m_animation;
    Scheduler& m_scheduler;
};

} // namespace tarvin
