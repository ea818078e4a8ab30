#include "actions/KeystrokeSynthesis.h"

#include "actions/TargetApplication.h"
#include "actions/TestEnvironment.h"
#include "platform/ports/Pointer.h"
#include "platform/ports/Scheduler.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace tarvin {

namespace {

constexpr auto postLocation = TapLocation::session;

void postKey(EventPoster& poster, KeyState state, KeyCode keyCode, EventFlags flags, KeystrokeOrigin origin)
{
    poster.postKey({.keyCode = keyCode, .state = state, .flags = flags, .userData = selfPostedMarker, .origin = origin},
        postLocation);
}

void postChordKey(EventPoster& poster, KeyState state, const CustomShortcut& shortcut, EventFlags combined)
{
    if (poster.canMakeKey(shortcut.keyCode))
        postKey(poster, state, shortcut.keyCode, combined, KeystrokeOrigin::recorded);
}

} // namespace

EventFlags eventFlags(const CustomShortcut& shortcut) noexcept
{
    auto flags = EventFlags::none;
    if (shortcut.command)
        flags |= EventFlags::command;
    if (shortcut.option)
        flags |= EventFlags::option;
    if (shortcut.control)
        flags |= EventFlags::control;
    if (shortcut.shift)
        flags |= EventFlags::shift;
    return flags;
}

KeystrokeSynthesis::KeystrokeSynthesis(EventPoster& poster, Pointer& pointer, Scheduler& scheduler,
    const TestEnvironment& testEnvironment, TargetApplication& targets)
    : m_poster(poster)
    , m_pointer(pointer)
    , m_scheduler(scheduler)
    , m_testEnvironment(testEnvironment)
    , m_targets(targets)
{ }

void KeystrokeSynthesis::simulateKeyStroke(KeyCode keyCode, EventFlags flags, KeystrokeOrigin origin)
{
    if (!mayPost(keyCode))
        return;
    postKey(m_poster, KeyState::down, keyCode, flags, origin);
    m_scheduler.postAfter(keyReleaseDelay,
        [&poster = m_poster, keyCode, flags, origin] { postKey(poster, KeyState::up, keyCode, flags, origin); });
}

bool KeystrokeSynthesis::mayPost(KeyCode keyCode) const
{
    return !m_testEnvironment.isRunningInTestEnvironment() && m_poster.canMakeKey(keyCode);
}

void KeystrokeSynthesis::executeCustomShortcut(const CustomShortcut& shortcut)
{
    m_targets.prepareTargetAppIfTarvinActive([this, shortcut] { executeCustomShortcutDirect(shortcut); });
}

void KeystrokeSynthesis::executeCustomShortcutDirect(const CustomShortcut& shortcut)
{
    simulateKeyStroke(shortcut.keyCode, eventFlags(shortcut), KeystrokeOrigin::recorded);
}

void KeystrokeSynthesis::executeMultiKeyShortcuts(const QList<CustomShortcut>& shortcuts, MultiKeyPlaybackMode mode)
{
    m_targets.prepareTargetAppIfTarvinActive([this, shortcuts, mode] { play(shortcuts, mode); });
}

void KeystrokeSynthesis::play(const QList<CustomShortcut>& shortcuts, MultiKeyPlaybackMode mode)
{
    QList<CustomShortcut> playable;
    std::ranges::copy_if(shortcuts, std::back_inserter(playable), &CustomShortcut::namesKey);
    if (playable.isEmpty())
        return;
    if (playable.size() == 1) {
        executeCustomShortcutDirect(playable.first());
        return;
    }
    switch (mode) {
    case MultiKeyPlaybackMode::simultaneous:
        executeSimultaneousKeys(playable);
        return;
    case MultiKeyPlaybackMode::sequential:
        executeSequentialKeys(playable);
        return;
    }
}

void KeystrokeSynthesis::executeSimultaneousKeys(const QList<CustomShortcut>& shortcuts)
{
    auto combined = EventFlags::none;
    for (const CustomShortcut& shortcut : shortcuts)
        combined |= eventFlags(shortcut);
    for (const CustomShortcut& shortcut : shortcuts)
        postChordKey(m_poster, KeyState::down, shortcut, combined);
    m_scheduler.postAfter(chordReleaseDelay, [&poster = m_poster, shortcuts, combined] {
        std::for_each(shortcuts.crbegin(), shortcuts.crend(), [&poster, combined](const CustomShortcut& shortcut) {
            postChordKey(poster, KeyState::up, shortcut, combined);
        });
    });
}

void KeystrokeSynthesis::executeSequentialKeys(const QList<CustomShortcut>& shortcuts)
{
    std::chrono::milliseconds delay{0};
    for (const CustomShortcut& shortcut : shortcuts) {
        // A release counted from its press would come after the next press where the main loop was held up in between.
        auto isDown = std::make_shared<bool>(false);
        const auto post = [&poster = m_poster, shortcut](KeyState state) {
            postKey(poster, state, shortcut.keyCode, eventFlags(shortcut), KeystrokeOrigin::recorded);
        };
        m_scheduler.postAfter(delay, [this, post, isDown, keyCode = shortcut.keyCode] {
            *isDown = mayPost(keyCode);
            if (*isDown)
                post(KeyState::down);
        });
        m_scheduler.postAfter(delay + keyReleaseDelay, [post, isDown] {
            if (*isDown)
                post(KeyState::up);
        });
        delay += sequenceStep;
    }
}

void KeystrokeSynthesis::simulateSecondaryClick()
{
    const Point position = m_pointer.position();
    if (!m_poster.canMakeClick())
        return;
    m_poster.postSecondaryClick({.position = position, .state = KeyState::down}, postLocation);
    m_scheduler.postAfter(clickReleaseDelay, [&poster = m_poster, position] {
        poster.postSecondaryClick({.position = position, .state = KeyState::up}, postLocation);
    });
}

} // namespace tarvin
