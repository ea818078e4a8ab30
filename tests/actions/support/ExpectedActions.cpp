#include "actions/support/ExpectedActions.h"

#include "actions/support/Lines.h"

namespace tarvin::test {

namespace {

using enum KeyAction;
using enum Expectation;

ExpectedAction row(KeyAction action, Expectation expectation, std::initializer_list<const char*> texts)
{
    return {action, expectation, lines(texts)};
}

} // namespace

const std::vector<ExpectedAction>& expectedActions()
{
    // Arrows 123 to 126, F5 96, F6 97, F3 99, F11 103, forward delete 117, space 49, left bracket 33 and the letters
    // A 0, Z 6, X 7, C 8, V 9, Q 12, W 13, R 15, T 17, N 45.
    static const std::vector<ExpectedAction> rows = {
        row(screenCapture, direct, {"0 executeScreenCapture(Region, Clipboard)"}),
        row(toggleMicMute, direct, {"0 toggleMicrophoneMute"}),
        row(showActionsRing, direct, {"0 show ring"}),
        row(keyboardShortcut, direct, {"0 notice Shortcut triggered"}),
        row(openApplication, direct, {"0 executeOpenApplication(blank record)"}),
        row(openWebURL, direct, {"0 openURL(nothing)"}),
        row(aiAssistant, direct, {"0 triggerAIAssistant"}),
        row(smartWorkFocus, direct, {"0 smartWorkFocus"}),
        row(smartMeetingMute, direct, {"0 smartMeetingMute"}),
        row(smartCleanDesk, direct, {"0 smartCleanDesk"}),
        row(textSnippet, prepared, {"0 pasteText(\"Sent from my MacBook Air via Tarvin\")"}),
        row(clipboardHistory, direct, {"0 show clipboard"}),
        row(quickAppFlip, direct, {"0 quickFlip(nothing)"}),
        row(actionChain, direct, {"0 notice Action Chain triggered"}),
        row(floatingScratchpad, direct, {"0 show scratchpad"}),
        row(snapWindowLeft, direct, {"0 snapFrontWindow(left)"}),
        row(snapWindowRight, direct, {"0 snapFrontWindow(right)"}),
        row(snapWindowMaximize, direct, {"0 snapFrontWindow(maximize)"}),
        row(advancedClick, direct, {"0 click down at 30,40", "40 click up at 30,40"}),
        row(appExpose, direct, {"0 down 125 control", "15 up 125 control"}),
        row(back, prepared, {"0 down 33 command", "0 notice Back (⌘[)", "15 up 33 command"}),
        row(brightnessDown, direct, {"0 adjustBrightness(-0.0625)"}),
        row(brightnessUp, direct, {"0 adjustBrightness(0.0625)"}),
        row(calculator, direct, {"0 launchApp(\"com.apple.calculator\", \"/System/Applications/Calculator.app\")"}),
        row(closeBrowserTab, prepared, {"0 down 13 command", "15 up 13 command"}),
        row(closeWindow, prepared, {"0 down 13 command", "15 up 13 command"}),
        row(copy, prepared, {"0 down 8 command", "0 notice Copied (⌘C)", "15 up 8 command"}),
        row(cut, prepared, {"0 down 7 command", "0 notice Cut (⌘X)", "15 up 7 command"}),
        row(forwardDelete, prepared, {"0 down 117", "15 up 117"}),
        row(desktopLeft, direct, {"0 down 123 control", "15 up 123 control"}),
        row(desktopRight, direct, {"0 down 124 control", "15 up 124 control"}),
        row(dictation, direct, {"0 down 96", "0 script tell application \"System Events\" to key code 96", "15 up 96"}),
        row(doNotDisturb, direct,
            {"0 down 97", "0 script tell application \"System Events\" to key code 97", "15 up 97"}),
        row(finder, direct, {"0 launchApp(\"com.apple.finder\", \"/System/Library/CoreServices/Finder.app\")"}),
        row(forceQuit, direct, {"0 forceQuitFrontmostApplication"}),
        row(lockScreen, direct, {"0 down 12 control+command", "15 up 12 control+command"}),
        row(minimizeWindow, direct, {"0 minimizeFrontWindow"}),
        row(missionControl, direct,
            {"0 openApplicationAt(\"/System/Applications/Mission Control.app\")", "0 down 126 control",
                "0 notice Mission Control", "15 up 126 control"}),
        row(mute, direct, {"0 toggleMute"}),
        row(newBrowserTab, prepared, {"0 down 17 command", "15 up 17 command"}),
        row(newBrowserWindow, prepared, {"0 down 45 command", "15 up 45 command"}),
        row(nextTrack, direct, {"0 executeMediaNext"}),
        row(notes, direct, {"0 launchApp(\"com.apple.Notes\", \"/System/Applications/Notes.app\")"}),
        row(paste, prepared, {"0 down 9 command", "0 notice Pasted (⌘V)", "15 up 9 command"}),
        row(playPause, direct, {"0 executeMediaPlayPause"}),
        row(previousTrack, direct, {"0 executeMediaPrevious"}),
        row(redo, prepared, {"0 down 6 shift+command", "0 notice Redo (⇧⌘Z)", "15 up 6 shift+command"}),
        row(refresh, prepared, {"0 down 15 command", "0 notice Refreshed (⌘R)", "15 up 15 command"}),
        row(restart, direct, {"0 notice Restarting Mac...", "0 restartSystem"}),
        row(safari, direct, {"0 launchApp(\"com.apple.Safari\", \"/Applications/Safari.app\")"}),
        row(selectAll, prepared, {"0 down 0 command", "0 notice Selected All (⌘A)", "15 up 0 command"}),
        row(showDesktop, prepared, {"0 down 103", "0 down 99 command", "15 up 103", "15 up 99 command"}),
        row(shutDown, direct, {"0 notice Shutting Down Mac...", "0 shutDownSystem"}),
        row(sleepDevice, direct, {"0 notice Sleeping Mac...", "0 sleepSystem"}),
        row(sleepDisplay, direct, {"0 notice Display Sleeping...", "0 sleepDisplay"}),
        row(spotlight, direct,
            {"0 down 49 command", "0 notice Spotlight",
                "0 script tell application \"System Events\" to key code 49 using command down", "15 up 49 command"}),
        row(systemSettings, direct,
            {"0 launchApp(\"com.apple.systempreferences\", \"/System/Applications/System Settings.app\")"}),
        row(terminal, direct, {"0 launchApp(\"com.apple.Terminal\", \"/System/Applications/Utilities/Terminal.app\")"}),
        row(toggleFullscreen, direct, {"0 toggleFrontWindowFullscreen"}),
        row(undo, prepared, {"0 down 6 command", "0 notice Undo (⌘Z)", "15 up 6 command"}),
        row(volumeDown, direct, {"0 adjustVolume(-6)"}),
        row(volumeUp, direct, {"0 adjustVolume(6)"}),
        row(nativeCapsLock, direct, {}),
        row(nativeRightOption, direct, {}),
        row(nativeRightCommand, direct, {}),
        row(nativeFnGlobe, direct, {}),
        row(nativeSection, direct, {}),
        row(unassigned, direct, {}),
        row(screenshotArea, direct, {"0 executeScreenCapture(Region, Clipboard)"}),
        row(screenshotFull, direct, {"0 executeScreenCapture(Screen, Clipboard)"}),
    };
    return rows;
}

QStringList delayed(const QStringList& lines, int milliseconds)
{
    QStringList later;
    for (const QString& line : lines) {
        const qsizetype blank = line.indexOf(u' ');
        later << QString::number(line.left(blank).toInt() + milliseconds) + line.mid(blank);
    }
    return later;
}

} // namespace tarvin::test
