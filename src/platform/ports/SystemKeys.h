#pragma once

#include <cstdint>

namespace tarvin {

/// The keys of a keyboard that speak to the system itself. The values are those of system-defined key events.
enum class SystemKey : std::uint8_t {
    soundUp = 0,
    soundDown = 1,
    brightnessUp = 2,
    brightnessDown = 3,
    mute = 7,
    play = 16,
    next = 19,
    previous = 20,
};

enum class SystemKeyMotion : std::uint8_t { down, up };

/// Presses the system's own keys on the user's behalf. Main thread only; calls return before anything has happened.
///
/// macOS posts the event. Where there is no such event the platform does what the key does, once, on its way down; what
/// it can't do it tells the user itself.
class SystemKeys
{
public:
    virtual ~SystemKeys() = default;
    virtual void post(SystemKey key, SystemKeyMotion motion) = 0;
};

} // namespace tarvin
