#pragma once

#include "tapd/engine/TapEngine.h"

#include <linux/input.h>

#include <span>

namespace tarvin::tapd {

/// The devices through which the daemon speaks to the system. Whoever implements it notices itself when a device fails.
class EventOutputs
{
public:
    virtual ~EventOutputs() = default;
    /// Re-emits what passed.
    virtual void write(Output output, std::span<const input_event> events) = 0;
    /// Writes what the application posts, through a device of its own, so that everybody can tell it from what was
    /// typed.
    virtual void post(std::span<const input_event> events) = 0;
};

} // namespace tarvin::tapd
