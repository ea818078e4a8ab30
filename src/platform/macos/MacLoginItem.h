#pragma once

#include "platform/ports/LoginItem.h"

namespace tarvin::macos {

/// The registration of the main application with the service that opens login items. Main thread only.
class MacLoginItem final : public LoginItem
{
public:
    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] std::optional<QString> enable() override;
    [[nodiscard]] std::optional<QString> disable() override;
};

} // namespace tarvin::macos
