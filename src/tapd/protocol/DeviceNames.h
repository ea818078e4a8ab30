#pragma once

#include <string_view>

namespace tarvin::tapd {

/// The devices that the daemon makes, by the names under which sessions know them.
inline constexpr std::string_view internalOutputName = "Tarvin internal keyboard";
inline constexpr std::string_view externalOutputName = "Tarvin keyboard";
/// What comes from here was not typed: the application posted it.
inline constexpr std::string_view postingDeviceName = "Tarvin posted keys";

} // namespace tarvin::tapd
