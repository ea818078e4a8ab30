#pragma once

#include "platform/ports/EventPoster.h"
#include "platform/simulated/EffectLog.h"

#include <set>

namespace tarvin::simulated {

class SimulatedPermission;

/// Writes down what would have been posted. Nothing is fed back into the taps.
class SimulatedEventPoster final : public EventPoster
{
public:
    SimulatedEventPoster(EffectLog& log, const SimulatedPermission& permission);

    [[nodiscard]] bool canMakeKey(KeyCode keyCode) const override;
    void postKey(const SyntheticKey& key, TapLocation location) override;
    [[nodiscard]] bool canMakeClick() const override { return m_canMakeClick; }
    void postSecondaryClick(const SyntheticClick& click, TapLocation location) override;

    void setCanMakeKey(KeyCode keyCode, bool canMake);
    void setCanMakeClick(bool canMake) { m_canMakeClick = canMake; }

private:
    EffectLog& m_log;
    const SimulatedPermission& m_permission;
    std::set<KeyCode> m_impossibleKeys;
    bool m_canMakeClick = true;
};

} // namespace tarvin::simulated
