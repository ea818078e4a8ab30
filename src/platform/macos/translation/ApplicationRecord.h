#pragma once

#include "platform/ports/Workspace.h"

#include <cstdint>
#include <optional>

namespace tarvin::macos {

/// What the system says of a running application.
struct ApplicationRecord
{
    std::int32_t processIdentifier = 0; ///< -1 for one that has gone
    std::optional<QString> bundleIdentifier;
    std::optional<QString> localizedName;
    std::int64_t activationPolicy = 0;
    bool isHidden = false;
    bool isTerminated = false;
};

/// A policy that is not known counts as prohibited: such an application is never brought forward.
[[nodiscard]] ActivationPolicy activationPolicyOf(std::int64_t policy) noexcept;

/// Applications have one identifier here: the well-known ones are those of the applications themselves.
[[nodiscard]] RunningApplication runningApplicationOf(const ApplicationRecord& record);

} // namespace tarvin::macos
