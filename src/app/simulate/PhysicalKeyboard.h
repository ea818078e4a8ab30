#pragma once

#include "app/simulate/Instruction.h"

#include <functional>
#include <vector>

namespace tarvin::simulated {
class SimulatedPlatform;
}

namespace tarvin::simulate {

/// A keyboard whose presses take the road of real ones: the hardware value first, then the HID tap, the session tap and
/// at last the application in front, each on a turn of its own and only as far as nothing consumes the event.
class PhysicalKeyboard
{
public:
    /// How a held key repeats, as desktops usually have it.
    static constexpr simulated::VirtualTime repeatDelay = std::chrono::milliseconds(500);
    static constexpr simulated::VirtualTime repeatInterval = std::chrono::milliseconds(100);

    explicit PhysicalKeyboard(simulated::SimulatedPlatform& platform);

    /// Presses now, and lets repeats and the release follow in their time. Presses may overlap.
    void press(const PressKey& press);

private:
    struct Report
    {
        std::optional<HidValue> hid{};
        InputEvent event{};
    };

    void report(const Report& report);
    void offerToHidTap(const InputEvent& event);
    void offerToSessionTap(const InputEvent& event);
    void offerToFrontApplication(const InputEvent& event);
    void later(simulated::VirtualTime delay, const Report& what);

    simulated::SimulatedPlatform& m_platform;
};

} // namespace tarvin::simulate
