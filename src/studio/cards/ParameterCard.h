#pragma once

#include "model/KeyAction.h"
#include "model/RawValueRows.h"

#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace tarvin {

/// The actions that need more than a click: each stands in the lists as a card that opens while it is selected.
enum class ParameterCard : std::uint8_t {
    screenCapture,
    openApplication,
    openWebURL,
    keyboardShortcut,
    textSnippet,
    clipboardHistory,
    quickAppFlip,
    actionChain,
    floatingScratchpad,
    forceQuit,
};

/// The header's symbol, title and subtitle are those of the action.
struct ParameterCardRow
{
    ParameterCard card;
    KeyAction action; ///< what a click on the header chooses
    QStringView description; ///< the whole body of a card without parameters; empty for the others
};

inline constexpr auto parameterCardRows = std::to_array<ParameterCardRow>({
    {ParameterCard::screenCapture, KeyAction::screenCapture, u""},
    {ParameterCard::openApplication, KeyAction::openApplication, u""},
    {ParameterCard::openWebURL, KeyAction::openWebURL, u""},
    {ParameterCard::keyboardShortcut, KeyAction::keyboardShortcut, u""},
    {ParameterCard::textSnippet, KeyAction::textSnippet, u""},
    {ParameterCard::clipboardHistory, KeyAction::clipboardHistory,
        u"Summons floating multi-copy HUD over any app. Press 1–9 or click to paste directly back into your front "
        u"app."},
    {ParameterCard::quickAppFlip, KeyAction::quickAppFlip,
        u"Instantly bounce between your two active apps (e.g. Code ↔ Terminal) in 0.1ms with zero alt-tab friction."},
    {ParameterCard::actionChain, KeyAction::actionChain, u""},
    {ParameterCard::floatingScratchpad, KeyAction::floatingScratchpad,
        u"Floating translucent notepad over all apps. Type notes, copy code, auto-saves continuously, dismiss with "
        u"Esc."},
    {ParameterCard::forceQuit, KeyAction::forceQuit, u""},
});
static_assert(rowsStandInEnumerationOrder(parameterCardRows, &ParameterCardRow::card));

[[nodiscard]] constexpr KeyAction actionOf(ParameterCard card) noexcept
{
    return parameterCardRows[static_cast<std::size_t>(card)].action;
}

[[nodiscard]] constexpr QStringView description(ParameterCard card) noexcept
{
    return parameterCardRows[static_cast<std::size_t>(card)].description;
}

/// The card that stands for the action. The two retired screenshot actions share the one of their successor.
[[nodiscard]] constexpr std::optional<ParameterCard> cardOf(KeyAction action) noexcept
{
    if (action == KeyAction::screenshotArea || action == KeyAction::screenshotFull)
        return ParameterCard::screenCapture;
    for (const ParameterCardRow& row : parameterCardRows) {
        if (row.action == action)
            return row.card;
    }
    return std::nullopt;
}

} // namespace tarvin
