#pragma once

#include "model/CustomShortcut.h"
#include "model/KeyAction.h"
#include "model/RawValueRows.h"

#include <QString>
#include <QUuid>

#include <array>
#include <cstdint>
#include <optional>

namespace tarvin {

/// What one step of a macro does.
enum class ActionChainStepType : std::uint8_t { shortcut, delay, textSnippet, openURL, keyAction };

struct ActionChainStepTypeRow
{
    ActionChainStepType type;
    QStringView rawValue;
    QStringView title;
    QStringView icon;
};

inline constexpr auto actionChainStepTypeRows = std::to_array<ActionChainStepTypeRow>({
    {ActionChainStepType::shortcut, u"shortcut", u"Keyboard Shortcut", u"command"},
    {ActionChainStepType::delay, u"delay", u"Wait Delay", u"clock.arrow.circlepath"},
    {ActionChainStepType::textSnippet, u"text_snippet", u"Insert Text", u"character.cursor.ibeam"},
    {ActionChainStepType::openURL, u"open_url", u"Open URL", u"globe"},
    {ActionChainStepType::keyAction, u"key_action", u"Key Action", u"bolt.fill"},
});
static_assert(rowsStandInEnumerationOrder(actionChainStepTypeRows, &ActionChainStepTypeRow::type));
static_assert(rawValuesAreUnique(actionChainStepTypeRows));

inline constexpr std::array allActionChainStepTypes = {ActionChainStepType::shortcut, ActionChainStepType::delay,
    ActionChainStepType::textSnippet, ActionChainStepType::openURL, ActionChainStepType::keyAction};

[[nodiscard]] constexpr QStringView rawValue(ActionChainStepType type) noexcept
{
    return actionChainStepTypeRows[static_cast<std::size_t>(type)].rawValue;
}

[[nodiscard]] constexpr QStringView title(ActionChainStepType type) noexcept
{
    return actionChainStepTypeRows[static_cast<std::size_t>(type)].title;
}

[[nodiscard]] constexpr QStringView icon(ActionChainStepType type) noexcept
{
    return actionChainStepTypeRows[static_cast<std::size_t>(type)].icon;
}

[[nodiscard]] constexpr std::optional<ActionChainStepType> actionChainStepTypeFromRawValue(QStringView text) noexcept
{
    return findByRawValue<ActionChainStepType>(actionChainStepTypeRows, text);
}

/// One step of a macro. Of the optional fields only the one that the type uses has a value.
struct ActionChainStep
{
    QUuid id{};
    ActionChainStepType type = ActionChainStepType::shortcut;
    std::optional<CustomShortcut> customShortcut{};
    std::optional<QString> textSnippet{};
    std::optional<QString> customURL{};
    std::int64_t delayMs = 0; ///< milliseconds, as stored; a file may hold any number
    std::optional<KeyAction> keyAction{};

    bool operator==(const ActionChainStep&) const = default;

    /// The step in a few words, for the list of the macro's steps.
    [[nodiscard]] QString displayLabel() const;
};

} // namespace tarvin
