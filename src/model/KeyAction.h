#pragma once

#include "model/ActionCategory.h"

#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace tarvin {

/// Everything a key can be told to do. The order matters: the picker's lists and the category rule
/// rest on it, so a new action goes behind the last one that the picker offers.
enum class KeyAction : std::uint8_t {
    screenCapture,
    toggleMicMute,
    showActionsRing,
    keyboardShortcut,
    openApplication,
    openWebURL,
    aiAssistant,
    smartWorkFocus,
    smartMeetingMute,
    smartCleanDesk,
    textSnippet,
    clipboardHistory,
    quickAppFlip,
    actionChain,
    floatingScratchpad,
    snapWindowLeft,
    snapWindowRight,
    snapWindowMaximize,
    advancedClick,
    appExpose,
    back,
    brightnessDown,
    brightnessUp,
    calculator,
    closeBrowserTab,
    closeWindow,
    copy,
    cut,
    forwardDelete, ///< stored as "delete", which the language keeps for itself
    desktopLeft,
    desktopRight,
    dictation,
    doNotDisturb,
    finder,
    forceQuit,
    lockScreen,
    minimizeWindow,
    missionControl,
    mute,
    newBrowserTab,
    newBrowserWindow,
    nextTrack,
    notes,
    paste,
    playPause,
    previousTrack,
    redo,
    refresh,
    restart,
    safari,
    selectAll,
    showDesktop,
    shutDown,
    sleepDevice,
    sleepDisplay,
    spotlight,
    systemSettings,
    terminal,
    toggleFullscreen,
    undo,
    volumeDown,
    volumeUp,
    nativeCapsLock,
    nativeRightOption,
    nativeRightCommand,
    nativeFnGlobe,
    nativeSection,
    unassigned,
    screenshotArea,
    screenshotFull,
};

inline constexpr std::size_t keyActionCount = 70;

/// How many actions, counted from the first, the picker offers. Behind them stand the factory
/// behaviours of the physical keys and the actions that survive only as stored names.
inline constexpr std::size_t configurableKeyActionCount = 62;

inline constexpr std::array<KeyAction, keyActionCount> allKeyActions = [] {
    std::array<KeyAction, keyActionCount> actions{};
    for (std::size_t position = 0; position < keyActionCount; ++position)
        actions[position] = static_cast<KeyAction>(position);
    return actions;
}();
static_assert(allKeyActions.back() == KeyAction::screenshotFull);

/// What the picker offers, in order.
inline constexpr std::span<const KeyAction, configurableKeyActionCount> allConfigurableKeyActions =
    std::span(allKeyActions).first<configurableKeyActionCount>();
static_assert(allConfigurableKeyActions.back() == KeyAction::volumeUp);

/// The section of the picker in which @p action stands.
[[nodiscard]] constexpr ActionCategory category(KeyAction action) noexcept
{
    if (action <= KeyAction::aiAssistant)
        return ActionCategory::recommended;
    if (action <= KeyAction::floatingScratchpad)
        return ActionCategory::smartActions;
    if (action <= KeyAction::snapWindowMaximize || action == KeyAction::toggleFullscreen)
        return ActionCategory::windowSnapping;
    return ActionCategory::otherActions;
}

/// Stored name; never changes, files hold it.
[[nodiscard]] QStringView rawValue(KeyAction action) noexcept;
[[nodiscard]] QStringView title(KeyAction action) noexcept;
/// One line of description for the picker.
[[nodiscard]] QStringView subtitle(KeyAction action) noexcept;
/// Name in the symbol font.
[[nodiscard]] QStringView icon(KeyAction action) noexcept;
/// The words by which a search finds the action, beside its title. The span lives as long as the program.
[[nodiscard]] std::span<const QStringView> keywords(KeyAction action) noexcept;

/// Absent for any text that is not exactly a stored name of today.
[[nodiscard]] std::optional<KeyAction> keyActionFromRawValue(QStringView text) noexcept;

} // namespace tarvin
