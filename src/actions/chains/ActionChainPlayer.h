#pragma once

#include "actions/seams/ActionChains.h"
#include "model/KeyAction.h"

#include <chrono>
#include <cstdint>
#include <functional>

namespace tarvin {

class ContentActions;
class GuardedActions;
class KeystrokeSynthesis;
class Scheduler;
class TargetApplication;
class TestEnvironment;
class TriggerNotice;

/// Plays macros step by step. Between steps the main thread is free, so keys are served and two macros can overlap; a
/// macro can't be stopped and does not wait for what its steps have started.
class ActionChainPlayer final : public ActionChains
{
public:
    /// From one step to the next, unless the first is a wait of its own; counted from when a paste has gone out.
    static constexpr std::chrono::milliseconds stepGap{35};
    static constexpr std::chrono::milliseconds shortestDelay{10};
    /// About 292 years: what a count of nanoseconds in 64 bits can hold. Longer waits are taken for this one.
    static constexpr std::chrono::milliseconds longestDelay{INT64_MAX / 1'000'000};

    struct Collaborators
    {
        std::function<void(KeyAction)> execute; ///< performs an action with nothing but its name
        GuardedActions& guarded;
        ContentActions& content;
        KeystrokeSynthesis& synthesis;
        TargetApplication& targets;
        const TestEnvironment& testEnvironment;
        TriggerNotice& notice;
        Scheduler& scheduler;
    };

    explicit ActionChainPlayer(Collaborators collaborators);

    void executeActionChain(const QList<ActionChainStep>& steps) override;

private:
    void playFrom(const QList<ActionChainStep>& steps, qsizetype index);
    void perform(const ActionChainStep& step);
    void sleep(std::chrono::milliseconds duration, std::function<void()> then);

    Collaborators m_with;
};

} // namespace tarvin
