#pragma once

#include "platform/linux/x11/XTypes.h"
#include "platform/ports/EventFlags.h"

namespace tarvin::x11 {

/// Which real modifiers of the present keymap stand for which flags. A word in size, to go between threads at once.
struct alignas(std::uint64_t) ModifierMasks
{
    ModifierMask shift = 0x01;
    ModifierMask control = 0x04;
    ModifierMask option = 0x08; ///< Alt
    ModifierMask levelThree = 0; ///< what the right Alt key is on most layouts outside America
    ModifierMask command = 0x40; ///< Super

    friend bool operator==(const ModifierMasks&, const ModifierMasks&) = default;

    /// The flags of a modifier state; locks are left out.
    [[nodiscard]] constexpr EventFlags flagsOf(ModifierMask state) const noexcept
    {
        auto flags = EventFlags::none;
        if ((state & shift) != 0)
            flags |= EventFlags::shift;
        if ((state & control) != 0)
            flags |= EventFlags::control;
        if ((state & (option | levelThree)) != 0)
            flags |= EventFlags::option;
        if ((state & command) != 0)
            flags |= EventFlags::command;
        return flags;
    }

    /// The modifiers that a keystroke with these flags has.
    [[nodiscard]] constexpr ModifierMask maskFor(EventFlags flags) const noexcept
    {
        ModifierMask mask = 0;
        if (containsAll(flags, EventFlags::shift))
            mask |= shift;
        if (containsAll(flags, EventFlags::control))
            mask |= control;
        if (containsAll(flags, EventFlags::option))
            mask |= option;
        if (containsAll(flags, EventFlags::command))
            mask |= command;
        return mask;
    }

    /// Everything that a flag can come from.
    [[nodiscard]] constexpr ModifierMask all() const noexcept
    {
        return static_cast<ModifierMask>(shift | control | option | levelThree | command);
    }
};

} // namespace tarvin::x11
