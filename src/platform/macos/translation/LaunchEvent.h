#pragma once

#include <cstdint>
#include <optional>

namespace tarvin::macos {

/// The Apple event with which the system opened the program. Codes are four letters each.
struct LaunchEvent
{
    std::uint32_t eventId = 0;
    std::optional<std::uint32_t> openedAs; ///< what the event says of the reason; absent where it says nothing
};

/// Under what keyword the event says why it was sent.
inline constexpr std::uint32_t openedAsKeyword = 0x70726474; // prdt

/// The event that asks the running program to come forward: it was started again, or its icon was clicked.
inline constexpr std::uint32_t coreEventClass = 0x61657674; // aevt
inline constexpr std::uint32_t reopenApplication = 0x72617070; // rapp

[[nodiscard]] bool isLoginItemStart(const std::optional<LaunchEvent>& event) noexcept;

} // namespace tarvin::macos
