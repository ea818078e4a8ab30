#include "studio/picker/PickerSection.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace tarvin {

namespace {

constexpr auto recommendedActions = std::to_array<KeyAction>({
    KeyAction::screenCapture,
    KeyAction::openApplication,
    KeyAction::toggleMicMute,
    KeyAction::showActionsRing,
    KeyAction::keyboardShortcut,
    KeyAction::openWebURL,
    KeyAction::aiAssistant,
});

constexpr auto smartActions = std::to_array<KeyAction>({
    KeyAction::clipboardHistory,
    KeyAction::quickAppFlip,
    KeyAction::actionChain,
    KeyAction::floatingScratchpad,
    KeyAction::smartWorkFocus,
    KeyAction::smartMeetingMute,
    KeyAction::smartCleanDesk,
    KeyAction::textSnippet,
});

constexpr auto windowActions = std::to_array<KeyAction>({
    KeyAction::snapWindowLeft,
    KeyAction::snapWindowRight,
    KeyAction::snapWindowMaximize,
    KeyAction::toggleFullscreen,
});

constexpr std::size_t countOf(ActionCategory wanted)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        allConfigurableKeyActions, [wanted](KeyAction action) { return category(action) == wanted; }));
}
// The sections order the actions by hand; none may be forgotten.
static_assert(recommendedActions.size() == countOf(ActionCategory::recommended));
static_assert(smartActions.size() == countOf(ActionCategory::smartActions));
static_assert(windowActions.size() == countOf(ActionCategory::windowSnapping));

QList<PickerRow> rowsFor(std::span<const KeyAction> actions)
{
    QList<PickerRow> rows;
    rows.reserve(static_cast<qsizetype>(actions.size()));
    std::ranges::transform(actions, std::back_inserter(rows), rowFor);
    return rows;
}

} // namespace

QStringView heading(PickerSection section, ActionUsageFilter filter)
{
    switch (section) {
    case PickerSection::frequentlyUsed:
        return headerTitle(filter);
    case PickerSection::recommended:
        return u"RECOMMENDED";
    case PickerSection::smartActions:
        return u"SMART ACTIONS & TEXT";
    case PickerSection::windowManagement:
        return u"WINDOW MANAGEMENT";
    case PickerSection::otherActions:
        return u"OTHER ACTIONS";
    }
    return {};
}

QList<KeyAction> otherActionsList()
{
    QList<KeyAction> actions;
    std::ranges::copy_if(allConfigurableKeyActions, std::back_inserter(actions),
        [](KeyAction action) { return category(action) == ActionCategory::otherActions; });
    return actions;
}

QList<PickerRow> fixedRows(PickerSection section)
{
    switch (section) {
    case PickerSection::frequentlyUsed:
        return {};
    case PickerSection::recommended:
        return rowsFor(recommendedActions);
    case PickerSection::smartActions:
        return rowsFor(smartActions);
    case PickerSection::windowManagement:
        return rowsFor(windowActions);
    case PickerSection::otherActions:
        return rowsFor(otherActionsList());
    }
    return {};
}

} // namespace tarvin
