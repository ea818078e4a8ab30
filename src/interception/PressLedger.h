#pragma once

#include "model/FKeySet.h"

#include <array>

namespace tarvin {

// One physical key, as the reports of all input paths together tell it:
//
//   phase | report | since it last fired          | decision  | next phase
//   ------+--------+------------------------------+-----------+-----------
//   idle  | down   | less than 0.18 s             | bounce    | idle
//   idle  | down   | 0.18 s or more               | fire      | held
//   held  | down   | at most 0.35 s               | duplicate | held
//   held  | down   | more: the release was lost   | as if idle
//   idle  | up     |                              | release   | idle
//   held  | up     |                              | release   | idle

enum class PressPhase { idle, held };

enum class PressReport { down, up };

enum class PressDecision {
    fire,
    duplicate, ///< another path tells of the press in progress
    bounce, ///< another path tells late of a press that is over, or the contact bounced
    release,
};

struct PressState
{
    PressPhase phase = PressPhase::idle;
    double lastHandledKeyTime = 0; ///< uptime in seconds of the last firing; 0 for a key that never fired
    friend constexpr bool operator==(const PressState&, const PressState&) = default;
};

struct PressStep
{
    PressState state;
    PressDecision decision = PressDecision::release;
    friend constexpr bool operator==(const PressStep&, const PressStep&) = default;
};

/// Seconds after a firing within which a further press of the held key is taken for the same press.
inline constexpr double duplicateWindow = 0.35;
/// Seconds after a firing that must pass before a released key may fire again.
inline constexpr double bounceWindow = 0.18;

/// @param now uptime in seconds
[[nodiscard]] constexpr PressStep stepPress(PressState state, PressReport report, double now) noexcept
{
    if (report == PressReport::up)
        return {{PressPhase::idle, state.lastHandledKeyTime}, PressDecision::release};

    const double delta = now - state.lastHandledKeyTime;
    switch (state.phase) {
    case PressPhase::held:
        if (delta <= duplicateWindow)
            return {state, PressDecision::duplicate};
        [[fallthrough]];
    case PressPhase::idle:
        if (delta < bounceWindow)
            return {{PressPhase::idle, state.lastHandledKeyTime}, PressDecision::bounce};
        break;
    }
    return {{PressPhase::held, now}, PressDecision::fire};
}

/// The press state of every key. Main thread only.
class PressLedger
{
public:
    PressDecision apply(FKey key, PressReport report, double now) noexcept
    {
        const PressStep step = stepPress(state(key), report, now);
        m_lastHandledKeyTime[orderOf(key)] = step.state.lastHandledKeyTime;
        if (step.state.phase == PressPhase::held)
            m_pressedPhysicalKeys.insert(key);
        else
            m_pressedPhysicalKeys.remove(key);
        return step.decision;
    }

    [[nodiscard]] double lastHandledKeyTime(FKey key) const noexcept { return m_lastHandledKeyTime[orderOf(key)]; }
    /// A key is among them from its firing until its release.
    [[nodiscard]] FKeySet pressedPhysicalKeys() const noexcept { return m_pressedPhysicalKeys; }

private:
    [[nodiscard]] PressState state(FKey key) const noexcept
    {
        return {m_pressedPhysicalKeys.contains(key) ? PressPhase::held : PressPhase::idle, lastHandledKeyTime(key)};
    }

    std::array<double, fKeyCount> m_lastHandledKeyTime{};
    FKeySet m_pressedPhysicalKeys;
};

} // namespace tarvin
