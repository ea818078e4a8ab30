#pragma once

#include "platform/linux/x11/ModifierMasks.h"
#include "platform/linux/x11/XTypes.h"
#include "platform/ports/EventFlags.h"

#include <array>
#include <vector>

namespace tarvin::x11 {

/// The modifier keys of the present keymap.
struct ModifierKeys
{
    ModifierMasks masks;
    std::array<ModifierMask, keycodeCount> maskOf{}; ///< what each key holds while it is down; 0 for ordinary keys
    /// The key to fake for each flag; 0 where there is none.
    Keycode shift = 0;
    Keycode control = 0;
    Keycode option = 0;
    Keycode command = 0;
    Keycode blank = 0; ///< a key that types nothing and holds nothing; 0 where there is none
};

/// Gives faked keystrokes exactly the modifiers they ask for, whatever the user holds, and leaves everything as it was.
///
/// A modifier key that the user holds and the stroke must not have is lifted by a faked release: the applications see
/// it go up. After the last stroke it is put down again by a faked press, if the user still holds it. The user's own
/// release then ends it for the applications; the faking device is released as well, or its next press would be lost.
/// Alt and Super are lifted and put down under cover of a key that means nothing, or a menu bar would take their going
/// up for a tap.
///
///     pressed    down by us alone, for a flag
///     lifted     held by the user, up for the applications
///     restored   held by the user, down for the applications and on the faking device
class ExactModifiers
{
public:
    using FakeKeys = std::vector<FakeKey>;

    /// What to fake before an event that carries @p flags.
    /// @param down the keys that are down for the applications
    /// @param heldByUser the keys that are down on a keyboard
    [[nodiscard]] FakeKeys prepare(
        EventFlags flags, const KeycodeSet& down, const KeycodeSet& heldByUser, const ModifierKeys& keys);
    /// What to fake when no stroke is under way any more.
    [[nodiscard]] FakeKeys finish(const KeycodeSet& heldByUser, const ModifierKeys& keys);
    /// The user let go of a key.
    [[nodiscard]] FakeKeys noteUserRelease(Keycode keycode);
    /// What to fake so that nothing of ours stays down, even if the user holds it.
    [[nodiscard]] FakeKeys abandon();

private:
    void lift(Keycode keycode, bool isHeldByUser, FakeKeys& fakes);
    void hold(Keycode keycode, bool isHeldByUser, FakeKeys& fakes);

    KeycodeSet m_pressed;
    KeycodeSet m_lifted;
    KeycodeSet m_restored;
};

} // namespace tarvin::x11
