#pragma once

#include "shell/StartupDockMode.h"

#include <QString>
#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarvin {

/// The two halves of the settings sheet.
enum class SettingsTab : std::uint8_t { keyboardFlexibility, backgroundAndStartup };

struct SettingsTabRow
{
    SettingsTab tab;
    QStringView title; ///< on the tab's button
    QStringView icon;
    QStringView headerTitle;
    QStringView headerSubtitle;
    QStringView headerIcon;
};

inline constexpr auto settingsTabRows = std::to_array<SettingsTabRow>({
    {SettingsTab::keyboardFlexibility, u"Keyboard Flexibility", u"keyboard.fill", u"Keyboard Flexibility & Controls",
        u"Activate or deactivate keyboard portions while preserving customizations", u"slider.horizontal.3"},
    {SettingsTab::backgroundAndStartup, u"Background & Startup", u"bolt.shield.fill", u"Background & Startup Settings",
        u"Choose how Tarvin behaves when you start your Mac", u"powersleep"},
});
static_assert(rowsStandInEnumerationOrder(settingsTabRows, &SettingsTabRow::tab));

[[nodiscard]] constexpr const SettingsTabRow& rowOf(SettingsTab tab) noexcept
{
    return settingsTabRows[static_cast<std::size_t>(tab)];
}

/// The cards with a switch on the first tab, from top to bottom.
enum class SwitchCard : std::uint8_t { master, functionKeys, otherKeys };

struct SwitchCardRow
{
    SwitchCard card;
    QStringView title;
    QStringView description;
};

inline constexpr auto switchCardRows = std::to_array<SwitchCardRow>({
    {SwitchCard::master, u"Activate Tarvin App",
        u"Master switch to activate or deactivate custom key interception across macOS. When paused, Apple factory "
        u"defaults run."},
    {SwitchCard::functionKeys, u"Function Keys (F1–F12)",
        u"Toggle and deactivate all function keys from F1 to F12. When deactivated, Apple defaults (brightness, media, "
        u"volume) are active."},
    {SwitchCard::otherKeys, u"Rest of Custom Keys",
        u"Toggle and deactivate Caps Lock, Right ⌥, Right ⌘, Globe/Fn, §, and F13–F19. When deactivated, original "
        u"macOS behaviors run."},
});
static_assert(rowsStandInEnumerationOrder(switchCardRows, &SwitchCardRow::card));

[[nodiscard]] constexpr const SwitchCardRow& rowOf(SwitchCard card) noexcept
{
    return switchCardRows[static_cast<std::size_t>(card)];
}

inline constexpr QStringView masterOffChip = u"MASTER OFF";
inline constexpr QStringView preservationTitle = u"Custom Options Are Always Preserved";
inline constexpr QStringView preservationText =
    u"Once you customize any key, your settings remain unchained until you reset or change them. Deactivating a "
    u"portion simply pauses its execution; toggling it back on immediately restores your custom actions.";
inline constexpr QStringView openAtStartupTitle = u"Open at Startup";
/// The factory's choice, whatever the switch says.
inline constexpr QStringView openAtStartupChip = u"Default: ON";
inline constexpr QStringView openAtStartupDescription =
    u"Automatically launches Tarvin when you start or log in to your Mac.";
inline constexpr QStringView startupDockHeading = u"WHAT TARVIN DOES AT STARTUP";
inline constexpr QStringView settingsDoneText = u"Done";

/// Everything that the status line at the sheet's foot depends on.
struct SettingsStatus
{
    bool isInterceptionEnabled = true;
    bool isFunctionKeysEnabled = true;
    bool isOtherKeysEnabled = true;
    StartupDockMode startupDockMode = StartupDockMode::hideFromDock;
};

enum class StatusIndicator : std::uint8_t {
    off, ///< gray at opacity 0.6
    active, ///< the accent
    allPortionsOff, ///< orange
};

[[nodiscard]] constexpr StatusIndicator statusIndicator(const SettingsStatus& status) noexcept
{
    if (!status.isInterceptionEnabled)
        return StatusIndicator::off;
    return status.isFunctionKeysEnabled || status.isOtherKeysEnabled ? StatusIndicator::active
                                                                     : StatusIndicator::allPortionsOff;
}

[[nodiscard]] constexpr QStringView statusSummaryText(SettingsTab tab, const SettingsStatus& status) noexcept
{
    if (tab == SettingsTab::backgroundAndStartup) {
        return status.startupDockMode == StartupDockMode::hideFromDock
            ? QStringView(u"Running in Background (Hidden from Dock)")
            : QStringView(u"Standard Dock Mode Active");
    }
    if (!status.isInterceptionEnabled)
        return u"Tarvin Deactivated • Apple Factory Defaults Active";
    if (status.isFunctionKeysEnabled) {
        return status.isOtherKeysEnabled ? QStringView(u"All Custom Keys Active (F1–F12 + Other Keys)")
                                         : QStringView(u"Function Keys (F1–F12) Active • Other Keys Deactivated");
    }
    return status.isOtherKeysEnabled ? QStringView(u"Other Keys Active • Function Keys (F1–F12) Deactivated")
                                     : QStringView(u"All Portions Deactivated • Apple Factory Defaults Active");
}

} // namespace tarvin
