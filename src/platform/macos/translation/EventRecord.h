#pragma once

#include "platform/ports/InputEvent.h"

#include <cstdint>
#include <optional>

namespace tarvin::macos {

/// What a keyboard event of the system says, in the system's own numbers, whether it came from a tap or from a monitor.
struct EventRecord
{
    std::uint32_t type = 0;
    std::int64_t keyCode = 0;
    std::uint64_t flags = 0; ///< with the bits that tell left from right, and others that nobody here asks for
    std::int64_t autorepeat = 0;
    std::int64_t userData = 0;

    /// Beyond that, what only a system-defined event has.
    struct SystemDefined
    {
        std::int64_t subtype = 0;
        std::int64_t data1 = 0;
    };
    std::optional<SystemDefined> systemDefined{}; ///< absent where the event could not be read as one
};

/// The fields of an event record, by the numbers that the system gives them.
inline constexpr std::uint32_t autorepeatField = 8;
inline constexpr std::uint32_t keyCodeField = 9;
inline constexpr std::uint32_t userDataField = 42;

/// The modifiers that the program knows; every other bit is dropped.
[[nodiscard]] EventFlags eventFlagsOf(std::uint64_t flags) noexcept;

/// @return nothing for a type that no input path asks for
[[nodiscard]] std::optional<InputEventType> eventTypeOf(std::uint32_t type) noexcept;

/// @return nothing for a type that no input path asks for
[[nodiscard]] std::optional<InputEvent> inputEventOf(const EventRecord& record) noexcept;

} // namespace tarvin::macos
