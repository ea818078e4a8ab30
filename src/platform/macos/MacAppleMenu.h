#pragma once

#include "platform/ports/AppleMenu.h"

namespace tarvin::macos {

/// The first menu of the Finder's menu bar, by Accessibility. Main thread only.
class MacAppleMenu final : public AppleMenu
{
public:
    [[nodiscard]] std::optional<QStringList> itemTitles() const override;
    void press(qsizetype index) override;
};

} // namespace tarvin::macos
