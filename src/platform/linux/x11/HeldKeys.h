#pragma once

#include "platform/linux/x11/XTypes.h"

#include <set>

namespace tarvin::x11 {

/// The keys that are down on any keyboard and that the applications know to be down. Never leaves the input thread.
class HeldKeys
{
public:
    /// Stands for a keyboard that held the key before we were there to see which.
    static constexpr DeviceId unknownDevice = 0;

    void press(PhysicalKey key) { m_held.insert(key); }
    /// Also ends what an unknown device holds.
    void release(PhysicalKey key);
    void removeDevice(DeviceId device);
    void clear() { m_held.clear(); }

    [[nodiscard]] KeycodeSet keycodes() const;
    /// Whether the key's flag stays when it goes up: for its twin on the other side, or another keyboard's.
    [[nodiscard]] bool isFlagHeldBesides(PhysicalKey key) const;

private:
    std::set<PhysicalKey> m_held;
};

} // namespace tarvin::x11
