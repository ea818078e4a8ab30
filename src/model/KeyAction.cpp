#include "model/KeyAction.h"

#include <algorithm>

namespace tarvin {

namespace {

struct KeyActionRow
{
    KeyAction action;
    QStringView rawValue;
    QStringView title;
    QStringView subtitle;
    QStringView icon;
};

constexpr auto rows = std::to_array<KeyActionRow>({
    {KeyAction::screenCapture, u"screen_capture", u"Screen capture", u"Capture screen, window, or region",
        u"camera.viewfinder"},
    {KeyAction::toggleMicMute, u"toggle_mic_mute", u"Mute microphone",
        u"Toggle system microphone input mute (Zoom/Meet)", u"mic.slash.fill"},
    {KeyAction::showActionsRing, u"show_actions_ring", u"Show Actions Ring", u"Open quick radial action menu",
        u"circle.grid.cross"},
    {KeyAction::keyboardShortcut, u"keyboard_shortcut", u"Keyboard shortcut",
        u"Custom key combos, multiple keys at a time & macros", u"command"},
    {KeyAction::openApplication, u"open_application", u"Open application",
        u"Launch or switch to any installed application on your Mac", u"arrow.up.forward.app.fill"},
    {KeyAction::openWebURL, u"open_web_url", u"Open website URL", u"Instantly launch your favorite website or web app",
        u"globe"},
    {KeyAction::aiAssistant, u"ai_assistant", u"AI Assistant / Prompt",
        u"Send highlighted text to AI Assistant (Gemini/ChatGPT)", u"sparkles"},
    {KeyAction::smartWorkFocus, u"smart_work_focus", u"Smart: Work Focus", u"Mute audio, activate DND & open Notes",
        u"sparkles"},
    {KeyAction::smartMeetingMute, u"smart_meeting_mute", u"Smart: Quick Mute & Clean",
        u"Mute system audio & hide all windows", u"bell.slash.fill"},
    {KeyAction::smartCleanDesk, u"smart_clean_desk", u"Smart: Tidy Desktop", u"Minimize other windows & show Desktop",
        u"sparkle"},
    {KeyAction::textSnippet, u"text_snippet", u"Insert Text Snippet", u"Instantly paste saved snippet or signature",
        u"character.cursor.ibeam"},
    {KeyAction::clipboardHistory, u"clipboard_history", u"Clipboard History",
        u"Recent copies HUD with search & 1-9 instant paste", u"doc.on.clipboard.fill"},
    {KeyAction::quickAppFlip, u"quick_app_flip", u"Quick-Flip Apps",
        u"Bounce instantly between two active apps with one tap", u"arrow.left.arrow.right.circle.fill"},
    {KeyAction::actionChain, u"action_chain", u"Action Chain (Macro)",
        u"Run sequential shortcuts, delays, snippets, or URLs in one tap", u"link.circle.fill"},
    {KeyAction::floatingScratchpad, u"floating_scratchpad", u"Quick Scratchpad",
        u"Floating translucent HUD notepad over any app with auto-save", u"note.text.badge.plus"},
    {KeyAction::snapWindowLeft, u"snap_window_left", u"Snap window left", u"Tile front window to left half of screen",
        u"rectangle.lefthalf.filled"},
    {KeyAction::snapWindowRight, u"snap_window_right", u"Snap window right",
        u"Tile front window to right half of screen", u"rectangle.righthalf.filled"},
    {KeyAction::snapWindowMaximize, u"snap_window_maximize", u"Maximize window (not full screen)",
        u"Expand front window to fill screen (not full screen)", u"arrow.up.left.and.arrow.down.right.square.fill"},
    {KeyAction::advancedClick, u"advanced_click", u"Advanced click", u"Simulate right click / secondary click",
        u"cursorarrow.rays"},
    {KeyAction::appExpose, u"app_expose", u"App Exposé", u"Show windows of current app (^↓)", u"square.grid.2x2"},
    {KeyAction::back, u"back", u"Back", u"Navigate back in browser or Finder (⌘[)", u"arrow.backward"},
    {KeyAction::brightnessDown, u"brightness_down", u"Brightness down", u"Dim built-in Retina display",
        u"sun.min.fill"},
    {KeyAction::brightnessUp, u"brightness_up", u"Brightness up", u"Brighten built-in Retina display", u"sun.max.fill"},
    {KeyAction::calculator, u"calculator", u"Calculator", u"Quickly launch Calculator", u"function"},
    {KeyAction::closeBrowserTab, u"close_browser_tab", u"Close browser tab", u"Close current tab (⌘W)",
        u"xmark.square"},
    {KeyAction::closeWindow, u"close_window", u"Close window", u"Close active window (⌘W)", u"xmark.circle"},
    {KeyAction::copy, u"copy", u"Copy", u"Copy selection to clipboard (⌘C)", u"doc.on.doc"},
    {KeyAction::cut, u"cut", u"Cut", u"Cut selection (⌘X)", u"scissors"},
    {KeyAction::forwardDelete, u"delete", u"Delete", u"Forward delete character", u"delete.forward"},
    {KeyAction::desktopLeft, u"desktop_left", u"Desktop left", u"Navigate to left space (^←)", u"arrow.left.to.line"},
    {KeyAction::desktopRight, u"desktop_right", u"Desktop right", u"Navigate to right space (^→)",
        u"arrow.right.to.line"},
    {KeyAction::dictation, u"dictation", u"Dictation", u"Start voice dictation", u"mic.fill"},
    {KeyAction::doNotDisturb, u"do_not_disturb", u"Do not disturb", u"Toggle Focus mode / DND", u"moon.fill"},
    {KeyAction::finder, u"finder", u"Finder", u"Open new Finder window", u"folder.fill"},
    {KeyAction::forceQuit, u"force_quit", u"Force quit", u"Force quit frontmost app or show dialog (⌥⌘⎋)",
        u"xmark.octagon.fill"},
    {KeyAction::lockScreen, u"lock_screen", u"Lock screen", u"Instantly lock Mac screen (^⌘Q)", u"lock.fill"},
    {KeyAction::minimizeWindow, u"minimize_window", u"Minimize window", u"Minimize window to Dock (⌘M)",
        u"minus.rectangle"},
    {KeyAction::missionControl, u"mission_control", u"Mission Control", u"View all open application windows (^↑)",
        u"rectangle.3.group.fill"},
    {KeyAction::mute, u"mute", u"Mute audio", u"Toggle audio output mute", u"speaker.slash.fill"},
    {KeyAction::newBrowserTab, u"new_browser_tab", u"New tab", u"Open new tab in frontmost browser (⌘T)",
        u"plus.square"},
    {KeyAction::newBrowserWindow, u"new_browser_window", u"New window", u"Open new browser window (⌘N)",
        u"macwindow.badge.plus"},
    {KeyAction::nextTrack, u"next_track", u"Next track", u"Skip forward to next track", u"forward.fill"},
    {KeyAction::notes, u"notes", u"Notes", u"Open Apple Notes application", u"note.text"},
    {KeyAction::paste, u"paste", u"Paste", u"Paste clipboard content (⌘V)", u"doc.on.clipboard"},
    {KeyAction::playPause, u"play_pause", u"Play / Pause", u"Toggle music/media playback", u"playpause.fill"},
    {KeyAction::previousTrack, u"previous_track", u"Previous track", u"Return to previous track", u"backward.fill"},
    {KeyAction::redo, u"redo", u"Redo", u"Reapply undone change (⇧⌘Z)", u"arrow.uturn.forward"},
    {KeyAction::refresh, u"refresh", u"Refresh", u"Reload current page or document (⌘R)", u"arrow.clockwise"},
    {KeyAction::restart, u"restart", u"Restart Mac", u"Safely restart your MacBook", u"restart"},
    {KeyAction::safari, u"safari", u"Safari", u"Open Apple Safari browser", u"safari.fill"},
    {KeyAction::selectAll, u"select_all", u"Select all", u"Select all items or text (⌘A)", u"checkmark.square"},
    {KeyAction::showDesktop, u"show_desktop", u"Show desktop", u"Move windows aside to reveal desktop",
        u"macwindow.on.rectangle"},
    {KeyAction::shutDown, u"shut_down", u"Shut Down Mac", u"Safely power off your MacBook", u"power"},
    {KeyAction::sleepDevice, u"sleep_device", u"Sleep Mac", u"Put your entire Mac to sleep", u"moon.zzz.fill"},
    {KeyAction::sleepDisplay, u"sleep_display", u"Sleep display", u"Turn display backlight off", u"display"},
    {KeyAction::spotlight, u"spotlight", u"Spotlight search", u"Open Spotlight search bar (⌘Space)",
        u"magnifyingglass"},
    {KeyAction::systemSettings, u"system_settings", u"System Settings", u"Open macOS System Settings",
        u"gearshape.fill"},
    {KeyAction::terminal, u"terminal", u"Terminal", u"Open command-line Terminal", u"terminal.fill"},
    {KeyAction::toggleFullscreen, u"toggle_fullscreen", u"Full-screen mode",
        u"Toggle native macOS full-screen Space (^⌘F)", u"arrow.up.left.and.arrow.down.right"},
    {KeyAction::undo, u"undo", u"Undo", u"Revert previous edit (⌘Z)", u"arrow.uturn.backward"},
    {KeyAction::volumeDown, u"volume_down", u"Volume down", u"Decrease speaker volume", u"speaker.wave.1.fill"},
    {KeyAction::volumeUp, u"volume_up", u"Volume up", u"Increase speaker volume", u"speaker.wave.3.fill"},
    {KeyAction::nativeCapsLock, u"native_caps_lock", u"Caps Lock", u"macOS default uppercase lock (toggles green LED)",
        u"capslock.fill"},
    {KeyAction::nativeRightOption, u"native_right_option", u"Right Option", u"macOS default secondary Option modifier",
        u"option"},
    {KeyAction::nativeRightCommand, u"native_right_command", u"Right Command",
        u"macOS default secondary Command modifier", u"command"},
    {KeyAction::nativeFnGlobe, u"native_fn_globe", u"Function / Globe",
        u"macOS default Globe action (Emoji picker or Dictation)", u"globe"},
    {KeyAction::nativeSection, u"native_section", u"Section (§/±)", u"macOS default § / ± symbol typing",
        u"paragraphsign"},
    {KeyAction::unassigned, u"unassigned", u"Unassigned", u"Default unassigned key", u"keyboard"},
    {KeyAction::screenshotArea, u"screenshot_area", u"Screen capture", u"Interactive marquee capture",
        u"camera.viewfinder"},
    {KeyAction::screenshotFull, u"screenshot_full", u"Screen capture (Full)", u"Capture full monitor screenshot",
        u"camera.viewfinder"},
});
static_assert(rows.size() == keyActionCount);
static_assert(rowsStandInEnumerationOrder(rows, &KeyActionRow::action));
static_assert(rawValuesAreUnique(rows));

const KeyActionRow& row(KeyAction action) noexcept
{
    return rows[static_cast<std::size_t>(action)];
}

constexpr std::u16string_view storedName(KeyAction action) noexcept
{
    return characters(rows[static_cast<std::size_t>(action)].rawValue);
}

constexpr auto actionsByStoredName = [] {
    auto actions = allKeyActions;
    std::ranges::sort(actions, {}, storedName);
    return actions;
}();

} // namespace

QStringView rawValue(KeyAction action) noexcept
{
    return row(action).rawValue;
}

QStringView title(KeyAction action) noexcept
{
    return row(action).title;
}

QStringView subtitle(KeyAction action) noexcept
{
    return row(action).subtitle;
}

QStringView icon(KeyAction action) noexcept
{
    return row(action).icon;
}

std::optional<KeyAction> keyActionFromRawValue(QStringView text) noexcept
{
    const auto found = std::ranges::lower_bound(actionsByStoredName, characters(text), {}, storedName);
    if (found == actionsByStoredName.end() || storedName(*found) != characters(text))
        return std::nullopt;
    return *found;
}

} // namespace tarvin
