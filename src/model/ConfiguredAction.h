#pragma once

#include "model/ActionChainStep.h"
#include "model/ActionParameters.h"
#include "model/CustomShortcut.h"
#include "model/FKey.h"
#include "model/KeyAction.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace tarvin {

/// Everything that one key is told to do: an action with its parameters.
struct ConfiguredAction
{
    /// A new record: no parameters, the modes as a new mapping has them.
    explicit ConfiguredAction(KeyAction action);

    /// Every field, in the order of declaration. The two shortcut fields are made to agree: a lone
    /// shortcut becomes the list, and an absent one becomes the first of the list.
    ConfiguredAction(KeyAction action, ScreenCaptureMode screenCaptureMode,
        ScreenCaptureDestination screenCaptureDestination, ForceQuitMode forceQuitMode,
        std::optional<CustomShortcut> customShortcut, QList<CustomShortcut> customShortcuts,
        MultiKeyPlaybackMode multiKeyMode, std::optional<QString> textSnippet, std::optional<QString> customURL,
        std::optional<QString> customAppName, std::optional<QString> customAppBundleId,
        std::optional<QString> customAppPath, QList<ActionChainStep> chainSteps,
        std::optional<QString> quickFlipCompanionBundleId, std::optional<QString> quickFlipCompanionAppName);

    KeyAction action;
    ScreenCaptureMode screenCaptureMode = ScreenCaptureMode::region;
    ScreenCaptureDestination screenCaptureDestination = ScreenCaptureDestination::clipboard;
    ForceQuitMode forceQuitMode = ForceQuitMode::activeApp;
    std::optional<CustomShortcut> customShortcut{}; ///< the first or only shortcut
    QList<CustomShortcut> customShortcuts{}; ///< all shortcuts of a multi-key action
    MultiKeyPlaybackMode multiKeyMode = MultiKeyPlaybackMode::simultaneous;
    std::optional<QString> textSnippet{};
    std::optional<QString> customURL{};
    std::optional<QString> customAppName{}; ///< as shown
    std::optional<QString> customAppBundleId{};
    std::optional<QString> customAppPath{};
    QList<ActionChainStep> chainSteps{}; ///< the steps of a macro
    std::optional<QString> quickFlipCompanionBundleId{}; ///< the second application of a quick flip
    std::optional<QString> quickFlipCompanionAppName{}; ///< as shown

    /// Every field in depth, the identities of shortcuts and steps included.
    bool operator==(const ConfiguredAction&) const = default;

    /// The shortcuts to play: the list or, if it is empty, the single shortcut when it names a key.
    [[nodiscard]] QList<CustomShortcut> allShortcuts() const;

    /// Whether the record differs from what the factory made @p key do. The modes and the name of
    /// the companion application alone make no difference.
    [[nodiscard]] bool isEffectivelyCustom(FKey key) const;

    /// One line for log lines, the trigger notice and the interface.
    [[nodiscard]] QString displayTitle() const;

    /// Short lines for small spaces, such as a keycap; at least one.
    [[nodiscard]] QStringList summaryLines() const;
};

} // namespace tarvin
