#include "platform/applescript/WindowScriptSources.h"

namespace tarvin {

namespace {

/// Bounds as the script's language writes them. The menu bar is taken to be 25 points high, because a script can't ask.
struct BoundsText
{
    QStringView position;
    QStringView size;
};

BoundsText boundsOf(WindowSnapPosition position)
{
    switch (position) {
    case WindowSnapPosition::left:
        return {u"{x, 25}", u"{screenW / 2, screenH - 25}"};
    case WindowSnapPosition::right:
        return {u"{x + screenW / 2, 25}", u"{screenW / 2, screenH - 25}"};
    case WindowSnapPosition::maximize:
        return {u"{x, 25}", u"{screenW, screenH - 25}"};
    }
    return {};
}

} // namespace

QString sourceOf(const SnapWindowByScript& script)
{
    const BoundsText bounds = boundsOf(script.position);
    return uR"script(tell application "Finder" to set screenBounds to bounds of window of desktop
tell application "System Events"
    set frontApp to first application process whose frontmost is true
    tell frontApp
        if (count of windows) > 0 then
            set frontWin to front window
            set {x, y, screenW, screenH} to screenBounds
            set position of frontWin to %1
            set size of frontWin to %2
        end if
    end tell
end tell)script"_qs.arg(bounds.position, bounds.size);
}

QString sourceOf(const ToggleFullScreenByScript&)
{
    return uR"script(tell application "System Events"
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
end tell)script"_qs;
}

QString sourceOf(const MinimizeWindowByScript&)
{
    return uR"script(tell application "System Events"
    set frontApp to first application process whose frontmost is true
    if (count of windows of frontApp) > 0 then
        set value of attribute "AXMinimized" of window 1 of frontApp to true
    end if
end tell)script"_qs;
}

} // namespace tarvin
