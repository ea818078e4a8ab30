#pragma once

#include "model/KeyAction.h"
#include "platform/ports/EventFlags.h"
#include "platform/ports/InputEvent.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>

namespace tarvin {

struct Keystroke
{
    KeyCode keyCode = 0;
    EventFlags flags = EventFlags::none;
};

/// To whom a keystroke goes.
enum class Addressee : std::uint8_t {
    whoeverIsInFront, ///< posted at once, the program itself included
    workingApplication, ///< brought forward first when the program itself is in front
};

/// Whether the system is asked for the same key a second time, by a script.
enum class ScriptEcho : std::uint8_t { none, sameKey };

/// An action that is a keystroke of its own.
struct KeystrokeActionRow
{
    KeyAction action;
    Addressee addressee;
    ScriptEcho echo;
    Keystroke keystroke;
    QStringView notice; ///< empty for the actions that say nothing
    std::optional<Keystroke> second{}; ///< follows at once, before the first is released
};

namespace detail {

inline constexpr auto keystrokeActionRows = [] {
    using enum EventFlags;
    using enum Addressee;
    constexpr auto once = ScriptEcho::none;
    constexpr auto twice = ScriptEcho::sameKey;
    // The codes are those of A 0, Z 6, X 7, C 8, V 9, Q 12, W 13, R 15, T 17, left bracket 33, N 45, space 49, F5 96,
    // F6 97, F3 99, F11 103, forward delete 117 and the arrows left 123, right 124, down 125, up 126.
    return std::to_array<KeystrokeActionRow>({
        {KeyAction::appExpose, whoeverIsInFront, once, {125, control}, u""},
        {KeyAction::back, workingApplication, once, {33, command}, u"Back (⌘[)"},
        {KeyAction::closeBrowserTab, workingApplication, once, {13, command}, u""},
        {KeyAction::closeWindow, workingApplication, once, {13, command}, u""},
        {KeyAction::copy, workingApplication, once, {8, command}, u"Copied (⌘C)"},
        {KeyAction::cut, workingApplication, once, {7, command}, u"Cut (⌘X)"},
        {KeyAction::forwardDelete, workingApplication, once, {117, none}, u""},
        {KeyAction::desktopLeft, whoeverIsInFront, once, {123, control}, u""},
        {KeyAction::desktopRight, whoeverIsInFront, once, {124, control}, u""},
        {KeyAction::dictation, whoeverIsInFront, twice, {96, none}, u""},
        {KeyAction::doNotDisturb, whoeverIsInFront, twice, {97, none}, u""},
        {KeyAction::lockScreen, whoeverIsInFront, once, {12, command | control}, u""},
        {KeyAction::missionControl, whoeverIsInFront, once, {126, control}, u"Mission Control"},
        {KeyAction::newBrowserTab, workingApplication, once, {17, command}, u""},
        {KeyAction::newBrowserWindow, workingApplication, once, {45, command}, u""},
        {KeyAction::paste, workingApplication, once, {9, command}, u"Pasted (⌘V)"},
        {KeyAction::redo, workingApplication, once, {6, command | shift}, u"Redo (⇧⌘Z)"},
        {KeyAction::refresh, workingApplication, once, {15, command}, u"Refreshed (⌘R)"},
        {KeyAction::selectAll, workingApplication, once, {0, command}, u"Selected All (⌘A)"},
        {KeyAction::showDesktop, workingApplication, once, {103, none}, u"", Keystroke{99, command}},
        {KeyAction::spotlight, whoeverIsInFront, twice, {49, command}, u"Spotlight"},
        {KeyAction::undo, workingApplication, once, {6, command}, u"Undo (⌘Z)"},
    });
}();
static_assert(std::ranges::adjacent_find(keystrokeActionRows, std::ranges::greater_equal{}, &KeystrokeActionRow::action)
        == keystrokeActionRows.end(),
    "in the order of the vocabulary, each action once");

} // namespace detail

/// The row of an action, null for an action that is not a keystroke of its own.
[[nodiscard]] constexpr const KeystrokeActionRow* keystrokeActionRow(KeyAction action) noexcept
{
    const auto& rows = detail::keystrokeActionRows;
    const auto found = std::ranges::find(rows, action, &KeystrokeActionRow::action);
    return found == rows.end() ? nullptr : &*found;
}

} // namespace tarvin
