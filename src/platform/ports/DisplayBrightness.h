#pragma once

#include <optional>

namespace tarvin {

/// Reads how bright the main display is. It is changed by the system's own keys, see `SystemKeys`.
class DisplayBrightness
{
public:
    virtual ~DisplayBrightness() = default;
    /// Part of the full brightness, from 0 to 1; nothing where the display does not tell. Main thread, at most a few
    /// microseconds.
    [[nodiscard]] virtual std::optional<double> current() const = 0;
};

} // namespace tarvin
