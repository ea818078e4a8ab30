#pragma once

#include "platform/linux/x11/BuiltInKeystrokes.h"
#include "platform/linux/x11/ExactModifiers.h"
#include "platform/linux/x11/KeyboardMap.h"
#include "platform/linux/x11/XTypes.h"
#include "platform/ports/EventPoster.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tarvin::x11 {

/// One half of a keystroke to post.
struct Stroke
{
    DesktopKeystroke keystroke;
    KeyState state = KeyState::down;
    std::int64_t userData = 0; ///< of the main key; the modifiers around it are marked as our own
};

/// A key event to fake, and what it carries when it is seen again.
struct MarkedFake
{
    FakeKey key;
    std::int64_t userData = 0;
    friend bool operator==(const MarkedFake&, const MarkedFake&) = default;
};

/// The keyboard at the moment of a stroke.
struct KeyboardMoment
{
    const KeyboardMap& map;
    std::uint8_t layout = 0;
    KeycodeSet down; ///< for the applications
    KeycodeSet heldByUser; ///< on any keyboard
};

/// Turns posted keystrokes into the key events to fake.
///
/// Strokes may overlap. The modifiers are made exact before each half and given back after the last.
class StrokePlayer
{
public:
    using Fakes = std::vector<MarkedFake>;

    /// Empty for a key that this keymap does not have, and for the second half of a stroke that never began.
    [[nodiscard]] Fakes play(const Stroke& stroke, const KeyboardMoment& moment);
    /// The user let go of a key.
    [[nodiscard]] Fakes noteUserRelease(Keycode keycode);
    /// What to fake so that nothing of ours stays down.
    [[nodiscard]] Fakes abandon();

private:
    struct OpenStroke
    {
        DesktopKeystroke keystroke;
        Keycode keycode = 0;
    };

    void begin(const Stroke& stroke, Keycode keycode, const KeyboardMoment& moment, Fakes& fakes);
    void end(const Stroke& stroke, const KeyboardMoment& moment, Fakes& fakes);

    ExactModifiers m_modifiers;
    std::vector<OpenStroke> m_open;
};

} // namespace tarvin::x11
