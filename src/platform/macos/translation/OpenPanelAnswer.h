#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace tarvin::macos {

/// What a panel ends with when the user confirms; every other number means that nothing was chosen.
inline constexpr std::int64_t confirmedResponse = 1;

/// What the user chose in a panel. One that was cancelled may still have a path: that of what was selected last.
[[nodiscard]] inline std::optional<QString> chosenPath(std::int64_t response, const std::optional<QString>& path)
{
    return response == confirmedResponse ? path : std::nullopt;
}

} // namespace tarvin::macos
