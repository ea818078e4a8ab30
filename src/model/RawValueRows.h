#pragma once

#include <QStringView>

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

namespace tarvin {

// What every vocabulary table has in common: row n describes the enumerator with the value n, and
// its rawValue is the stored name.

/// The characters of @p text as a type whose comparisons work at compile time.
[[nodiscard]] constexpr std::u16string_view characters(QStringView text) noexcept
{
    return {text.utf16(), static_cast<std::size_t>(text.size())};
}

/// True when row n is about the enumerator with the value n, for every row.
/// @param identity the member of the row that names its enumerator
[[nodiscard]] constexpr bool rowsStandInEnumerationOrder(const auto& rows, auto identity) noexcept
{
    std::size_t position = 0;
    for (const auto& row : rows) {
        if (static_cast<std::size_t>(std::invoke(identity, row)) != position++)
            return false;
    }
    return true;
}

/// True when no two rows have the same stored name.
[[nodiscard]] constexpr bool rawValuesAreUnique(const auto& rows) noexcept
{
    for (auto first = rows.begin(); first != rows.end(); ++first) {
        for (auto second = first + 1; second != rows.end(); ++second) {
            if (characters(first->rawValue) == characters(second->rawValue))
                return false;
        }
    }
    return true;
}

/// The enumerator stored as @p text, compared exactly and case-sensitively; absent for anything else.
template <typename Enumeration>
[[nodiscard]] constexpr std::optional<Enumeration> findByRawValue(const auto& rows, QStringView text) noexcept
{
    std::size_t position = 0;
    for (const auto& row : rows) {
        if (characters(row.rawValue) == characters(text))
            return static_cast<Enumeration>(position);
        ++position;
    }
    return std::nullopt;
}

} // namespace tarvin
