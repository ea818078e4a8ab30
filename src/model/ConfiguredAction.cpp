#include "model/ConfiguredAction.h"

#include "model/OptionalText.h"

#include <utility>

namespace tarvin {

ConfiguredAction::ConfiguredAction(KeyAction newAction)
    : action(newAction)
{ }

ConfiguredAction::ConfiguredAction(KeyAction newAction, ScreenCaptureMode newScreenCaptureMode,
    ScreenCaptureDestination newScreenCaptureDestination, ForceQuitMode newForceQuitMode,
    std::optional<CustomShortcut> newCustomShortcut, QList<CustomShortcut> newCustomShortcuts,
    MultiKeyPlaybackMode newMultiKeyMode, std::optional<QString> newTextSnippet, std::optional<QString> newCustomURL,
    std::optional<QString> newCustomAppName, std::optional<QString> newCustomAppBundleId,
    std::optional<QString> newCustomAppPath, QList<ActionChainStep> newChainSteps,
    std::optional<QString> newQuickFlipCompanionBundleId, std::optional<QString> newQuickFlipCompanionAppName)
    : action(newAction)
    , screenCaptureMode(newScreenCaptureMode)
    , screenCaptureDestination(newScreenCaptureDestination)
    , forceQuitMode(newForceQuitMode)
    , customShortcut(std::move(newCustomShortcut))
    , customShortcuts(std::move(newCustomShortcuts))
    , multiKeyMode(newMultiKeyMode)
    , textSnippet(std::move(newTextSnippet))
    , customURL(std::move(newCustomURL))
    , customAppName(std::move(newCustomAppName))
    , customAppBundleId(std::move(newCustomAppBundleId))
    , customAppPath(std::move(newCustomAppPath))
    , chainSteps(std::move(newChainSteps))
    , quickFlipCompanionBundleId(std::move(newQuickFlipCompanionBundleId))
    , quickFlipCompanionAppName(std::move(newQuickFlipCompanionAppName))
{
    if (customShortcuts.isEmpty() && customShortcut)
        customShortcuts = {*customShortcut};
    else if (!customShortcuts.isEmpty() && !customShortcut)
        customShortcut = customShortcuts.first();
}

QList<CustomShortcut> ConfiguredAction::allShortcuts() const
{
    if (!customShortcuts.isEmpty())
        return customShortcuts;
    if (customShortcut && customShortcut->namesKey())
        return {*customShortcut};
    return {};
}

bool ConfiguredAction::isEffectivelyCustom(FKey key) const
{
    return action != defaultAction(key) || !allShortcuts().isEmpty() || hasText(textSnippet) || hasText(customURL)
        || hasText(customAppName) || hasText(customAppBundleId) || hasText(customAppPath) || !chainSteps.isEmpty()
        || hasText(quickFlipCompanionBundleId);
}

} // namespace tarvin
