#pragma once

#include <optional>

namespace tarvin::macos {

/// Where the function that reads the brightness of a display is found at run time.
inline constexpr const char* brightnessFramework =
    "/System/Library/PrivateFrameworks/DisplayServices.framework/DisplayServices";
inline constexpr const char* brightnessFunction = "DisplayServicesGetBrightness";

/// What stands in the place of the result before the function is called. A display without brightness leaves it there.
inline constexpr float brightnessNotRead = -1;

/// @return nothing for a value that is no brightness
[[nodiscard]] constexpr std::optional<double> brightnessOf(float read) noexcept
{
    return read >= 0 && read <= 1 ? std::optional<double>(read) : std::nullopt;
}

} // namespace tarvin::macos
