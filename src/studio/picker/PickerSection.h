#pragma once

#include "actions/usage/ActionUsageFilter.h"
#include "studio/picker/PickerRow.h"

#include <QList>

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarvin {

/// The parts of the picker's list, from top to bottom.
enum class PickerSection : std::uint8_t {
    frequentlyUsed,
    recommended,
    smartActions,
    windowManagement,
    otherActions,
};

inline constexpr std::array allPickerSections = {PickerSection::frequentlyUsed, PickerSection::recommended,
    PickerSection::smartActions, PickerSection::windowManagement, PickerSection::otherActions};

/// @param filter decides how the first section is called
[[nodiscard]] QStringView heading(PickerSection section, ActionUsageFilter filter);

/// The rows of a section whose content never changes; none for the first.
[[nodiscard]] QList<PickerRow> fixedRows(PickerSection section);

/// What the picker offers and no other section holds, in the order of the catalogue.
[[nodiscard]] QList<KeyAction> otherActionsList();

} // namespace tarvin
