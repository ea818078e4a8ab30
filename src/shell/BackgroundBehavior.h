#pragma once

#include "model/RawValueRows.h"

#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>

namespace tarvin {

/// What the Studio's status display says about the background work. The choices do not differ in what the program does.
enum class BackgroundBehavior : std::uint8_t { menuBarOnly, hideOnWindowClose, stealthLowPower };

struct BackgroundBehaviorRow
{
    BackgroundBehavior behavior;
    QStringView rawValue; ///< stored name; never changes
    QStringView title;
    QStringView subtitle;
    QStringView icon; ///< name in the symbol font
    QStringView tag; ///< the word on the badge
};

inline constexpr auto backgroundBehaviorRows = std::to_array<BackgroundBehaviorRow>({
    {BackgroundBehavior::menuBarOnly, u"menuBarOnly", u"Menu Bar Only (Hide Dock Icon Always)",
        u"Runs completely in background without a Dock icon. Accessible from the menu bar.", u"menubar.rectangle",
        u"Default"},
    {BackgroundBehavior::hideOnWindowClose, u"hideOnWindowClose", u"Hide from Dock When Window is Closed",
        u"Shows in Dock while Studio is open; completely hides from Dock when closed.", u"macwindow.badge.plus",
        u"Adaptive"},
    {BackgroundBehavior::stealthLowPower, u"stealthLowPower", u"Silent Stealth & Ultra-Low Power",
        u"Runs silently with zero Dock presence, near 0% CPU, and zero battery drain.", u"bolt.slash.fill",
        u"Max Power Saving"},
});
static_assert(rowsStandInEnumerationOrder(backgroundBehaviorRows, &BackgroundBehaviorRow::behavior));
static_assert(rawValuesAreUnique(backgroundBehaviorRows));

inline constexpr std::array allBackgroundBehaviors = {
    BackgroundBehavior::menuBarOnly, BackgroundBehavior::hideOnWindowClose, BackgroundBehavior::stealthLowPower};

[[nodiscard]] constexpr QStringView rawValue(BackgroundBehavior behavior) noexcept
{
    return backgroundBehaviorRows[static_cast<std::size_t>(behavior)].rawValue;
}

[[nodiscard]] constexpr QStringView title(BackgroundBehavior behavior) noexcept
{
    return backgroundBehaviorRows[static_cast<std::size_t>(behavior)].title;
}

[[nodiscard]] constexpr QStringView subtitle(BackgroundBehavior behavior) noexcept
{
    return backgroundBehaviorRows[static_cast<std::size_t>(behavior)].subtitle;
}

[[nodiscard]] constexpr QStringView icon(BackgroundBehavior behavior) noexcept
{
    return backgroundBehaviorRows[static_cast<std::size_t>(behavior)].icon;
}

[[nodiscard]] constexpr QStringView tag(BackgroundBehavior behavior) noexcept
{
    return backgroundBehaviorRows[static_cast<std::size_t>(behavior)].tag;
}

[[nodiscard]] constexpr std::optional<BackgroundBehavior> backgroundBehaviorFromRawValue(QStringView text) noexcept
{
    return findByRawValue<BackgroundBehavior>(backgroundBehaviorRows, text);
}

} // namespace tarvin
