#pragma once

#include "studio/picker/PickerRow.h"
#include "ui/Pill.h"

#include <optional>

namespace tarvin {

struct ConfiguredAction;

/// The small word behind the title of a row or of a card's header, as it is drawn; absent where there is none.
/// @param config the record under edit, which badges of cards count in
[[nodiscard]] std::optional<Pill> badgeOf(const PickerRow& row, const ConfiguredAction& config);

} // namespace tarvin
