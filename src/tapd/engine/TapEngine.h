#pragma once

#include "tapd/engine/KeyBits.h"
#include "tapd/engine/OutputKeys.h"
#include "tapd/engine/TapOutcome.h"
#include "tapd/engine/WayOutDetector.h"

#include <linux/input.h>

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <span>

namespace tarvin::tapd {

/// Names a grabbed keyboard. Never given twice.
using KeyboardId = std::uint32_t;

/// The re-emitting devices. A laptop's own keyboard has one of its own, because desktops switch a touchpad off while
/// such a keyboard is used, and know it by its bus.
enum class Output : std::uint8_t { internal, external };
inline constexpr std::size_t outputCount = 2;

/// What is taken from the system now.
struct TakenSet
{
    std::uint32_t keys = 0; ///< bit n: the customisable key of order n
    bool takesSummon = false;
    [[nodiscard]] bool isEmpty() const { return keys == 0 && !takesSummon; }
    friend bool operator==(const TakenSet&, const TakenSet&) = default;
};

/// Decides on each event of each grabbed keyboard, by what is published at that moment and without asking anybody. It
/// knows no device and no clock: events carry their time.
///
/// A key that is held has one of two fates, and its repeats and its release follow it, whatever is published by then:
///
///     passed   the system has seen the press and will see the rest
///     taken    the application has been told of the press, the system knows nothing
///
/// Scan codes go to the application with the key that was taken, and to nobody else: no program of a session looks at
/// them, and the kernel would hand each one back to us, which costs two system calls.
///
/// Nothing is allocated for an event.
class TapEngine
{
public:
    void publish(const TakenSet& taken) { m_taken = taken; }
    [[nodiscard]] const TakenSet& published() const { return m_taken; }

    /// A keyboard on which no key is held.
    [[nodiscard]] KeyboardId attach(Output output);
    /// The keyboard has gone, or is to be the system's again: what is held on it goes up.
    void detach(KeyboardId id, TapOutcome& outcome);
    [[nodiscard]] Output outputOf(KeyboardId keyboard) const { return m_keyboards.at(keyboard).output; }

    /// Takes what one read of the keyboard gave.
    void feed(KeyboardId id, std::span<const input_event> events, TapOutcome& outcome);
    /// The kernel has lost events of this keyboard. What it still sends means nothing until `resynchronise`.
    [[nodiscard]] bool isOutOfStep(KeyboardId keyboard) const { return m_keyboards.at(keyboard).isOutOfStep; }
    /// @param downNow the keys that are held on the keyboard, as the kernel knows them
    void resynchronise(KeyboardId id, const KeyBits& downNow, EventTime time, TapOutcome& outcome);

    [[nodiscard]] KeyBits heldKeys(KeyboardId keyboard) const
    {
        return m_keyboards.at(keyboard).passed | m_keyboards.at(keyboard).taken;
    }
    /// Whether nothing is held on the keyboard, so that giving it back would go unnoticed.
    [[nodiscard]] bool isAtRest(KeyboardId id) const;
    [[nodiscard]] bool isAnyAttached() const { return !m_keyboards.empty(); }

    /// When to ask `isWayOutDue`; empty while nobody is about to take the way out.
    [[nodiscard]] std::optional<EventTime> wayOutDeadline() const;
    [[nodiscard]] bool isWayOutDue(EventTime now) const;

private:
    struct Keyboard
    {
        Output output = Output::external;
        KeyBits passed;
        KeyBits taken;
        WayOutDetector wayOut;
        std::optional<std::int32_t> scan; ///< of the key event that follows it
        bool hasOpenReport = false; ///< something was emitted since the last report ended
        bool isOutOfStep = false;
    };

    void handleKey(Keyboard& keyboard, std::uint16_t code, std::int32_t value, TapOutcome& outcome);
    void press(Keyboard& keyboard, std::uint16_t code, TapOutcome& outcome);
    void release(Keyboard& keyboard, std::uint16_t code, TapOutcome& outcome);
    static void pass(Keyboard& keyboard, std::uint16_t code, std::int32_t value, TapOutcome& outcome);
    static void take(const Keyboard& keyboard, std::uint16_t code, std::int32_t value, TapOutcome& outcome);
    static void endReport(Keyboard& keyboard, TapOutcome& outcome);
    void coverModifiers(Keyboard& keyboard, TapOutcome& outcome) const;
    [[nodiscard]] bool isToBeTaken(std::uint16_t code) const;
    [[nodiscard]] bool isOptionDown() const;
    [[nodiscard]] bool isCommandDown() const;
    [[nodiscard]] OutputKeys& keysOf(const Keyboard& keyboard)
    {
        return m_outputs[static_cast<std::size_t>(keyboard.output)];
    }

    TakenSet m_taken;
    std::map<KeyboardId, Keyboard> m_keyboards;
    std::array<OutputKeys, outputCount> m_outputs;
    KeyboardId m_lastId = 0;
};

/// When the kernel stamped the event.
[[nodiscard]] inline EventTime timeOf(const input_event& event)
{
    return std::chrono::seconds(event.input_event_sec) + EventTime(event.input_event_usec);
}

} // namespace tarvin::tapd
