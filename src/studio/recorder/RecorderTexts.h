#pragma once

#include "model/ActionParameters.h"
#include "model/CustomShortcut.h"

#include <QString>
#include <QStringList>
#include <QStringView>

/// What the shortcut recorder says. Counts are those of the keys in the list.
namespace tarvin::recorder_texts {

inline constexpr QStringView recordSequence = u"Record sequence";
inline constexpr QStringView recordSequenceTooltip =
    u"Press multiple keys on your keyboard one after another to record a multi-key combo";
inline constexpr QStringView clear = u"Clear";
inline constexpr QStringView done = u"Done";
inline constexpr QStringView pressKey = u"Press key...";
inline constexpr QStringView reRecordTooltip = u"Re-record this key";
inline constexpr QStringView removeTooltip = u"Remove this key";
inline constexpr QStringView presetsHeading = u"QUICK MULTI-KEY PRESETS";
inline constexpr QStringView keyboardRefused =
    u"Another program has the keyboard. Close its menu or dialog, then try again.";
inline constexpr QStringView hint =
    u"Tip: Add 2, 3, or more keys. Set to 'All at once' to trigger all keys simultaneously when clicked.";

/// The button that records one key more.
[[nodiscard]] constexpr QStringView addKey(qsizetype count) noexcept
{
    return count == 0 ? QStringView(u"Click to record shortcut") : QStringView(u"+ Add another key");
}

[[nodiscard]] QString playbackHeading(qsizetype count);
[[nodiscard]] QString playbackExplanation(MultiKeyPlaybackMode mode, qsizetype count);
[[nodiscard]] QString keyTag(qsizetype index);
/// The chips of the modifiers, in the order in which they stand.
[[nodiscard]] QStringList modifierChips(const CustomShortcut& shortcut);
/// The chip of the key itself.
[[nodiscard]] QString keyChip(const CustomShortcut& shortcut);
/// The whole row in words, as long as it isn't recorded anew.
[[nodiscard]] QString rowName(qsizetype index, const CustomShortcut& shortcut);
[[nodiscard]] QString test(MultiKeyPlaybackMode mode, qsizetype count);
[[nodiscard]] QString testFeedback(MultiKeyPlaybackMode mode, qsizetype count);

} // namespace tarvin::recorder_texts
