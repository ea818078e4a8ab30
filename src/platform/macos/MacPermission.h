#pragma once

#include "platform/ports/Permission.h"

namespace tarvin::macos {

/// The Accessibility permission. Main thread only.
class MacPermission final : public Permission
{
public:
    [[nodiscard]] bool isProcessTrusted() const override;
    /// The system shows its prompt if the program is not trusted yet, and returns at once.
    void promptForTrust() override;
};

} // namespace tarvin::macos
