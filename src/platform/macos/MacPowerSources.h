#pragma once

#include "platform/ports/PowerSources.h"

namespace tarvin::macos {

/// The power sources, read afresh at each call. Main thread only.
class MacPowerSources final : public PowerSources
{
public:
    [[nodiscard]] std::optional<std::vector<PowerSource>> read() const override;
};

} // namespace tarvin::macos
