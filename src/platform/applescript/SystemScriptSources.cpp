#include "platform/applescript/SystemScriptSources.h"

namespace tarvin {

namespace {

QStringView wordsOf(MediaCommand command)
{
    switch (command) {
    case MediaCommand::playPause:
        return u"playpause";
    case MediaCommand::next:
        return u"next track";
    case MediaCommand::previous:
        return u"previous track";
    }
    return {};
}

QStringView wordsOf(PowerRequest request)
{
    switch (request) {
    case PowerRequest::sleep:
        return u"sleep";
    case PowerRequest::shutDown:
        return u"shut down";
    case PowerRequest::restart:
        return u"restart";
    }
    return {};
}

QStringView nameOf(PowerAddressee addressee)
{
    switch (addressee) {
    case PowerAddressee::systemEvents:
        return u"System Events";
    case PowerAddressee::finder:
        return u"Finder";
    }
    return {};
}

} // namespace

QString sourceOf(const AdjustOutputVolume& script)
{
    // A negative number keeps its sign, for which the brackets are there.
    return uR"script(tell application "System Events"
    set curVol to output volume of (get volume settings)
    set newVol to curVol + (%1)
    if newVol < 0 then set newVol to 0
    if newVol > 100 then set newVol to 100
    set volume output volume newVol
end tell)script"_qs.arg(script.delta);
}

QString sourceOf(const ToggleOutputMute&)
{
    return uR"script(tell application "System Events"
    set isMuted to output muted of (get volume settings)
    set volume output muted (not isMuted)
end tell)script"_qs;
}

QString sourceOf(const ControlMediaPlayer& script)
{
    return uR"script(if application "Music" is running then
    tell application "Music" to %1
else if application "Spotify" is running then
    tell application "Spotify" to %1
end if)script"_qs.arg(wordsOf(script.command));
}

QString sourceOf(const ToggleMicrophone&)
{
    return uR"script(set curVolume to input volume of (get volume settings)
if curVolume is 0 then
    set volume input volume 75
    return "Microphone Active (75%)"
else
    set volume input volume 0
    return "Microphone Muted (0%)"
end if)script"_qs;
}

QString sourceOf(const RequestPowerByScript& script)
{
    return uR"script(tell application "%1" to %2)script"_qs.arg(nameOf(script.addressee), wordsOf(script.request));
}

QString sourceOf(const ActivateFileManager&)
{
    return uR"script(tell application "Finder" to activate)script"_qs;
}

QString sourceOf(const OpenForceQuitDialog&)
{
    return uR"script(tell application "System Events"
    tell process "Finder"
        tell menu bar 1
            tell menu bar item 1
                tell menu 1
                    click (first menu item whose name starts with "Force Quit")
                end tell
            end tell
        end tell
    end tell
end tell)script"_qs;
}

} // namespace tarvin
