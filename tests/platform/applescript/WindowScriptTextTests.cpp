#include "platform/applescript/AppleScriptText.h"

#include <gtest/gtest.h>

namespace tarvin {
namespace {

TEST(WindowScriptText, snappingLeftTakesTheLeftHalf)
{
    EXPECT_EQ(appleScriptSource(SnapWindowByScript{WindowSnapPosition::left}).toStdString(),
        R"script(tell application "Finder" to set screenBounds to bounds of window of desktop
tell application "System Events"
    set frontApp to first application process whose frontmost is true
    tell frontApp
        if (count of windows) > 0 then
            set frontWin to front window
            set {x, y, screenW, screenH} to screenBounds
            set position of frontWin to {x, 25}
            set size of frontWin to {screenW / 2, screenH - 25}
        end if
    end tell
end tell)script");
}

TEST(WindowScriptText, snappingRightStartsInTheMiddle)
{
    EXPECT_EQ(appleScriptSource(SnapWindowByScript{WindowSnapPosition::right}).toStdString(),
        R"script(tell application "Finder" to set screenBounds to bounds of window of desktop
tell application "System Events"
    set frontApp to first application process whose frontmost is true
    tell frontApp
        if (count of windows) > 0 then
            set frontWin to front window
            set {x, y, screenW, screenH} to screenBounds
            set position of frontWin to {x + screenW / 2, 25}
            set size of frontWin to {screenW / 2, screenH - 25}
        end if
    end tell
end tell)script");
}

TEST(WindowScriptText, maximisingTakesTheWholeWidth)
{
    EXPECT_EQ(appleScriptSource(SnapWindowByScript{WindowSnapPosition::maximize}).toStdString(),
        R"script(tell application "Finder" to set screenBounds to bounds of window of desktop
tell application "System Events"
    set frontApp to first application process whose frontmost is true
    tell frontApp
        if (count of windows) > 0 then
            set frontWin to front window
            set {x, y, screenW, screenH} to screenBounds
            set position of frontWin to {x, 25}
            set size of frontWin to {screenW, screenH - 25}
        end if
    end tell
end tell)script");
}

TEST(WindowScriptText, fullScreenIsLookedForInTheMenuBeforeItsKeys)
{
    EXPECT_EQ(appleScriptSource(ToggleFullScreenByScript{}).toStdString(), R"script(tell application "System Events"
    set frontApp to first application process whose frontmost is true
    tell frontApp
        try
            click menu item "Enter Full Screen" of menu "View" of menu bar 1
            return
        on error
            try
                click menu item "Exit Full Screen" of menu "View" of menu bar 1
                return
            on error
                try
                    click menu item "Toggle Full Screen" of menu "View" of menu bar 1
                    return
                on error
                    -- Standard macOS key combination fallback (^⌘F)
                    keystroke "f" using {control down, command down}
                end try
            end try
        end try
    end tell
end tell)script");
}

TEST(WindowScriptText, minimisingSetsTheAttributeOfTheFirstWindow)
{
    EXPECT_EQ(appleScriptSource(MinimizeWindowByScript{}).toStdString(), R"script(tell application "System Events"
    set frontApp to first application process whose frontmost is true
    if (count of windows of frontApp) > 0 then
        set value of attribute "AXMinimized" of window 1 of frontApp to true
    end if
end tell)script");
}

} // namespace
} // namespace tarvin
