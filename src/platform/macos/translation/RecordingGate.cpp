#include "platform/macos/translation/RecordingGate.h"

#include <algorithm>

namespace tarvin::macos {

namespace {

/// The range that the system reserves for keys without characters.
constexpr char16_t firstKeyCharacter = 0xF700;
constexpr char16_t lastKeyCharacter = 0xF8FF;

bool isKeyCharacter(QChar character)
{
    return character >= QChar(firstKeyCharacter) && character <= QChar(lastKeyCharacter);
}

} // namespace

bool RecordingGate::admits(const InputEvent& event, bool isRecording)
{
    switch (event.type) {
    case InputEventType::keyDown:
        if (event.autorepeat != 0 && m_recorders.contains(event.keyCode))
            return false;
        return admitsPress(event.keyCode, isRecording);
    case InputEventType::keyUp:
        return admitsRelease(event.keyCode).value_or(!isRecording);
    case InputEventType::flagsChanged: {
        // Each second one of the same key is its release.
        const std::optional<bool> release = admitsRelease(event.keyCode);
        return release ? *release : admitsPress(event.keyCode, isRecording);
    }
    case InputEventType::systemDefined:
        return !isRecording || (event.systemDefined && !event.systemDefined->isDown());
    case InputEventType::tapDisabledByTimeout:
    case InputEventType::tapDisabledByUserInput:
        return true;
    }
    return true;
}

bool RecordingGate::admits(const HidValue& value, bool isRecording) noexcept
{
    return !isRecording || value.value == 0;
}

bool RecordingGate::admitsPress(KeyCode key, bool isRecording)
{
    if (!isRecording) {
        m_recorders.erase(key);
        m_handlers.insert(key);
        return true;
    }
    // One whose release was lost, or that is held since before, stays the handler's, which waits for its release.
    if (!m_handlers.contains(key))
        m_recorders.insert(key);
    return false;
}

std::optional<bool> RecordingGate::admitsRelease(KeyCode key)
{
    if (m_handlers.erase(key) > 0)
        return true;
    return m_recorders.erase(key) > 0 ? std::optional(false) : std::nullopt;
}

QString recordedCharacters(const QString& characters)
{
    return std::ranges::any_of(characters, isKeyCharacter) ? QString() : characters;
}

} // namespace tarvin::macos
