#include "platform/macos/translation/WindowRecord.h"

namespace tarvin::macos {

OnScreenWindow onScreenWindowOf(const WindowRecord& record) noexcept
{
    OnScreenWindow window{.owner = static_cast<ProcessIdentifier>(record.owner.value_or(0)),
        .layer = {},
        .size = record.size.value_or(Size{})};
    if (record.layer)
        window.layer = static_cast<int>(*record.layer);
    return window;
}

} // namespace tarvin::macos
