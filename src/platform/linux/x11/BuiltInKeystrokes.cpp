#include "platform/linux/x11/BuiltInKeystrokes.h"

#include <algorithm>
#include <array>

namespace tarvin::x11 {

namespace {

constexpr auto command = EventFlags::command;
constexpr auto control = EventFlags::control;
constexpr auto option = EventFlags::option;
constexpr auto shift = EventFlags::shift;
constexpr auto none = EventFlags::none;

constexpr KeyCode leftArrow = 123;

struct MeaningRow
{
    KeyCode keyCode;
    EventFlags flags;
    BuiltInMeaning ordinary;
    BuiltInMeaning inTerminal;
};

constexpr MeaningRow always(KeyCode keyCode, EventFlags flags, BuiltInMeaning meaning)
{
    return {keyCode, flags, meaning, meaning};
}

constexpr MeaningRow letter(KeyCode keyCode, char name)
{
    return always(keyCode, command, DesktopKeystroke{keyCode, control, name});
}

constexpr MeaningRow clipboardLetter(KeyCode keyCode, char name)
{
    return {
        keyCode, command, DesktopKeystroke{keyCode, control, name}, DesktopKeystroke{keyCode, control | shift, name}};
}

constexpr auto meanings = std::to_array<MeaningRow>({
    clipboardLetter(8, 'c'),
    clipboardLetter(9, 'v'),
    letter(7, 'x'),
    letter(6, 'z'),
    always(6, command | shift, DesktopKeystroke{6, control | shift, 'z'}),
    letter(0, 'a'),
    letter(15, 'r'),
    letter(17, 't'),
    letter(45, 'n'),
    letter(13, 'w'),
    always(33, command, DesktopKeystroke{leftArrow, option}),
    always(126, control, DesktopFunction::showAllWindows),
    always(125, control, DesktopFunction::showApplicationWindows),
    always(leftArrow, control, DesktopFunction::previousDesktop),
    always(124, control, DesktopFunction::nextDesktop),
    // Showing the desktop is asked for by F11 and at once again by this.
    always(103, none, DesktopFunction::showDesktop),
    always(99, command, NothingMore{}),
    always(49, command, DesktopFunction::search),
    always(12, command | control, DesktopFunction::lockScreen),
    always(4, command | option, DesktopFunction::hideOtherApplications),
    always(53, command | option, DesktopFunction::forceQuitDialog),
    always(96, none, DesktopFunction::dictation),
    always(97, none, DesktopFunction::doNotDisturb),
});

} // namespace

std::string_view nameOf(DesktopFunction function) noexcept
{
    switch (function) {
    case DesktopFunction::showAllWindows:
        return "show all windows";
    case DesktopFunction::showApplicationWindows:
        return "show the application's windows";
    case DesktopFunction::previousDesktop:
        return "previous desktop";
    case DesktopFunction::nextDesktop:
        return "next desktop";
    case DesktopFunction::showDesktop:
        return "show desktop";
    case DesktopFunction::search:
        return "search";
    case DesktopFunction::lockScreen:
        return "lock screen";
    case DesktopFunction::hideOtherApplications:
        return "hide other applications";
    case DesktopFunction::forceQuitDialog:
        return "force quit dialog";
    case DesktopFunction::dictation:
        return "dictation";
    case DesktopFunction::doNotDisturb:
        return "do not disturb";
    }
    return {};
}

BuiltInMeaning meaningOfBuiltIn(KeyCode keyCode, EventFlags flags, FrontWindow front) noexcept
{
    const auto* const found = std::ranges::find_if(
        meanings, [&](const MeaningRow& row) { return row.keyCode == keyCode && row.flags == flags; });
    if (found == meanings.end())
        return DesktopKeystroke{keyCode, flags};
    return front == FrontWindow::terminal ? found->inTerminal : found->ordinary;
}

} // namespace tarvin::x11
