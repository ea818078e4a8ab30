#pragma once

#include "platform/ports/Pointer.h"

namespace tarvin::macos {

/// The pointer, turned over by the height of the main screen. Main thread only.
class MacPointer final : public Pointer
{
public:
    [[nodiscard]] Point position() const override;
};

} // namespace tarvin::macos
