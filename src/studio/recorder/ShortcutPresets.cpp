#include "studio/recorder/ShortcutPresets.h"

#include "platform/ports/UuidGenerator.h"

namespace tarvin {

CustomShortcut makeShortcut(
    EventFlags modifiers, std::uint16_t keyCode, const QString& keyDisplay, UuidGenerator& uuids)
{
    return {.id = uuids.next(),
        .command = containsAll(modifiers, EventFlags::command),
        .option = containsAll(modifiers, EventFlags::option),
        .control = containsAll(modifiers, EventFlags::control),
        .shift = containsAll(modifiers, EventFlags::shift),
        .keyCode = keyCode,
        .keyDisplay = keyDisplay};
}

QList<CustomShortcut> shortcutsOf(const ShortcutPreset& preset, UuidGenerator& uuids)
{
    QList<CustomShortcut> shortcuts;
    for (const PresetKey& key : preset.keys())
        shortcuts.append(makeShortcut(key.modifiers, key.keyCode, key.keyDisplay.toString(), uuids));
    return shortcuts;
}

} // namespace tarvin
