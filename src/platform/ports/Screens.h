#pragma once

#include "platform/ports/Geometry.h"

#include <optional>
#include <vector>

namespace tarvin {

/// One display.
struct Screen
{
    Rect frame;
    Rect visibleFrame; ///< what panels, docks and the menu bar leave free
    friend bool operator==(const Screen&, const Screen&) = default;
};

/// The displays of the session, in the coordinates of `Geometry.h`. Main thread only.
class Screens
{
public:
    virtual ~Screens() = default;
    /// The primary display first; empty where there is none.
    [[nodiscard]] virtual std::vector<Screen> screens() const = 0;
    /// The display with the window that has the keyboard; nothing where there is none.
    [[nodiscard]] virtual std::optional<Screen> mainScreen() const = 0;
};

} // namespace tarvin
