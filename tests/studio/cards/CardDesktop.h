#pragma once

#include "profiles/ProfileDesktop.h"
#include "studio/cards/KeyRecord.h"
#include "support/QtPrinters.h"

namespace tarvin {

/// The record of F5 on a simulated desktop.
class CardDesktop : public ProfileDesktop
{
protected:
    [[nodiscard]] ConfiguredAction config() { return profile().actionConfig(FKey::f5); }

    KeyRecord record{FKey::f5, profile()};
};

} // namespace tarvin
