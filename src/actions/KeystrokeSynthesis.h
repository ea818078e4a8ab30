#pragma once

#include "model/ActionParameters.h"
#include "model/CustomShortcut.h"
#include "platform/ports/EventPoster.h"

#include <QList>

#include <chrono>

namespace tarvin {

class Pointer;
class Scheduler;
class TargetApplication;
class TestEnvironment;

/// The modifiers of a recorded shortcut as an event carries them.
[[nodiscard]] EventFlags eventFlags(const CustomShortcut& shortcut) noexcept;

/// Writes keystrokes and clicks into the session. Every key event carries the marker by which the program's own input
/// paths let it pass, and exactly the modifiers that are asked for, whatever the user holds. Every call returns before
/// the keys are up again. Without permission, or for a key that can't be made here, nothing happens and nobody is told.
/// Main thread only; the posters and the target outlive what is still to be posted.
class KeystrokeSynthesis
{
public:
    static constexpr std::chrono::milliseconds keyReleaseDelay{15};
    static constexpr std::chrono::milliseconds chordReleaseDelay{25};
    static constexpr std::chrono::milliseconds clickReleaseDelay{40};
    /// From the press of one key of a sequence to the press of the next.
    static constexpr std::chrono::milliseconds sequenceStep{45};

    KeystrokeSynthesis(EventPoster& poster, Pointer& pointer, Scheduler& scheduler,
        const TestEnvironment& testEnvironment, TargetApplication& targets);

    /// One press, released by itself. Nothing in test-safe mode.
    void simulateKeyStroke(KeyCode keyCode, EventFlags flags, KeystrokeOrigin origin);
    /// One recorded shortcut, played to the application that the user works in.
    void executeCustomShortcut(const CustomShortcut& shortcut);
    /// Several recorded shortcuts, played to the application that the user works in. Those that name no key are left
    /// out; when one remains the mode makes no difference.
    void executeMultiKeyShortcuts(const QList<CustomShortcut>& shortcuts, MultiKeyPlaybackMode mode);
    /// All keys down in list order, each with the modifiers of all, and up again in reverse; in test-safe mode too.
    void executeSimultaneousKeys(const QList<CustomShortcut>& shortcuts);
    /// One press after another. All have their place in time from the start, presses and releases, so that a late one
    /// never gets behind the next.
    void executeSequentialKeys(const QList<CustomShortcut>& shortcuts);
    /// A click of the secondary button where the pointer is, in test-safe mode too.
    void simulateSecondaryClick();

private:
    [[nodiscard]] bool mayPost(KeyCode keyCode) const;
    void executeCustomShortcutDirect(const CustomShortcut& shortcut);
    void play(const QList<CustomShortcut>& shortcuts, MultiKeyPlaybackMode mode);

    EventPoster& m_poster;
    Pointer& m_pointer;
    Scheduler& m_scheduler;
    const TestEnvironment& m_testEnvironment;
    TargetApplication& m_targets;
};

} // namespace tarvin
