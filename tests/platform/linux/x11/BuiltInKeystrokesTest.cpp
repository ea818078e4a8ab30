#include "platform/linux/x11/BuiltInKeystrokes.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>

namespace tarvin::x11 {

namespace {

constexpr auto none = EventFlags::none;
constexpr auto shift = EventFlags::shift;
constexpr auto control = EventFlags::control;
constexpr auto option = EventFlags::option;
constexpr auto command = EventFlags::command;

BuiltInMeaning meaning(KeyCode keyCode, EventFlags flags, FrontWindow front = FrontWindow::ordinary)
{
    return meaningOfBuiltIn(keyCode, flags, front);
}

TEST(BuiltInKeystrokes, commandWithALetterIsControlWithTheLetter)
{
    const std::map<char, KeyCode> letters{
        {'c', 8}, {'v', 9}, {'x', 7}, {'z', 6}, {'a', 0}, {'r', 15}, {'t', 17}, {'n', 45}, {'w', 13}};
    for (const auto& [letter, keyCode] : letters)
        EXPECT_EQ(meaning(keyCode, command), BuiltInMeaning(DesktopKeystroke{keyCode, control, letter})) << letter;
    EXPECT_EQ(meaning(6, command | shift), BuiltInMeaning(DesktopKeystroke{6, control | shift, 'z'}));
}

TEST(BuiltInKeystrokes, aTerminalCopiesAndPastesWithShiftAsWell)
{
    const auto inTerminal = FrontWindow::terminal;
    EXPECT_EQ(meaning(8, command, inTerminal), BuiltInMeaning(DesktopKeystroke{8, control | shift, 'c'}));
    EXPECT_EQ(meaning(9, command, inTerminal), BuiltInMeaning(DesktopKeystroke{9, control | shift, 'v'}));
    EXPECT_EQ(meaning(0, command, inTerminal), BuiltInMeaning(DesktopKeystroke{0, control, 'a'}));
}

TEST(BuiltInKeystrokes, backIsAltWithTheLeftArrow)
{
    EXPECT_EQ(meaning(33, command), BuiltInMeaning(DesktopKeystroke{123, option}));
}

TEST(BuiltInKeystrokes, whatTheDesktopDoesIsNoKeystroke)
{
    const std::map<std::pair<KeyCode, EventFlags>, DesktopFunction> functions{
        {{126, control}, DesktopFunction::showAllWindows},
        {{125, control}, DesktopFunction::showApplicationWindows},
        {{123, control}, DesktopFunction::previousDesktop},
        {{124, control}, DesktopFunction::nextDesktop},
        {{103, none}, DesktopFunction::showDesktop},
        {{49, command}, DesktopFunction::search},
        {{12, command | control}, DesktopFunction::lockScreen},
        {{4, command | option}, DesktopFunction::hideOtherApplications},
        {{53, command | option}, DesktopFunction::forceQuitDialog},
        {{96, none}, DesktopFunction::dictation},
        {{97, none}, DesktopFunction::doNotDisturb},
    };
    std::set<std::string> names;
    for (const auto& [keystroke, function] : functions) {
        EXPECT_EQ(meaning(keystroke.first, keystroke.second), BuiltInMeaning(function)) << keystroke.first;
        names.emplace(nameOf(function));
    }
    EXPECT_EQ(names.size(), functions.size());
    EXPECT_FALSE(names.contains(""));
}

TEST(BuiltInKeystrokes, showingTheDesktopIsAskedForOnce)
{
    EXPECT_EQ(meaning(99, command), BuiltInMeaning(NothingMore{}));
}

TEST(BuiltInKeystrokes, anythingElseGoesOutAsItIs)
{
    EXPECT_EQ(meaning(117, none), BuiltInMeaning(DesktopKeystroke{117, none}));
    EXPECT_EQ(meaning(8, none), BuiltInMeaning(DesktopKeystroke{8, none}));
    EXPECT_EQ(meaning(8, command | option), BuiltInMeaning(DesktopKeystroke{8, command | option}));
}

} // namespace

} // namespace tarvin::x11
