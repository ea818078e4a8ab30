#include "studio/recorder/RecorderTexts.h"

namespace tarvin::recorder_texts {

QString playbackHeading(qsizetype count)
{
    return QStringLiteral("TRIGGER BEHAVIOR (%1 KEYS)").arg(count);
}

QString playbackExplanation(MultiKeyPlaybackMode mode, qsizetype count)
{
    switch (mode) {
    case MultiKeyPlaybackMode::simultaneous:
        return QStringLiteral("Presses and holds all %1 keys together at once.").arg(count);
    case MultiKeyPlaybackMode::sequential:
        return QStringLiteral("Plays each of the %1 keys one after another in order.").arg(count);
    }
    return {};
}

QString keyTag(qsizetype index)
{
    return QStringLiteral("Key %1").arg(index + 1);
}

QStringList modifierChips(const CustomShortcut& shortcut)
{
    QStringList chips;
    if (shortcut.control)
        chips += QStringLiteral("⌃");
    if (shortcut.option)
        chips += QStringLiteral("⌥");
    if (shortcut.shift)
        chips += QStringLiteral("⇧");
    if (shortcut.command)
        chips += QStringLiteral("⌘");
    return chips;
}

QString keyChip(const CustomShortcut& shortcut)
{
    return shortcut.keyDisplay.isEmpty() ? QStringLiteral("?") : shortcut.keyDisplay.toUpper();
}

QString rowName(qsizetype index, const CustomShortcut& shortcut)
{
    const QStringList chips = modifierChips(shortcut) + QStringList(keyChip(shortcut));
    return keyTag(index) + QStringLiteral(": ") + chips.join(u' ');
}

QString test(MultiKeyPlaybackMode mode, qsizetype count)
{
    if (count == 1)
        return QStringLiteral("Test Key Shortcut");
    return QStringLiteral("Test %1 Keys (%2)").arg(count).arg(shortLabel(mode));
}

QString testFeedback(MultiKeyPlaybackMode mode, qsizetype count)
{
    const bool isSequential = mode == MultiKeyPlaybackMode::sequential;
    return QStringLiteral("Fired %1 keys (%2)").arg(count).arg(isSequential ? u"Sequential" : u"Simultaneous");
}

} // namespace tarvin::recorder_texts
