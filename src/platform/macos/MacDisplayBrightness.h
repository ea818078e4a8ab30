#pragma once

#include "platform/ports/DisplayBrightness.h"

namespace tarvin::macos {

/// The brightness of the main display, by a function that the system has but does not publish; it is looked for at the
/// first reading, and where it is missing nothing is told. Main thread only.
class MacDisplayBrightness final : public DisplayBrightness
{
public:
    [[nodiscard]] std::optional<double> current() const override;
};

} // namespace tarvin::macos
