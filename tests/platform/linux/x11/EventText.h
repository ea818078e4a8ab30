#pragma once

#include "platform/keycodes/KeyCodeTable.h"
#include "platform/ports/InputEvent.h"

#include <string>

namespace tarvin::x11 {

/// An event in a word or two: "+f5", "*f5" for a repeat, "-f5", "~rightOption" for changed flags, "+media16",
/// "-media16". The flags follow in letters of their own: "+f5/SC" with Shift and Control, O for Option and M for
/// Command. An event of our own has "!" before it.
[[nodiscard]] inline std::string textOf(const InputEvent& event)
{
    std::string text = event.isSelfPosted() ? "!" : "";
    const KeyCodeRow* const row = keyRowOfKeyCode(event.keyCode);
    const std::string name = row == nullptr ? "?" : std::string(row->name);
    switch (event.type) {
    case InputEventType::keyDown:
        text += (event.autorepeat != 0 ? "*" : "+") + name;
        break;
    case InputEventType::keyUp:
        text += "-" + name;
        break;
    case InputEventType::flagsChanged:
        text += "~" + name;
        break;
    case InputEventType::systemDefined:
        if (!event.systemDefined || event.systemDefined->subtype != SystemDefinedFields::mediaKeySubtype)
            return text + "system?";
        text += event.systemDefined->isDown() ? (event.systemDefined->isRepeat() ? "*media" : "+media") : "-media";
        text += std::to_string(event.systemDefined->keyType());
        break;
    case InputEventType::tapDisabledByTimeout:
    case InputEventType::tapDisabledByUserInput:
        return text + "disabled";
    }
    if (event.flags == EventFlags::none)
        return text;
    text += "/";
    if (containsAll(event.flags, EventFlags::shift))
        text += "S";
    if (containsAll(event.flags, EventFlags::control))
        text += "C";
    if (containsAll(event.flags, EventFlags::option))
        text += "O";
    if (containsAll(event.flags, EventFlags::command))
        text += "M";
    return text;
}

/// Appends a word to a sentence.
inline void append(std::string& sentence, const std::string& word)
{
    if (!sentence.empty())
        sentence += ' ';
    sentence += word;
}

} // namespace tarvin::x11
