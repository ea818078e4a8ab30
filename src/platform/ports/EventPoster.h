#pragma once

#include "platform/ports/Geometry.h"
#include "platform/ports/InputEvent.h"
#include "platform/ports/InputTaps.h"

#include <optional>

namespace tarvin {

enum class KeyState { up, down };

/// Where a keystroke comes from. A platform whose applications know other keystrokes for the same thing translates the
/// program's own; what the user recorded goes out as recorded.
enum class KeystrokeOrigin { builtIn, recorded };

/// One synthetic key event, ready to post.
struct SyntheticKey
{
    KeyCode keyCode = 0;
    KeyState state = KeyState::down;
    EventFlags flags = EventFlags::none; ///< exactly the modifiers the event carries; held keys are not merged in
    std::int64_t userData = 0;
    KeystrokeOrigin origin = KeystrokeOrigin::recorded;
};

/// One synthetic event of the secondary mouse button.
struct SyntheticClick
{
    Point position; ///< top-left origin, logical points
    KeyState state = KeyState::down;
};

/// Posts synthetic input into the session. Calls return before the event is delivered. Without permission the system
/// drops what is posted and nobody is told. Main thread only.
class EventPoster
{
public:
    virtual ~EventPoster() = default;
    /// Whether an event for this key can be made here; posting one that can't is a programming error.
    [[nodiscard]] virtual bool canMakeKey(KeyCode keyCode) const = 0;
    virtual void postKey(const SyntheticKey& key, TapLocation location) = 0;
    [[nodiscard]] virtual bool canMakeClick() const = 0;
    virtual void postSecondaryClick(const SyntheticClick& click, TapLocation location) = 0;
};

} // namespace tarvin
