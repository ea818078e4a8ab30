#include "actions/chains/ActionChainPlayer.h"

#include "actions/GuardedActions.h"
#include "actions/KeystrokeSynthesis.h"
#include "actions/TargetApplication.h"
#include "actions/TestEnvironment.h"
#include "actions/seams/ContentActions.h"
#include "interception/TriggerNotice.h"
#include "model/OptionalText.h"
#include "platform/ports/Scheduler.h"

#include <algorithm>
#include <utility>

namespace tarvin {

namespace {

/// Timers count milliseconds in 32 bits, so a longer wait is made of several.
constexpr std::chrono::milliseconds longestTimer = std::chrono::days(20);

std::chrono::milliseconds delayOf(const ActionChainStep& step)
{
    return std::clamp(
        std::chrono::milliseconds(step.delayMs), ActionChainPlayer::shortestDelay, ActionChainPlayer::longestDelay);
}

} // namespace

ActionChainPlayer::ActionChainPlayer(Collaborators collaborators)
    : m_with(std::move(collaborators))
{ }

void ActionChainPlayer::executeActionChain(const QList<ActionChainStep>& steps)
{
    if (steps.isEmpty()) {
        m_with.notice.recordTriggerDirectly(u"Action Chain is empty"_qs);
        return;
    }
    m_with.scheduler.post([this, steps] {
        m_with.notice.recordTriggerDirectly(u"Action Chain (%1 steps)"_qs.arg(steps.size()));
        playFrom(steps, 0);
    });
}

void ActionChainPlayer::playFrom(const QList<ActionChainStep>& steps, qsizetype index)
{
    if (index >= steps.size())
        return;
    const ActionChainStep& step = steps[index];
    const auto next = [this, steps, index] { playFrom(steps, index + 1); };
    if (step.type == ActionChainStepType::delay) {
        sleep(delayOf(step), next);
        return;
    }
    perform(step);
    if (index + 1 < steps.size())
        m_with.content.whenPasteIsPosted([this, next] { sleep(stepGap, next); });
}

void ActionChainPlayer::perform(const ActionChainStep& step)
{
    switch (step.type) {
    case ActionChainStepType::shortcut:
        if (step.customShortcut)
            m_with.synthesis.executeCustomShortcut(*step.customShortcut);
        return;
    case ActionChainStepType::delay:
        return;
    case ActionChainStepType::textSnippet:
        if (hasText(step.textSnippet) && !m_with.testEnvironment.isRunningInTestEnvironment()) {
            m_with.targets.prepareTargetAppIfTarvinActive(
                [&content = m_with.content, text = *step.textSnippet] { content.pasteText(text); });
        }
        return;
    case ActionChainStepType::openURL:
        if (hasText(step.customURL))
            m_with.guarded.openURL(step.customURL);
        return;
    case ActionChainStepType::keyAction:
        if (step.keyAction)
            m_with.execute(*step.keyAction);
        return;
    }
}

void ActionChainPlayer::sleep(std::chrono::milliseconds duration, std::function<void()> then)
{
    if (duration <= longestTimer) {
        m_with.scheduler.postAfter(duration, std::move(then));
        return;
    }
    m_with.scheduler.postAfter(
        longestTimer, [this, rest = duration - longestTimer, then = std::move(then)] { sleep(rest, then); });
}

} // namespace tarvin
