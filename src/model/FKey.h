#pragma once

#include "model/FKeyOrder.h"
#include "model/KeyAction.h"
#include "model/RawValueRows.h"

#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace tarvin {

struct FKeyRow
{
    FKey key;
    QStringView rawValue; ///< stored name, never translated
    QStringView displayName; ///< as headings and tooltips show it
    QStringView defaultLabel; ///< what the key does when nothing is customised; the label under the keycap
    QStringView defaultIcon; ///< name in the symbol font
    KeyAction defaultAction; ///< stands for the key behaving as the factory made it
    std::uint16_t virtualKeyCode; ///< the key's primary code; look-ups have a table of their own
};

inline constexpr auto fKeyRows = std::to_array<FKeyRow>({
    {FKey::f1, u"F1", u"F1", u"Brightness Down", u"sun.min.fill", KeyAction::brightnessDown, 122},
    {FKey::f2, u"F2", u"F2", u"Brightness Up", u"sun.max.fill", KeyAction::brightnessUp, 120},
    {FKey::f3, u"F3", u"F3", u"Mission Control", u"rectangle.3.group.fill", KeyAction::missionControl, 99},
    {FKey::f4, u"F4", u"F4", u"Spotlight", u"magnifyingglass", KeyAction::spotlight, 118},
    {FKey::f5, u"F5", u"F5", u"Dictation", u"mic.fill", KeyAction::dictation, 96},
    {FKey::f6, u"F6", u"F6", u"Do Not Disturb", u"moon.fill", KeyAction::doNotDisturb, 97},
    {FKey::f7, u"F7", u"F7", u"Rewind", u"backward.fill", KeyAction::previousTrack, 98},
    {FKey::f8, u"F8", u"F8", u"Play/Pause", u"playpause.fill", KeyAction::playPause, 100},
    {FKey::f9, u"F9", u"F9", u"Fast Forward", u"forward.fill", KeyAction::nextTrack, 101},
    {FKey::f10, u"F10", u"F10", u"Mute", u"speaker.slash.fill", KeyAction::mute, 109},
    {FKey::f11, u"F11", u"F11", u"Volume Down", u"speaker.wave.1.fill", KeyAction::volumeDown, 103},
    {FKey::f12, u"F12", u"F12", u"Volume Up", u"speaker.wave.3.fill", KeyAction::volumeUp, 111},
    {FKey::capsLock, u"CapsLock", u"Caps Lock (⇪)", u"Caps Lock", u"capslock.fill", KeyAction::nativeCapsLock, 57},
    {FKey::rightOption, u"RightOption", u"Right Option (⌥)", u"Right Option", u"option", KeyAction::nativeRightOption,
        61},
    {FKey::rightCommand, u"RightCommand", u"Right Command (⌘)", u"Right Command", u"command",
        KeyAction::nativeRightCommand, 54},
    {FKey::fnGlobe, u"FnGlobe", u"Function / Globe (fn 🌐)", u"Function / Globe", u"globe", KeyAction::nativeFnGlobe,
        63},
    {FKey::section, u"Section", u"Section (§/±)", u"Section (§/±)", u"paragraphsign", KeyAction::nativeSection, 10},
    {FKey::f13, u"F13", u"F13", u"F13", u"f.cursive", KeyAction::unassigned, 105},
    {FKey::f14, u"F14", u"F14", u"F14", u"f.cursive", KeyAction::unassigned, 107},
    {FKey::f15, u"F15", u"F15", u"F15", u"f.cursive", KeyAction::unassigned, 113},
    {FKey::f16, u"F16", u"F16", u"F16", u"f.cursive", KeyAction::unassigned, 106},
    {FKey::f17, u"F17", u"F17", u"F17", u"f.cursive", KeyAction::unassigned, 64},
    {FKey::f18, u"F18", u"F18", u"F18", u"f.cursive", KeyAction::unassigned, 79},
    {FKey::f19, u"F19", u"F19", u"F19", u"f.cursive", KeyAction::unassigned, 80},
});
static_assert(fKeyRows.size() == fKeyCount);
static_assert(rowsStandInEnumerationOrder(fKeyRows, &FKeyRow::key));
static_assert(rawValuesAreUnique(fKeyRows));

/// The @p count keys from @p first on.
template <std::size_t count> [[nodiscard]] consteval std::array<FKey, count> consecutiveFKeys(FKey first) noexcept
{
    std::array<FKey, count> keys{};
    for (std::size_t offset = 0; offset < count; ++offset)
        keys[offset] = fKeyRows[orderOf(first) + offset].key;
    return keys;
}

inline constexpr auto allFKeys = consecutiveFKeys<fKeyCount>(FKey::f1);
inline constexpr auto functionRowKeys = consecutiveFKeys<12>(FKey::f1);
inline constexpr auto primeSpecialKeys = consecutiveFKeys<5>(FKey::capsLock);
/// F13 to F19. Where function keys and other keys are told apart, these are other keys.
inline constexpr auto extendedFKeys = consecutiveFKeys<7>(FKey::f13);

[[nodiscard]] constexpr QStringView rawValue(FKey key) noexcept
{
    return fKeyRows[orderOf(key)].rawValue;
}

[[nodiscard]] constexpr QStringView displayName(FKey key) noexcept
{
    return fKeyRows[orderOf(key)].displayName;
}

[[nodiscard]] constexpr QStringView defaultLabel(FKey key) noexcept
{
    return fKeyRows[orderOf(key)].defaultLabel;
}

[[nodiscard]] constexpr QStringView defaultIcon(FKey key) noexcept
{
    return fKeyRows[orderOf(key)].defaultIcon;
}

[[nodiscard]] constexpr KeyAction defaultAction(FKey key) noexcept
{
    return fKeyRows[orderOf(key)].defaultAction;
}

[[nodiscard]] constexpr std::uint16_t virtualKeyCode(FKey key) noexcept
{
    return fKeyRows[orderOf(key)].virtualKeyCode;
}

/// True for F1 to F12 and for nothing else.
[[nodiscard]] constexpr bool isFunctionRowKey(FKey key) noexcept
{
    return key <= functionRowKeys.back();
}

/// Absent for any text that is not exactly a stored name.
[[nodiscard]] constexpr std::optional<FKey> fKeyFromRawValue(QStringView text) noexcept
{
    return findByRawValue<FKey>(fKeyRows, text);
}

} // namespace tarvin
