#include "platform/simulated/SimulatedScreens.h"

#include <utility>

namespace tarvin::simulated {

std::optional<Screen> SimulatedScreens::mainScreen() const
{
    return m_main < m_screens.size() ? std::optional(m_screens[m_main]) : std::nullopt;
}

void SimulatedScreens::setScreens(std::vector<Screen> screens)
{
    m_screens = std::move(screens);
    m_main = 0;
}

} // namespace tarvin::simulated
