#pragma once

#include "model/FKey.h"

#include <QString>
#include <QStringView>

#include <cstdint>
#include <optional>

namespace tarvin {

inline constexpr QStringView pickerTitle = u"Actions";
inline constexpr QStringView searchPrompt = u"Search actions...";
inline constexpr QStringView testActionText = u"Test Action Now";
inline constexpr QStringView testDoneText = u"✓ Triggered!";
inline constexpr QStringView resetText = u"Reset to Apple default";
inline constexpr QStringView searchResultsHeading = u"SEARCH RESULTS";
inline constexpr QStringView noResultsTitle = u"No actions found";
inline constexpr QStringView noResultsExamples = u"Try \"mute\", \"screen\", \"window\", or \"volume\".";
inline constexpr QStringView clearSearchText = u"Clear Search";
inline constexpr QStringView pausedTooltip =
    u"This key's portion is currently deactivated in Settings. Your customization remains safely saved and will "
    u"activate once toggled back on.";

/// The chip beside the title while the key's portion, or everything, is switched off.
[[nodiscard]] constexpr QStringView pausedChipText(FKey key) noexcept
{
    return isFunctionRowKey(key) ? QStringView(u"F1–F12 Off") : QStringView(u"Other Off");
}

[[nodiscard]] QString resultCountText(qsizetype count);
/// @param typed the search as the user typed it
[[nodiscard]] QString noResultsLine(const QString& typed);

/// The strip under the picker's header that says whether the key does something of the user's.
struct StatusBanner
{
    /// Which colours it has, and whether its dot is filled.
    enum class Tone : std::uint8_t { customized, paused, factory };

    Tone tone = Tone::factory;
    QString title;
    QString detail;
    friend bool operator==(const StatusBanner&, const StatusBanner&) = default;
};

/// @param customTitle of the action that the key is customised with; absent if it isn't
/// @param isActive whether no switch pauses the key
[[nodiscard]] StatusBanner statusBanner(std::optional<QStringView> customTitle, bool isActive);

} // namespace tarvin
