#pragma once

#include "interception/KeyMotion.h"
#include "interception/PressLedger.h"
#include "platform/ports/InputTaps.h"

#include <ostream>

namespace tarvin {

// How a failed expectation shows the values of this folder.

inline void PrintTo(EventVerdict verdict, std::ostream* stream)
{
    *stream << (verdict == EventVerdict::consume ? "consume" : "pass");
}

inline void PrintTo(KeyMotion motion, std::ostream* stream)
{
    *stream << (motion == KeyMotion::down ? "down" : motion == KeyMotion::up ? "up" : "repeat");
}

inline void PrintTo(const PressStep& step, std::ostream* stream)
{
    *stream << (step.state.phase == PressPhase::held ? "held since " : "idle, last fired ")
            << step.state.lastHandledKeyTime << ", decision " << static_cast<int>(step.decision);
}

} // namespace tarvin
