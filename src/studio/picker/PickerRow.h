#pragma once

#include "studio/cards/ParameterCard.h"

#include <QStringView>

#include <cstdint>
#include <optional>

namespace tarvin {

/// The small word behind the title of a row.
enum class RowBadge : std::uint8_t { none, newAction, assistant };

[[nodiscard]] constexpr QStringView text(RowBadge badge) noexcept
{
    switch (badge) {
    case RowBadge::none:
        return u"";
    case RowBadge::newAction:
        return u"NEW";
    case RowBadge::assistant:
        return u"AI";
    }
    return u"";
}

/// What stands for one action in the lists of the picker: a plain row or a card.
struct PickerRow
{
    KeyAction action = {}; ///< what a click chooses
    std::optional<ParameterCard> card{}; ///< absent for a plain row
    RowBadge badge = RowBadge::none; ///< of plain rows; cards have badges of their own
    friend bool operator==(const PickerRow&, const PickerRow&) = default;
};

[[nodiscard]] constexpr PickerRow rowFor(KeyAction action) noexcept
{
    if (const auto card = cardOf(action))
        return {.action = actionOf(*card), .card = card};
    if (action == KeyAction::showActionsRing)
        return {.action = action, .badge = RowBadge::newAction};
    if (action == KeyAction::aiAssistant)
        return {.action = action, .badge = RowBadge::assistant};
    return {.action = action};
}

} // namespace tarvin
