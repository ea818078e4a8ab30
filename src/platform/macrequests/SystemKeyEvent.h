#pragma once

#include "platform/ports/InputEvent.h"
#include "platform/ports/SystemKeys.h"

#include <cstdint>

namespace tarvin {

/// The system-defined event that presses or releases one of the system's own keys, field by field. It is posted to the
/// session and carries no marker.
struct SystemKeyEvent
{
    InputEventType type = InputEventType::systemDefined;
    std::uint32_t modifierFlags = 0;
    std::int32_t windowNumber = 0;
    std::int16_t subtype = SystemDefinedFields::mediaKeySubtype;
    std::int32_t data1 = 0; ///< the key in bits 16 to 31, the motion below
    std::int32_t data2 = -1;
    friend bool operator==(const SystemKeyEvent&, const SystemKeyEvent&) = default;
};

/// Its location is (0, 0), its time the uptime of the system, its graphics context none.
[[nodiscard]] constexpr SystemKeyEvent systemKeyEvent(SystemKey key, SystemKeyMotion motion) noexcept
{
    const std::uint32_t state = motion == SystemKeyMotion::down ? 0xA00 : 0xB00;
    return {
        .modifierFlags = state, .data1 = static_cast<std::int32_t>((static_cast<std::uint32_t>(key) << 16) | state)};
}

static_assert(systemKeyEvent(SystemKey::mute, SystemKeyMotion::down).data1 == 0x70A00);
static_assert(systemKeyEvent(SystemKey::previous, SystemKeyMotion::up).data1 == 0x140B00);

} // namespace tarvin
