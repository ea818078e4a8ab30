#pragma once

#include "platform/linux/x11/HeldKeys.h"
#include "platform/linux/x11/KeyEvents.h"
#include "platform/linux/x11/PublishedKeys.h"
#include "platform/linux/x11/XTypes.h"
#include "platform/ports/InputEvent.h"

#include <cstdint>
#include <map>
#include <variant>
#include <vector>

namespace tarvin::x11 {

/// Whom an event is for.
enum class Audience : std::uint8_t {
    tap, ///< the press was taken from the applications; the tap's verdict on it counts
    tapWatching, ///< the tap sees it, the applications have it, the verdict does not count
    globalMonitor,
};

/// An event for the main thread.
struct Delivery
{
    Audience audience = Audience::tap;
    Keycode keycode = 0;
    InputEvent event;
    KeyMotion motion = KeyMotion::press;
    PressId press = 0; ///< of events for `Audience::tap`, else 0
};

/// Our grab of a keyboard, which began with a press of one of our keys, is to end so that its other keys work.
struct EndGrab
{
    DeviceId device = 0;
    friend bool operator==(const EndGrab&, const EndGrab&) = default;
};

/// A key without a meaning is to be tapped. A press was taken while Alt or Super is held, and applications and desktops
/// would read the modifier's release as a tap of its own: a menu bar takes the keyboard, an overview opens.
struct CoverModifiers
{
    friend bool operator==(const CoverModifiers&, const CoverModifiers&) = default;
};

using Effect = std::variant<Delivery, FakeKey, EndGrab, CoverModifiers>;
using Effects = std::vector<Effect>;

/// What a decision about a key depends on, besides the keys that are held.
struct Situation
{
    PublishedKeys published;
    bool isTapEnabled = false;
    bool hasGlobalMonitor = false;
    bool isStudioActive = false; ///< only then are keys that nobody customises told to anyone
    EventFlags flags = EventFlags::none; ///< of the modifiers as the applications know them, before the event
};

/// Decides what becomes of each key event that the X server tells us of.
///
/// The server reports a press that one of our grabs took as a grabbed press; until that grab is ended, everything else
/// on that keyboard is reported as grabbed too, and reaches nobody but us. Everything else comes as raw presses and
/// releases, after the fact. A press of ours comes raw first and then grabbed, its release comes whichever way is open.
///
/// Each press that is under way has one fate:
///
///     consumed    taken from the applications and given to the tap
///     reposted    taken, then given to the applications after all by a faked press
///     passed      never taken
///
/// and its release follows the fate, whatever is published by then.
class PressRouter
{
public:
    /// @param lastPress the name of the last press before; names are never given twice
    explicit PressRouter(PressId lastPress = 0)
        : m_lastPress(lastPress)
    { }

    [[nodiscard]] Effects grabbedPress(PhysicalKey key, KeyMotion motion, const Situation& now);
    [[nodiscard]] Effects grabbedRelease(PhysicalKey key, const Situation& now);
    /// A press on a keyboard that is not grabbed, or by another program's faking.
    [[nodiscard]] Effects rawPress(PhysicalKey key, const Situation& now);
    [[nodiscard]] Effects rawRelease(PhysicalKey key, const Situation& now);
    /// The keyboard has gone, and with it what was held on it.
    [[nodiscard]] Effects deviceGone(DeviceId device, const Situation& now);
    /// The server has gone.
    [[nodiscard]] Effects everythingGone(const Situation& now);
    /// The tap's verdict on a press that was taken: it should have passed.
    [[nodiscard]] Effects repost(PressId press, Keycode keycode);
    /// The keys that were down when we came.
    void adopt(const KeycodeSet& down);

    [[nodiscard]] PressId lastPress() const { return m_lastPress; }
    [[nodiscard]] const HeldKeys& heldKeys() const { return m_held; }
    /// Whether a press of this key, taken by a grab, is for the tap.
    [[nodiscard]] static bool isWanted(Keycode keycode, const Situation& now);

private:
    enum class Fate : std::uint8_t { consumed, reposted, passed };
    struct Press
    {
        Fate fate = Fate::passed;
        PressId id = 0; ///< 0 unless the tap was told of the press
    };

    [[nodiscard]] Effects release(PhysicalKey key, bool applicationsSawIt, const Situation& now);
    void watch(PhysicalKey key, KeyMotion motion, const Situation& now, Effects& effects) const;
    [[nodiscard]] EventFlags flagsAfter(PhysicalKey key, KeyMotion motion, const Situation& now) const;
    static void tellTap(Keycode keycode, KeyMotion motion, EventFlags flags, PressId press, Effects& effects);

    std::map<PhysicalKey, Press> m_presses;
    HeldKeys m_held;
    PressId m_lastPress;
};

} // namespace tarvin::x11
