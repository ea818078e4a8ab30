#pragma once

#include "fuzz/support/Chance.h"
#include "interception/support/InterceptionDesktop.h"
#include "model/FKeySet.h"

#include <array>
#include <chrono>
#include <map>

namespace tarvin::test {

/// A keyboard whose every motion is told by the hardware path and by the road of the event, each in its own time, as
/// real ones are. The event goes on until somebody consumes it: HID tap, session tap, then the monitor of whoever has
/// the keyboard.
class FuzzedKeyboard
{
public:
    FuzzedKeyboard(InterceptionDesktop& desktop, Chance& chance);

    /// Gives the keys, in the profile being edited, actions by which their firings are known.
    void map(FKeySet keys);
    /// How long a report is under way at most from now on.
    void setLongestDelay(std::chrono::milliseconds delay) { m_longestDelay = delay; }

    void press(FKey key);
    void repeat(FKey key);
    void release(FKey key);
    void releaseEverything();
    /// The left-hand key that shares its flag with a right-hand modifier.
    void setLeftTwinHeld(FKey rightModifier, bool held);
    /// Waits until every report has arrived.
    void settle();

    [[nodiscard]] FKeySet heldKeys() const { return m_held; }
    [[nodiscard]] int firings(FKey key) const { return m_firings[orderOf(key)]; }
    /// The keys that have fired since the last report that ends a press reached the interception. Nothing else may be
    /// held there.
    [[nodiscard]] FKeySet unendedKeys() const { return m_unended; }
    /// The session tap's or the HID tap's verdict was not what the published keys say.
    [[nodiscard]] int brokenPromises() const { return m_brokenPromises; }

    /// Offers any event at all to a tap, and checks the verdict.
    EventVerdict offer(TapLocation location, const InputEvent& event);

private:
    enum class Road { hardware, event };

    void report(FKey key, KeyMotion motion);
    void later(Road road, FKey key, std::function<void()> delivery);
    void deliverHardware(FKey key, bool isDown);
    void deliverEvent(FKey key, const InputEvent& event, bool endsThePress);
    [[nodiscard]] InputEvent eventOf(FKey key, KeyMotion motion) const;
    [[nodiscard]] EventFlags flags() const;
    [[nodiscard]] bool isInterceptionEnabled() const { return m_desktop.profile.isInterceptionEnabled(); }

    InterceptionDesktop& m_desktop;
    Chance& m_chance;
    std::chrono::milliseconds m_longestDelay{0};
    FKeySet m_held;
    FKeySet m_heldTwins; ///< by their right-hand keys
    FKeySet m_asMedia; ///< the held keys whose press was a media event
    FKeySet m_unended;
    std::array<int, fKeyCount> m_firings{};
    std::map<std::pair<Road, FKey>, simulated::VirtualTime> m_lastArrival; ///< a road keeps the order of its reports
    int m_brokenPromises = 0;
};

} // namespace tarvin::test
