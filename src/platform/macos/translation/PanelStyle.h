#pragma once

#include "platform/ports/FloatingPanel.h"

#include <cstdint>

namespace tarvin::macos {

/// How a panel's window is made, in the system's numbers.
struct PanelStyle
{
    std::uint64_t styleMask = 128; ///< does not activate the program by being shown, and nothing else
    std::int64_t level = 3; ///< floating
    std::uint64_t collectionBehavior = 0;
    bool hidesOnDeactivate = false;
    friend bool operator==(const PanelStyle&, const PanelStyle&) = default;
};

[[nodiscard]] constexpr PanelStyle panelStyleOf(const PanelTraits& traits) noexcept
{
    constexpr std::uint64_t allSpaces = 1;
    constexpr std::uint64_t overFullScreen = 256;
    return {
        .collectionBehavior = traits.spaces == PanelSpaces::all ? (allSpaces | overFullScreen) : 0,
        .hidesOnDeactivate = traits.deactivation == PanelDeactivation::goesAway,
    };
}

} // namespace tarvin::macos
