#pragma once

namespace tarvin {

struct ConfiguredAction;

/// Performs the action of a key that has fired.
class ActionSink
{
public:
    virtual ~ActionSink() = default;
    /// Called on the main thread and, when a tap was first to report the press, inside the tap's callback. Failures
    /// are the action's own affair.
    virtual void execute(const ConfiguredAction& config) = 0;
};

} // namespace tarvin
