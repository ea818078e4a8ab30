#pragma once

#include "platform/ports/ProcessInfo.h"

namespace tarvin::macos {

/// What the main bundle and the process tell. Main thread only.
class MacProcessInfo final : public ProcessInfo
{
public:
    [[nodiscard]] QString processName() const override;
    [[nodiscard]] QStringList arguments() const override;
    [[nodiscard]] QString bundlePath() const override;
    [[nodiscard]] std::optional<QString> bundleIdentifier() const override;
    [[nodiscard]] std::optional<QString> bundleName() const override;
    /// Asks for the Apple event at work, so only the launch itself gets the true answer.
    [[nodiscard]] bool wasStartedAsLoginItem() const override;
};

} // namespace tarvin::macos
