#pragma once

#include "platform/ports/Geometry.h"

namespace tarvin {

/// The mouse pointer.
class Pointer
{
public:
    virtual ~Pointer() = default;
    /// Where a click posted now would land. A platform that counts from the bottom converts here, by the height of
    /// its main screen alone, or 1080 points where it has none.
    [[nodiscard]] virtual Point position() const = 0;
};

} // namespace tarvin
