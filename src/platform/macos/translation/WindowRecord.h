#pragma once

#include "platform/ports/Workspace.h"

#include <cstdint>
#include <optional>

namespace tarvin::macos {

/// One row of the window list, as far as it could be read.
struct WindowRecord
{
    std::optional<std::int64_t> owner;
    std::optional<std::int64_t> layer;
    std::optional<Size> size;
};

/// The keys of a row, and of the bounds in it.
inline constexpr const char* windowOwnerKey = "kCGWindowOwnerPID";
inline constexpr const char* windowLayerKey = "kCGWindowLayer";
inline constexpr const char* windowBoundsKey = "kCGWindowBounds";
inline constexpr const char* boundsWidthKey = "Width";
inline constexpr const char* boundsHeightKey = "Height";

/// Only windows that are on the screens, without the elements of the desktop.
inline constexpr std::uint32_t windowListOptions = 17;

/// A row without owner counts as one of process 0, and one without bounds as empty.
[[nodiscard]] OnScreenWindow onScreenWindowOf(const WindowRecord& record) noexcept;

} // namespace tarvin::macos
