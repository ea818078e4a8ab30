#pragma once

#include "platform/ports/SystemKeys.h"
#include "platform/simulated/EffectLog.h"

namespace tarvin::simulated {

class SimulatedDisplayBrightness;
class SimulatedPermission;
class SimulatedScheduler;

/// Writes down the events of the system's own keys. Those for the brightness change it on a later turn, by a sixteenth.
class SimulatedSystemKeys final : public SystemKeys
{
public:
    SimulatedSystemKeys(EffectLog& log, const SimulatedPermission& permission, SimulatedScheduler& scheduler,
        SimulatedDisplayBrightness& brightness);

    void post(SystemKey key, SystemKeyMotion motion) override;

private:
    void dim(double difference);

    EffectLog& m_log;
    const SimulatedPermission& m_permission;
    SimulatedScheduler& m_scheduler;
    SimulatedDisplayBrightness& m_brightness;
};

} // namespace tarvin::simulated
