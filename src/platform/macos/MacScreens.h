#pragma once

#include "platform/ports/Screens.h"

namespace tarvin::macos {

/// The displays as the toolkit lists them, turned over by the primary one. Main thread only.
class MacScreens final : public Screens
{
public:
    [[nodiscard]] std::vector<Screen> screens() const override;
    [[nodiscard]] std::optional<Screen> mainScreen() const override;
};

/// The frame height of the primary display, by which points are turned over; 0 where there is none.
[[nodiscard]] double primaryScreenHeight();

} // namespace tarvin::macos
