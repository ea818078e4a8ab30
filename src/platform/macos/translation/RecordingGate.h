#pragma once

#include "platform/ports/InputEvent.h"
#include "platform/ports/InputTaps.h"

#include <QString>

#include <optional>
#include <set>

namespace tarvin::macos {

/// Decides for one input path which of its events its handler gets to see while keys are being recorded. A press that
/// comes during the recording is the recorder's, with its repeats and its release, even if those come after the end of
/// the recording; every other key ends as it began. What the handler does not see passes.
class RecordingGate
{
public:
    [[nodiscard]] bool admits(const InputEvent& event, bool isRecording);
    [[nodiscard]] static bool admits(const HidValue& value, bool isRecording) noexcept;

private:
    [[nodiscard]] bool admitsPress(KeyCode key, bool isRecording);
    /// @return nothing for a key that is not held
    [[nodiscard]] std::optional<bool> admitsRelease(KeyCode key);

    // The keys that are held, by who has seen their press.
    std::set<KeyCode> m_handlers;
    std::set<KeyCode> m_recorders;
};

/// What a recorder shows of the characters that the system tells of a key: nothing for the private characters by which
/// it numbers the keys that type none, such as F5 and the arrows.
[[nodiscard]] QString recordedCharacters(const QString& characters);

} // namespace tarvin::macos
