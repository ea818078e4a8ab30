#pragma once

#include "platform/ports/Sounds.h"

namespace tarvin::desktop {

/// No touchpad on Linux lets a program move its motor.
class NoHaptics final : public Haptics
{
public:
    void performAlignmentTap() override { }
};

} // namespace tarvin::desktop
