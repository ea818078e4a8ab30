#pragma once

#include <cstdint>
#include <optional>

namespace tarvin::macos {

// The names of what is read, written and pressed in other applications.

namespace attribute {

inline constexpr const char* children = "AXChildren";
inline constexpr const char* focusedWindow = "AXFocusedWindow";
inline constexpr const char* fullScreen = "AXFullScreen";
inline constexpr const char* fullScreenButton = "AXFullScreenButton";
inline constexpr const char* menuBar = "AXMenuBar";
inline constexpr const char* minimizeButton = "AXMinimizeButton";
inline constexpr const char* minimized = "AXMinimized";
inline constexpr const char* position = "AXPosition";
inline constexpr const char* size = "AXSize";
inline constexpr const char* title = "AXTitle";
inline constexpr const char* windows = "AXWindows";

} // namespace attribute

inline constexpr const char* pressAction = "AXPress";
inline constexpr const char* promptOption = "AXTrustedCheckOptionPrompt";

/// How a call ended: 0 is success, every other number some reason why not.
[[nodiscard]] constexpr bool succeeded(std::int32_t error) noexcept
{
    return error == 0;
}

/// What was read, if the reading succeeded and the value was of the kind that was asked for.
template <typename Value>
[[nodiscard]] constexpr std::optional<Value> readValue(std::int32_t error, std::optional<Value> value)
{
    return succeeded(error) ? std::move(value) : std::nullopt;
}

} // namespace tarvin::macos
