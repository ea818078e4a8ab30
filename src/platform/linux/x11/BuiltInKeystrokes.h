#pragma once

#include "platform/ports/EventFlags.h"
#include "platform/ports/InputEvent.h"

#include <cstdint>
#include <string_view>
#include <variant>

namespace tarvin::x11 {

/// What the desktop itself does on macOS when it sees a certain keystroke. Here there is no keystroke for it.
enum class DesktopFunction : std::uint8_t {
    showAllWindows,
    showApplicationWindows,
    previousDesktop,
    nextDesktop,
    showDesktop,
    search,
    lockScreen,
    hideOtherApplications,
    forceQuitDialog,
    dictation,
    doNotDisturb,
};

/// The function's name for a log line.
[[nodiscard]] std::string_view nameOf(DesktopFunction function) noexcept;

/// A keystroke as the applications of this desktop know it.
struct DesktopKeystroke
{
    KeyCode keyCode = 0;
    EventFlags flags = EventFlags::none;
    /// The letter to type, on whatever key the layout has it; 0 where the key's place counts.
    char letter = 0;
    friend bool operator==(const DesktopKeystroke&, const DesktopKeystroke&) = default;
};

/// The second of two keystrokes for the same thing, of which the first is enough.
struct NothingMore
{
    friend bool operator==(const NothingMore&, const NothingMore&) = default;
};

using BuiltInMeaning = std::variant<DesktopKeystroke, DesktopFunction, NothingMore>;

/// What has the keyboard: a terminal emulator keeps Ctrl with C and V for other things.
enum class FrontWindow : std::uint8_t { ordinary, terminal };

/// What a keystroke of a built-in action means here. One without a meaning of its own is posted as it is.
[[nodiscard]] BuiltInMeaning meaningOfBuiltIn(KeyCode keyCode, EventFlags flags, FrontWindow front) noexcept;

} // namespace tarvin::x11
