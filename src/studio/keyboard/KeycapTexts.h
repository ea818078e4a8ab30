#pragma once

#include "studio/keyboard/Keycaps.h"

#include <QString>
#include <QStringView>

namespace tarvin {

/// What a live key does, as far as texts tell of it.
struct KeycapMapping
{
    bool isCustomized = false;
    bool isActive = true;
    QStringView actionTitle; ///< of the key's action, the factory's if it is not customised
};

/// Empty for the keys that show none. The mapping is looked at for live keys only.
[[nodiscard]] QString keycapTooltip(const Keycap& keycap, const KeycapMapping& mapping);
/// What assistive technology reads: the key, its state and its action.
[[nodiscard]] QString keycapSpokenText(const Keycap& keycap, const KeycapMapping& mapping);

} // namespace tarvin
