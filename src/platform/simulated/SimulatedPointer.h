#pragma once

#include "platform/ports/Pointer.h"

namespace tarvin::simulated {

/// A pointer that stands where it was put.
class SimulatedPointer final : public Pointer
{
public:
    [[nodiscard]] Point position() const override { return m_position; }
    void setPosition(Point position) { m_position = position; }

private:
    Point m_position{};
};

} // namespace tarvin::simulated
