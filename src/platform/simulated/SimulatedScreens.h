#pragma once

#include "platform/ports/Screens.h"

#include <cstddef>

namespace tarvin::simulated {

/// The displays as they were told; one with a menu bar at first.
class SimulatedScreens final : public Screens
{
public:
    [[nodiscard]] std::vector<Screen> screens() const override { return m_screens; }
    [[nodiscard]] std::optional<Screen> mainScreen() const override;

    /// The primary display first; its is the keyboard.
    void setScreens(std::vector<Screen> screens);
    /// Gives the keyboard to another display, by its place in the list; nothing: the first.
    void setMainScreen(std::optional<std::size_t> place) { m_main = place.value_or(0); }

private:
    std::vector<Screen> m_screens{{.frame = {{0, 0}, {1440, 900}}, .visibleFrame = {{0, 25}, {1440, 875}}}};
    std::size_t m_main = 0;
};

} // namespace tarvin::simulated
