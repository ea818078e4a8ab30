#include "platform/applescript/AppleScriptText.h"

#include <gtest/gtest.h>

namespace tarvin {
namespace {

TEST(SystemScriptText, theVolumeMovesByTheDifferenceWithinItsLimits)
{
    EXPECT_EQ(appleScriptSource(AdjustOutputVolume{6}).toStdString(), R"script(tell application "System Events"
    set curVol to output volume of (get volume settings)
    set newVol to curVol + (6)
    if newVol < 0 then set newVol to 0
    if newVol > 100 then set newVol to 100
    set volume output volume newVol
end tell)script");
}

TEST(SystemScriptText, aNegativeDifferenceKeepsItsSignInTheBrackets)
{
    EXPECT_EQ(appleScriptSource(AdjustOutputVolume{-6}).toStdString(), R"script(tell application "System Events"
    set curVol to output volume of (get volume settings)
    set newVol to curVol + (-6)
    if newVol < 0 then set newVol to 0
    if newVol > 100 then set newVol to 100
    set volume output volume newVol
end tell)script");
}

TEST(SystemScriptText, muteIsToggled)
{
    EXPECT_EQ(appleScriptSource(ToggleOutputMute{}).toStdString(), R"script(tell application "System Events"
    set isMuted to output muted of (get volume settings)
    set volume output muted (not isMuted)
end tell)script");
}

TEST(SystemScriptText, thePlayerThatRunsIsToldToGoOn)
{
    EXPECT_EQ(appleScriptSource(ControlMediaPlayer{MediaCommand::next}).toStdString(),
        R"script(if application "Music" is running then
    tell application "Music" to next track
else if application "Spotify" is running then
    tell application "Spotify" to next track
end if)script");
}

TEST(SystemScriptText, thePlayerThatRunsIsToldToGoBack)
{
    EXPECT_EQ(appleScriptSource(ControlMediaPlayer{MediaCommand::previous}).toStdString(),
        R"script(if application "Music" is running then
    tell application "Music" to previous track
else if application "Spotify" is running then
    tell application "Spotify" to previous track
end if)script");
}

TEST(SystemScriptText, thePlayerThatRunsIsToldToPlayOrPause)
{
    EXPECT_EQ(appleScriptSource(ControlMediaPlayer{MediaCommand::playPause}).toStdString(),
        R"script(if application "Music" is running then
    tell application "Music" to playpause
else if application "Spotify" is running then
    tell application "Spotify" to playpause
end if)script");
}

TEST(SystemScriptText, theMicrophoneGoesFromAnythingToNothingAndFromNothingToThreeQuarters)
{
    EXPECT_EQ(appleScriptSource(ToggleMicrophone{}).toStdString(),
        R"script(set curVolume to input volume of (get volume settings)
if curVolume is 0 then
    set volume input volume 75
    return "Microphone Active (75%)"
else
    set volume input volume 0
    return "Microphone Muted (0%)"
end if)script");
}

TEST(SystemScriptText, powerIsAskedOfEitherAddressee)
{
    const auto source = [](PowerRequest request, PowerAddressee addressee) {
        return appleScriptSource(RequestPowerByScript{request, addressee}).toStdString();
    };
    EXPECT_EQ(source(PowerRequest::sleep, PowerAddressee::finder), R"script(tell application "Finder" to sleep)script");
    EXPECT_EQ(source(PowerRequest::sleep, PowerAddressee::systemEvents),
        R"script(tell application "System Events" to sleep)script");
    EXPECT_EQ(source(PowerRequest::shutDown, PowerAddressee::systemEvents),
        R"script(tell application "System Events" to shut down)script");
    EXPECT_EQ(source(PowerRequest::shutDown, PowerAddressee::finder),
        R"script(tell application "Finder" to shut down)script");
    EXPECT_EQ(source(PowerRequest::restart, PowerAddressee::systemEvents),
        R"script(tell application "System Events" to restart)script");
    EXPECT_EQ(
        source(PowerRequest::restart, PowerAddressee::finder), R"script(tell application "Finder" to restart)script");
}

TEST(SystemScriptText, theFileManagerIsActivated)
{
    EXPECT_EQ(
        appleScriptSource(ActivateFileManager{}).toStdString(), R"script(tell application "Finder" to activate)script");
}

TEST(SystemScriptText, theForceQuitDialogIsAMenuItem)
{
    EXPECT_EQ(appleScriptSource(OpenForceQuitDialog{}).toStdString(), R"script(tell application "System Events"
    tell process "Finder"
        tell menu bar 1
            tell menu bar item 1
                tell menu 1
                    click (first menu item whose name starts with "Force Quit")
                end tell
            end tell
        end tell
    end tell
end tell)script");
}

} // namespace
} // namespace tarvin
