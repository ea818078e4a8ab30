#include "platform/linux/x11/HeldKeys.h"

#include "platform/linux/x11/KeyEvents.h"

#include <algorithm>

namespace tarvin::x11 {

void HeldKeys::release(PhysicalKey key)
{
    m_held.erase(key);
    m_held.erase({.device = unknownDevice, .keycode = key.keycode});
}

void HeldKeys::removeDevice(DeviceId device)
{
    std::erase_if(m_held, [device](const PhysicalKey& held) { return held.device == device; });
}

KeycodeSet HeldKeys::keycodes() const
{
    KeycodeSet keycodes;
    for (const PhysicalKey& held : m_held)
        keycodes.set(held.keycode);
    return keycodes;
}

bool HeldKeys::isFlagHeldBesides(PhysicalKey key) const
{
    const EventFlags flag = ownFlagOf(key.keycode);
    return std::ranges::any_of(
        m_held, [&](const PhysicalKey& held) { return held != key && ownFlagOf(held.keycode) == flag; });
}

} // namespace tarvin::x11
