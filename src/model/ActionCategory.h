#pragma once

#include "model/RawValueRows.h"

#include <array>
#include <cstdint>

namespace tarvin {

/// The sections in which the picker shows the actions, in the order of the list.
enum class ActionCategory : std::uint8_t { recommended, smartActions, windowSnapping, otherActions };

struct ActionCategoryRow
{
    ActionCategory category;
    QStringView rawValue; ///< stored name and at once the heading of the section
};

inline constexpr auto actionCategoryRows = std::to_array<ActionCategoryRow>({
    {ActionCategory::recommended, u"RECOMMENDED"},
    {ActionCategory::smartActions, u"SMART ACTIONS"},
    {ActionCategory::windowSnapping, u"WINDOW MANAGEMENT"},
    {ActionCategory::otherActions, u"OTHER ACTIONS"},
});
static_assert(rowsStandInEnumerationOrder(actionCategoryRows, &ActionCategoryRow::category));
static_assert(rawValuesAreUnique(actionCategoryRows));

inline constexpr std::array allActionCategories = {ActionCategory::recommended, ActionCategory::smartActions,
    ActionCategory::windowSnapping, ActionCategory::otherActions};

[[nodiscard]] constexpr QStringView rawValue(ActionCategory category) noexcept
{
    return actionCategoryRows[static_cast<std::size_t>(category)].rawValue;
}

[[nodiscard]] constexpr std::optional<ActionCategory> actionCategoryFromRawValue(QStringView text) noexcept
{
    return findByRawValue<ActionCategory>(actionCategoryRows, text);
}

} // namespace tarvin
