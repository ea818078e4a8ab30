#pragma once

#include "platform/ports/EventFlags.h"
#include "platform/ports/InputEvent.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>

namespace tarvin {

/// A key that the user pressed while the program listens.
struct PressedKey
{
    KeyCode keyCode = 0;
    EventFlags flags = EventFlags::none; ///< the modifiers that are held
    /// What the key types with no modifier but Shift; a readable name where it types nothing visible, such as a dead
    /// key. May be empty.
    QString characters;
    friend bool operator==(const PressedKey&, const PressedKey&) = default;
};

/// What becomes of a key that was told to the recorder.
enum class RecordingVerdict : std::uint8_t {
    swallow, ///< it does nothing else
    handOn, ///< it goes on to the window, where the platform has a way to let it
};

/// One recording under way; destroying it gives the keyboard back, and nothing is told any more. May be destroyed from
/// within a call of its handlers.
class KeyRecordingSession
{
public:
    virtual ~KeyRecordingSession() = default;
};

/// Lets the program see the keys that the user presses before anybody else does, the desktop's own shortcuts and the
/// keys that the program customises among them. Main thread only.
class KeyRecording
{
public:
    /// Called for each press. Repeats of a held key are not told, nor keys that no key code stands for.
    using KeyHandler = std::function<RecordingVerdict(const PressedKey& key)>;
    /// Called at most once, if the platform ends the recording: the window lost the keyboard, or the session ended.
    using EndHandler = std::function<void()>;

    virtual ~KeyRecording() = default;
    /// Takes the keyboard for the window that has it now. What ends with the program ends the recording too, a crash
    /// included.
    /// @return empty if the keyboard can't be had, or if a recording is under way
    [[nodiscard]] virtual std::unique_ptr<KeyRecordingSession> start(KeyHandler onKey, EndHandler onEnd) = 0;
};

} // namespace tarvin
