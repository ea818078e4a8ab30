#pragma once

#include "model/ActionParameters.h"
#include "model/CustomShortcut.h"
#include "platform/ports/EventFlags.h"

#include <QList>
#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tarvin {

class UuidGenerator;

struct PresetKey
{
    EventFlags modifiers;
    std::uint16_t keyCode;
    QStringView keyDisplay;
};

/// A list of shortcuts to begin with.
struct ShortcutPreset
{
    static constexpr std::size_t mostKeys = 3;

    QStringView title;
    MultiKeyPlaybackMode mode;
    std::size_t keyCount;
    std::array<PresetKey, mostKeys> storage; ///< the first `keyCount` count

    [[nodiscard]] constexpr std::span<const PresetKey> keys() const { return std::span(storage).first(keyCount); }
};

inline constexpr auto shortcutPresets = std::to_array<ShortcutPreset>({
    {u"⌘ ⌥ Esc (Force Quit)", MultiKeyPlaybackMode::simultaneous, 1,
        {{{EventFlags::command | EventFlags::option, 53, u"Esc"}}}},
    {u"⌘ ⇧ 4 (Capture Area)", MultiKeyPlaybackMode::simultaneous, 1,
        {{{EventFlags::command | EventFlags::shift, 21, u"4"}}}},
    {u"3 Keys (⌃ ⌥ Space)", MultiKeyPlaybackMode::simultaneous, 1,
        {{{EventFlags::option | EventFlags::control, 49, u"Space"}}}},
    {u"3 Keys (A + B + C)", MultiKeyPlaybackMode::simultaneous, 3,
        {{{EventFlags::none, 0, u"A"}, {EventFlags::none, 11, u"B"}, {EventFlags::none, 8, u"C"}}}},
    {u"Copy & Paste (⌘C then ⌘V)", MultiKeyPlaybackMode::sequential, 2,
        {{{EventFlags::command, 8, u"C"}, {EventFlags::command, 9, u"V"}}}},
});

/// A recorded key with an identity of its own.
[[nodiscard]] CustomShortcut makeShortcut(
    EventFlags modifiers, std::uint16_t keyCode, const QString& keyDisplay, UuidGenerator& uuids);

/// The preset's keys, each with an identity of its own.
[[nodiscard]] QList<CustomShortcut> shortcutsOf(const ShortcutPreset& preset, UuidGenerator& uuids);

} // namespace tarvin
