#pragma once

#include "model/RawValueRows.h"

#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace tarvin {

/// Which actions the first section of the picker shows.
enum class ActionUsageFilter : std::uint8_t { frequentlyUsed, recentlyUsed };

struct ActionUsageFilterRow
{
    ActionUsageFilter filter;
    QStringView rawValue; ///< as the setting holds it and the control shows it
    QStringView headerTitle;
};

inline constexpr auto actionUsageFilterRows = std::to_array<ActionUsageFilterRow>({
    {ActionUsageFilter::frequentlyUsed, u"Frequent", u"FREQUENTLY USED"},
    {ActionUsageFilter::recentlyUsed, u"Recent", u"RECENTLY USED"},
});
static_assert(rowsStandInEnumerationOrder(actionUsageFilterRows, &ActionUsageFilterRow::filter));
static_assert(rawValuesAreUnique(actionUsageFilterRows));

inline constexpr std::array allActionUsageFilters = {
    ActionUsageFilter::frequentlyUsed, ActionUsageFilter::recentlyUsed};

[[nodiscard]] constexpr QStringView rawValue(ActionUsageFilter filter) noexcept
{
    return actionUsageFilterRows[static_cast<std::size_t>(filter)].rawValue;
}

/// Identity for lists; the stored name.
[[nodiscard]] constexpr QStringView id(ActionUsageFilter filter) noexcept
{
    return rawValue(filter);
}

[[nodiscard]] constexpr QStringView headerTitle(ActionUsageFilter filter) noexcept
{
    return actionUsageFilterRows[static_cast<std::size_t>(filter)].headerTitle;
}

[[nodiscard]] constexpr std::optional<ActionUsageFilter> actionUsageFilterFromRawValue(QStringView text) noexcept
{
    return findByRawValue<ActionUsageFilter>(actionUsageFilterRows, text);
}

} // namespace tarvin
