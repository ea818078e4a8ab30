#pragma once

#include "platform/ports/ApplicationChooser.h"

namespace tarvin::desktop {

/// There is no one dialog that every desktop has; the toolkit's serves on all of them.
class NoApplicationChooser final : public ApplicationChooser
{
public:
    [[nodiscard]] std::unique_ptr<ApplicationDialog> open(
        const ApplicationRequest& /*request*/, ChoiceHandler /*onChoice*/) override
    {
        return nullptr;
    }
};

} // namespace tarvin::desktop
