#include "platform/macos/translation/ScreenFlip.h"

namespace tarvin::macos {

Point flipped(Point point, double primaryHeight) noexcept
{
    return {.x = point.x, .y = primaryHeight - point.y};
}

Rect flipped(const Rect& rect, double primaryHeight) noexcept
{
    return {.origin = {.x = rect.origin.x, .y = primaryHeight - (rect.origin.y + rect.size.height)}, .size = rect.size};
}

Point pointerPosition(Point fromBottom, std::optional<double> mainScreenHeight) noexcept
{
    return flipped(fromBottom, mainScreenHeight.value_or(heightWithoutScreen));
}

} // namespace tarvin::macos
