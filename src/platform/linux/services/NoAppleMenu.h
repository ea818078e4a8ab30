#pragma once

#include "platform/ports/AppleMenu.h"

namespace tarvin::services {

/// There is no such menu on a Linux desktop; what its items do is asked for by other roads.
class NoAppleMenu : public AppleMenu
{
public:
    [[nodiscard]] std::optional<QStringList> itemTitles() const override { return std::nullopt; }
    void press(qsizetype) override { }
};

} // namespace tarvin::services
