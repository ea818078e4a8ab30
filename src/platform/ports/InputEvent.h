#pragma once

#include "platform/ports/EventFlags.h"

#include <cstdint>
#include <optional>

namespace tarvin {

/// A virtual key code in the numbering of macOS, which the program speaks on every platform (A is 0, F5 is 96).
using KeyCode = std::uint16_t;

/// Event types, with the numbers of the macOS event record. The last two are not keyboard events: the system says with
/// them that it has switched a tap off.
enum class InputEventType : std::uint32_t {
    keyDown = 10,
    keyUp = 11,
    flagsChanged = 12,
    systemDefined = 14,
    tapDisabledByTimeout = 0xFFFFFFFE,
    tapDisabledByUserInput = 0xFFFFFFFF,
};

/// The types that every input path asks for: key down, key up, flags changed and system defined.
inline constexpr std::uint32_t inputEventMask = 0x5C00;

/// The four ASCII letters TRVN. Every key event that the program posts carries it as its user data.
inline constexpr std::int64_t selfPostedMarker = 0x5452564E;

/// What a system-defined event says beyond the common fields.
struct SystemDefinedFields
{
    /// Subtype 8 is a media key.
    static constexpr std::int16_t mediaKeySubtype = 8;

    std::int16_t subtype = 0;
    std::uint32_t data1 = 0; ///< bits 16 to 31 key type, bits 8 to 15 key state (0x0A is down), bit 0 repeat

    [[nodiscard]] constexpr int keyType() const noexcept { return static_cast<int>(data1 >> 16); }
    [[nodiscard]] constexpr bool isDown() const noexcept { return ((data1 >> 8) & 0xFF) == 0x0A; }
    [[nodiscard]] constexpr bool isRepeat() const noexcept { return (data1 & 1) != 0; }
};

/// One event of any of the four input paths. A plain value, copied freely between threads.
struct InputEvent
{
    InputEventType type = InputEventType::keyDown;
    KeyCode keyCode = 0;
    EventFlags flags = EventFlags::none;
    std::int64_t autorepeat = 0; ///< non-zero for the repeats of a held key
    std::int64_t userData = 0; ///< `selfPostedMarker` on events of our own
    /// Present on system-defined events that the platform could translate.
    std::optional<SystemDefinedFields> systemDefined{};

    [[nodiscard]] constexpr bool isSelfPosted() const noexcept { return userData == selfPostedMarker; }
};

} // namespace tarvin
