#pragma once

#include "studio/cards/KeyRecord.h"
#include "studio/recorder/ShortcutRecorder.h"

namespace tarvin {

/// Lets a recorder edit the shortcuts of a key. Each write is stored by itself, so saving adds nothing.
[[nodiscard]] inline ShortcutBinding shortcutBinding(const KeyRecord& record)
{
    return {.shortcuts = [record] { return record.config().allShortcuts(); },
        .setShortcuts =
            [record](const QList<CustomShortcut>& shortcuts) {
                record.change([&](ConfiguredAction& config) {
                    config.customShortcuts = shortcuts;
                    config.customShortcut = shortcuts.isEmpty() ? std::nullopt : std::optional(shortcuts.first());
                });
            },
        .playbackMode = [record] { return record.config().multiKeyMode; },
        .setPlaybackMode =
            [record](MultiKeyPlaybackMode mode) {
                record.change([mode](ConfiguredAction& config) { config.multiKeyMode = mode; });
            },
        .onSave = [] {}};
}

} // namespace tarvin
