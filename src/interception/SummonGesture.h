#pragma once

#include "platform/ports/InputEvent.h"

namespace tarvin {

inline constexpr KeyCode summonKeyCode = 40; ///< the K key
inline constexpr EventFlags summonFlags = EventFlags::option | EventFlags::command;

/// Option, Command and K, whatever other modifiers are held with them. A repeat of the held key counts again.
[[nodiscard]] constexpr bool isSummonGesture(const InputEvent& event) noexcept
{
    return event.type == InputEventType::keyDown && event.keyCode == summonKeyCode
        && containsAll(event.flags, summonFlags);
}

} // namespace tarvin
