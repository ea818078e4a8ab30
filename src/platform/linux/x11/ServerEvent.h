#pragma once

#include "platform/linux/x11/KeyEvents.h"
#include "platform/linux/x11/XTypes.h"

#include <variant>

namespace tarvin::x11 {

/// A key event that only we get, because a grab of ours is at work on its keyboard.
struct GrabbedKey
{
    PhysicalKey key;
    KeyMotion motion = KeyMotion::press;
};

/// A key event as the server tells it to anyone who asks, whoever gets it in the end. There are no raw repeats.
struct RawKey
{
    PhysicalKey key; ///< on the keyboard that made it
    KeyMotion motion = KeyMotion::press;
    ServerTime time = 0;
};

/// A keyboard came or went.
struct KeyboardChange
{
    enum class Kind : std::uint8_t { came, went };

    DeviceId device = 0;
    Kind kind = Kind::came;
};

/// The modifiers as the applications know them, and the layout.
struct ModifierState
{
    ModifierMask effective = 0;
    std::uint8_t layout = 0;
};

/// The keymap may be another one now.
struct KeymapChange
{ };

struct ServerEvent
{
    RequestSequence request = 0; ///< the last of our requests that the server had worked on
    std::variant<GrabbedKey, RawKey, KeyboardChange, ModifierState, KeymapChange> content;
};

} // namespace tarvin::x11
