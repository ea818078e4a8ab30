#pragma once

#include "platform/ports/WindowControl.h"

namespace tarvin::macos {

/// Windows of other applications by their Accessibility attributes, which count from the top left already. Main thread
/// only.
class MacWindowControl final : public WindowControl
{
public:
    [[nodiscard]] std::unique_ptr<ControlledWindow> focusedWindow(ProcessIdentifier process) override;
    [[nodiscard]] std::vector<std::unique_ptr<ControlledWindow>> windows(ProcessIdentifier process) override;
};

} // namespace tarvin::macos
