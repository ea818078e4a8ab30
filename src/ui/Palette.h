#pragma once

#include "ui/Colour.h"

/// The named colours of the interface, each in one place.
namespace tarvin::palette {

inline constexpr Colour mintTeal{0.0, 0.94, 0.71};
inline constexpr Colour white{1.0, 1.0, 1.0};
inline constexpr Colour black{0.0, 0.0, 0.0};
inline constexpr Colour orange{1.0, 0.62, 0.04};
inline constexpr Colour green{0.19, 0.82, 0.35};
inline constexpr Colour red{1.0, 0.27, 0.23};
inline constexpr Colour gray{0.56, 0.56, 0.58};

inline constexpr Colour electricCyan{0.0, 0.82, 1.0};
inline constexpr Colour cyberViolet{0.54, 0.2, 0.95};

/// Behind the main column.
inline constexpr Colour windowBackground{0.09, 0.09, 0.11};
/// Header and footer.
inline constexpr Colour barBackground{0.105, 0.105, 0.125};
/// The picker, and the slab of each keycap.
inline constexpr Colour panelBackground{0.08, 0.08, 0.09};
/// The line between two areas.
inline constexpr Colour hairline = white.at(0.06);
/// Plates of small outlined buttons.
inline constexpr Colour buttonFill = white.at(0.04);
inline constexpr Colour buttonStroke = white.at(0.09);

} // namespace tarvin::palette
