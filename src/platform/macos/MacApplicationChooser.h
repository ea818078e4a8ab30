#pragma once

#include "platform/ports/ApplicationChooser.h"

namespace tarvin::macos {

/// The system's open panel, which lets the user choose one application bundle. It is modal, and no sheet, so that its
/// title shows. Main thread only.
class MacApplicationChooser final : public ApplicationChooser
{
public:
    [[nodiscard]] std::unique_ptr<ApplicationDialog> open(
        const ApplicationRequest& request, ChoiceHandler onChoice) override;
};

} // namespace tarvin::macos
