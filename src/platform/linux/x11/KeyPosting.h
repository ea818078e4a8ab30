#pragma once

#include "platform/linux/x11/XTypes.h"

namespace tarvin::x11 {

/// A keyboard of the kernel that this program presses keys on, where there is one. What is pressed on it takes the same
/// way as what is typed, and every program knows it by its source. Any thread.
class KeyPosting
{
public:
    virtual ~KeyPosting() = default;
    /// Whether keys can be posted now.
    [[nodiscard]] virtual bool isOpen() const = 0;
    /// @param key by its keycode, which is the number of the kernel plus eight
    /// @return whether it is on its way
    [[nodiscard]] virtual bool post(FakeKey key) = 0;
};

} // namespace tarvin::x11
