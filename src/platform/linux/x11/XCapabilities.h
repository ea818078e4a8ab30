#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace tarvin::x11 {

/// What an X server offers of that which the input paths need.
struct XCapabilities
{
    std::optional<std::pair<int, int>> xInputVersion; ///< major and minor; absent without the extension
    bool hasTestExtension = false;
    bool hasKeyboardExtension = false;
    bool hasTray = false; ///< some window takes in tray icons
    bool isKeyboardTaken = false; ///< a program has the whole keyboard to itself at this moment
    bool isInsideWayland = false; ///< it shows only the older windows of a Wayland session
};

/// Asks the server that DISPLAY names, by a connection of its own. Whether the keyboard is taken shows only in taking
/// it; it is given back at once.
/// @return nothing where none answers
[[nodiscard]] std::optional<XCapabilities> askXServer();

} // namespace tarvin::x11
