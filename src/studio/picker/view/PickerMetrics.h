#pragma once

#include "ui/Motion.h"

/// Places that several parts of the picker keep to, in logical pixels.
namespace tarvin::pickermetrics {

inline constexpr int paneWidth = 330;
inline constexpr int headerHeight = 56;
inline constexpr int footerHeight = 44;
inline constexpr int dividerHeight = 1;
inline constexpr int sideInset = 18; ///< of header, banner and footer

inline constexpr int listInset = 20; ///< of everything in the list, at the leading side
inline constexpr int rowWidth = 296; ///< leaves 14 for the scroll bar
inline constexpr int bodyInset = 20; ///< of what opens under a row, from the row's edge
inline constexpr int bodyWidth = 268;

/// Of everything that follows a choice.
inline constexpr Motion choiceMotion = Motion::spring(0.25, 0.8);

} // namespace tarvin::pickermetrics
