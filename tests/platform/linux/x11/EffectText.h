#pragma once

#include "platform/linux/x11/EventText.h"
#include "platform/linux/x11/PressRouter.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <variant>

namespace tarvin::x11 {

/// A key to fake in a word: "+a", "-a"; a key without a name of ours is "#" and its keycode.
[[nodiscard]] inline std::string textOf(FakeKey key)
{
    const KeyCodeRow* const row = keyRowOfXKeycode(key.keycode);
    return (key.motion == FakeMotion::press ? "+" : "-")
        + (row == nullptr ? "#" + std::to_string(key.keycode) : std::string(row->name));
}

/// What is to be done, in the order in which it is to be done: "end7 tap(+f5) watch(+a) monitor(+f5) fake(+a) cover".
[[nodiscard]] inline std::string textOf(const Effects& effects)
{
    std::string text;
    for (const Effect& effect : effects) {
        if (const auto* const delivery = std::get_if<Delivery>(&effect)) {
            const char* const audience = delivery->audience == Audience::tap ? "tap("
                : delivery->audience == Audience::tapWatching                ? "watch("
                                                                             : "monitor(";
            append(text, audience + textOf(delivery->event) + ")");
        } else if (const auto* const fake = std::get_if<FakeKey>(&effect)) {
            append(text, "fake(" + textOf(*fake) + ")");
        } else if (const auto* const end = std::get_if<EndGrab>(&effect)) {
            append(text, "end" + std::to_string(end->device));
        } else {
            append(text, "cover");
        }
    }
    return text;
}

/// The X keycode of a key of the table.
[[nodiscard]] inline Keycode keycodeNamed(std::string_view name)
{
    const auto* const row = std::ranges::find(keyCodeTable, name, &KeyCodeRow::name);
    return row == keyCodeTable.end() ? Keycode{0} : xKeycodeOf(*row).value_or(0);
}

} // namespace tarvin::x11
