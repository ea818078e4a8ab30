#pragma once

#include "ui/Colour.h"
#include "ui/Palette.h"

/// The grounds of the settings sheet.
namespace tarvin::settingscolours {

inline constexpr Colour body{0.07, 0.07, 0.08};
inline constexpr Colour bar{0.09, 0.09, 0.11}; ///< header and footer
inline constexpr Colour tabBar{0.08, 0.08, 0.09};
inline constexpr Colour card{0.11, 0.11, 0.13};

} // namespace tarvin::settingscolours
