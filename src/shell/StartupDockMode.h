#pragma once

#include "model/RawValueRows.h"

#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>

namespace tarvin {

/// Whether the program shows in the Dock while the Studio is closed.
enum class StartupDockMode : std::uint8_t { hideFromDock, showInDock };

struct StartupDockModeRow
{
    StartupDockMode mode;
    QStringView rawValue; ///< stored name; never changes
    QStringView title;
    QStringView subtitle;
    QStringView icon; ///< name in the symbol font
    QStringView tag; ///< the word on the badge
};

inline constexpr auto startupDockModeRows = std::to_array<StartupDockModeRow>({
    {StartupDockMode::hideFromDock, u"hideFromDock", u"Hide from Dock automatically",
        u"Runs quietly in the background without showing in the Dock or opening a window. Your custom keys work "
        u"instantly.",
        u"eye.slash.fill", u"Recommended"},
    {StartupDockMode::showInDock, u"showInDock", u"Show in Dock",
        u"Tarvin launches on startup and stays visible in your macOS Dock.", u"dock.rectangle", u"Standard"},
});
static_assert(rowsStandInEnumerationOrder(startupDockModeRows, &StartupDockModeRow::mode));
static_assert(rawValuesAreUnique(startupDockModeRows));

inline constexpr std::array allStartupDockModes = {StartupDockMode::hideFromDock, StartupDockMode::showInDock};

[[nodiscard]] constexpr QStringView rawValue(StartupDockMode mode) noexcept
{
    return startupDockModeRows[static_cast<std::size_t>(mode)].rawValue;
}

[[nodiscard]] constexpr QStringView title(StartupDockMode mode) noexcept
{
    return startupDockModeRows[static_cast<std::size_t>(mode)].title;
}

[[nodiscard]] constexpr QStringView subtitle(StartupDockMode mode) noexcept
{
    return startupDockModeRows[static_cast<std::size_t>(mode)].subtitle;
}

[[nodiscard]] constexpr QStringView icon(StartupDockMode mode) noexcept
{
    return startupDockModeRows[static_cast<std::size_t>(mode)].icon;
}

[[nodiscard]] constexpr QStringView tag(StartupDockMode mode) noexcept
{
    return startupDockModeRows[static_cast<std::size_t>(mode)].tag;
}

[[nodiscard]] constexpr std::optional<StartupDockMode> startupDockModeFromRawValue(QStringView text) noexcept
{
    return findByRawValue<StartupDockMode>(startupDockModeRows, text);
}

} // namespace tarvin
