#pragma once

#include "model/KeyAction.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <functional>

namespace tarvin {

/// An action that opens one application of the system.
struct LaunchActionRow
{
    KeyAction action;
    QStringView bundleId;
    QStringView path; ///< where it stands if the system does not know the identifier
};

namespace detail {

inline constexpr auto launchActionRows = std::to_array<LaunchActionRow>({
    {KeyAction::calculator, u"com.apple.calculator", u"/System/Applications/Calculator.app"},
    {KeyAction::finder, u"com.apple.finder", u"/System/Library/CoreServices/Finder.app"},
    {KeyAction::notes, u"com.apple.Notes", u"/System/Applications/Notes.app"},
    {KeyAction::safari, u"com.apple.Safari", u"/Applications/Safari.app"},
    {KeyAction::systemSettings, u"com.apple.systempreferences", u"/System/Applications/System Settings.app"},
    {KeyAction::terminal, u"com.apple.Terminal", u"/System/Applications/Utilities/Terminal.app"},
});
static_assert(std::ranges::adjacent_find(launchActionRows, std::ranges::greater_equal{}, &LaunchActionRow::action)
        == launchActionRows.end(),
    "in the order of the vocabulary, each action once");

} // namespace detail

/// The row of an action, null for an action that opens no application of the system.
[[nodiscard]] constexpr const LaunchActionRow* launchActionRow(KeyAction action) noexcept
{
    const auto& rows = detail::launchActionRows;
    const auto found = std::ranges::find(rows, action, &LaunchActionRow::action);
    return found == rows.end() ? nullptr : &*found;
}

} // namespace tarvin
