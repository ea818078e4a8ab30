#pragma once

#include "platform/ports/DisplayBrightness.h"

namespace tarvin::simulated {

/// A main display that is as bright as told.
class SimulatedDisplayBrightness final : public DisplayBrightness
{
public:
    [[nodiscard]] std::optional<double> current() const override { return m_current; }

    /// Nothing for a display that does not tell.
    void setCurrent(std::optional<double> current) { m_current = current; }

private:
    std::optional<double> m_current = 0.5;
};

} // namespace tarvin::simulated
