#pragma once

#include "model/RawValueRows.h"

#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>

namespace tarvin {

// The small choices that go with single actions. Where a stored name is also the wording of the
// interface, changing the wording changes the file format.

enum class ScreenCaptureMode : std::uint8_t { screen, window, region };
enum class ScreenCaptureDestination : std::uint8_t { clipboard, file };
enum class ForceQuitMode : std::uint8_t { activeApp, systemDialog };
/// How the shortcuts of one key are played when it has more than one.
enum class MultiKeyPlaybackMode : std::uint8_t { simultaneous, sequential };

template <typename Enumeration> struct ParameterRow
{
    Enumeration value;
    QStringView rawValue;
};

inline constexpr auto screenCaptureModeRows = std::to_array<ParameterRow<ScreenCaptureMode>>({
    {ScreenCaptureMode::screen, u"Screen"},
    {ScreenCaptureMode::window, u"Window"},
    {ScreenCaptureMode::region, u"Region"},
});

inline constexpr auto screenCaptureDestinationRows = std::to_array<ParameterRow<ScreenCaptureDestination>>({
    {ScreenCaptureDestination::clipboard, u"Clipboard"},
    {ScreenCaptureDestination::file, u"File"},
});

inline constexpr auto forceQuitModeRows = std::to_array<ParameterRow<ForceQuitMode>>({
    {ForceQuitMode::activeApp, u"Frontmost app"},
    {ForceQuitMode::systemDialog, u"Force Quit dialog (⌥⌘⎋)"},
});

struct MultiKeyPlaybackModeRow
{
    MultiKeyPlaybackMode value;
    QStringView rawValue;
    QStringView title;
    QStringView subtitle;
    QStringView shortLabel;
    QStringView icon;
};

inline constexpr auto multiKeyPlaybackModeRows = std::to_array<MultiKeyPlaybackModeRow>({
    {MultiKeyPlaybackMode::simultaneous, u"simultaneous", u"All at once", u"Fires all keys together at the same time",
        u"Simultaneous", u"bolt.horizontal.fill"},
    {MultiKeyPlaybackMode::sequential, u"sequential", u"In sequence", u"Fires each key one after another in order",
        u"Sequence", u"arrow.right.circle.fill"},
});

static_assert(rowsStandInEnumerationOrder(screenCaptureModeRows, &ParameterRow<ScreenCaptureMode>::value));
static_assert(
    rowsStandInEnumerationOrder(screenCaptureDestinationRows, &ParameterRow<ScreenCaptureDestination>::value));
static_assert(rowsStandInEnumerationOrder(forceQuitModeRows, &ParameterRow<ForceQuitMode>::value));
static_assert(rowsStandInEnumerationOrder(multiKeyPlaybackModeRows, &MultiKeyPlaybackModeRow::value));

inline constexpr std::array allScreenCaptureModes = {
    ScreenCaptureMode::screen, ScreenCaptureMode::window, ScreenCaptureMode::region};
inline constexpr std::array allScreenCaptureDestinations = {
    ScreenCaptureDestination::clipboard, ScreenCaptureDestination::file};
inline constexpr std::array allForceQuitModes = {ForceQuitMode::activeApp, ForceQuitMode::systemDialog};
inline constexpr std::array allMultiKeyPlaybackModes = {
    MultiKeyPlaybackMode::simultaneous, MultiKeyPlaybackMode::sequential};

[[nodiscard]] constexpr QStringView rawValue(ScreenCaptureMode mode) noexcept
{
    return screenCaptureModeRows[static_cast<std::size_t>(mode)].rawValue;
}

[[nodiscard]] constexpr QStringView rawValue(ScreenCaptureDestination destination) noexcept
{
    return screenCaptureDestinationRows[static_cast<std::size_t>(destination)].rawValue;
}

[[nodiscard]] constexpr QStringView rawValue(ForceQuitMode mode) noexcept
{
    return forceQuitModeRows[static_cast<std::size_t>(mode)].rawValue;
}

[[nodiscard]] constexpr QStringView rawValue(MultiKeyPlaybackMode mode) noexcept
{
    return multiKeyPlaybackModeRows[static_cast<std::size_t>(mode)].rawValue;
}

[[nodiscard]] constexpr QStringView title(MultiKeyPlaybackMode mode) noexcept
{
    return multiKeyPlaybackModeRows[static_cast<std::size_t>(mode)].title;
}

[[nodiscard]] constexpr QStringView subtitle(MultiKeyPlaybackMode mode) noexcept
{
    return multiKeyPlaybackModeRows[static_cast<std::size_t>(mode)].subtitle;
}

/// The word for small spaces, such as the title of a record.
[[nodiscard]] constexpr QStringView shortLabel(MultiKeyPlaybackMode mode) noexcept
{
    return multiKeyPlaybackModeRows[static_cast<std::size_t>(mode)].shortLabel;
}

[[nodiscard]] constexpr QStringView icon(MultiKeyPlaybackMode mode) noexcept
{
    return multiKeyPlaybackModeRows[static_cast<std::size_t>(mode)].icon;
}

[[nodiscard]] constexpr std::optional<ScreenCaptureMode> screenCaptureModeFromRawValue(QStringView text) noexcept
{
    return findByRawValue<ScreenCaptureMode>(screenCaptureModeRows, text);
}

[[nodiscard]] constexpr std::optional<ScreenCaptureDestination> screenCaptureDestinationFromRawValue(
    QStringView text) noexcept
{
    return findByRawValue<ScreenCaptureDestination>(screenCaptureDestinationRows, text);
}

[[nodiscard]] constexpr std::optional<ForceQuitMode> forceQuitModeFromRawValue(QStringView text) noexcept
{
    return findByRawValue<ForceQuitMode>(forceQuitModeRows, text);
}

[[nodiscard]] constexpr std::optional<MultiKeyPlaybackMode> multiKeyPlaybackModeFromRawValue(QStringView text) noexcept
{
    return findByRawValue<MultiKeyPlaybackMode>(multiKeyPlaybackModeRows, text);
}

} // namespace tarvin
