#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

class SystemPerformerTest : public testing::Test
{
protected:
    QString brightnessNotice(KeyAction action)
    {
        const QStringList lines = desktop.run(action).filter(u"notice"_qs);
        return lines.isEmpty() ? QString() : lines.first();
    }

    PerformingDesktop desktop;
};

TEST_F(SystemPerformerTest, theVolumeGoesOutByScriptAndByKey)
{
    EXPECT_EQ(desktop.run(KeyAction::volumeUp),
        lines({"0 system soundUp down", "0 notice Volume Up"}) + QStringList(scriptLine(0, AdjustOutputVolume{6}))
            + lines({"30 system soundUp up"}));
    EXPECT_EQ(desktop.run(KeyAction::volumeDown),
        lines({"0 system soundDown down", "0 notice Volume Down"}) + QStringList(scriptLine(0, AdjustOutputVolume{-6}))
            + lines({"30 system soundDown up"}));
}

TEST_F(SystemPerformerTest, muteGoesOutByScriptAndByKey)
{
    EXPECT_EQ(desktop.run(KeyAction::mute),
        lines({"0 system mute down", "0 notice Mute Toggled"}) + QStringList(scriptLine(0, ToggleOutputMute{}))
            + lines({"30 system mute up"}));
}

TEST_F(SystemPerformerTest, mediaGoesOutByKeyAndByScript)
{
    EXPECT_EQ(desktop.run(KeyAction::nextTrack),
        lines({"0 system next down", "0 notice Next Track"})
            + QStringList(scriptLine(0, ControlMediaPlayer{MediaCommand::next})) + lines({"30 system next up"}));
    EXPECT_EQ(desktop.run(KeyAction::previousTrack),
        lines({"0 system previous down", "0 notice Previous Track"})
            + QStringList(scriptLine(0, ControlMediaPlayer{MediaCommand::previous}))
            + lines({"30 system previous up"}));
    EXPECT_EQ(desktop.run(KeyAction::playPause),
        lines({"0 system play down", "0 notice Play / Pause"})
            + QStringList(scriptLine(0, ControlMediaPlayer{MediaCommand::playPause})) + lines({"30 system play up"}));
}

TEST_F(SystemPerformerTest, theBrightnessIsChangedByTheKeyAlone)
{
    EXPECT_EQ(desktop.run(KeyAction::brightnessUp),
        lines({"0 system brightnessUp down", "0 notice Brightness Up (56%)", "30 system brightnessUp up"}));
    EXPECT_EQ(desktop.platform.displayBrightness().current(), 0.5625);
    EXPECT_EQ(desktop.run(KeyAction::brightnessDown),
        lines({"0 system brightnessDown down", "0 notice Brightness Down (50%)", "30 system brightnessDown up"}));
}

TEST_F(SystemPerformerTest, aDisplayThatDoesNotTellIsTakenForHalfBright)
{
    desktop.platform.displayBrightness().setCurrent(std::nullopt);
    EXPECT_EQ(brightnessNotice(KeyAction::brightnessUp), u"0 notice Brightness Up (56%)"_qs);
    EXPECT_EQ(brightnessNotice(KeyAction::brightnessDown), u"0 notice Brightness Down (44%)"_qs);
}

TEST_F(SystemPerformerTest, theShownBrightnessStaysWithinItsLimits)
{
    desktop.platform.displayBrightness().setCurrent(1.0);
    EXPECT_EQ(brightnessNotice(KeyAction::brightnessUp), u"0 notice Brightness Up (100%)"_qs);
    desktop.platform.displayBrightness().setCurrent(0.03);
    EXPECT_EQ(brightnessNotice(KeyAction::brightnessDown), u"0 notice Brightness Down (0%)"_qs);
}

TEST_F(SystemPerformerTest, halfAPercentIsRoundedUp)
{
    desktop.platform.displayBrightness().setCurrent(0.5625);
    EXPECT_EQ(brightnessNotice(KeyAction::brightnessUp), u"0 notice Brightness Up (63%)"_qs);
}

TEST_F(SystemPerformerTest, theMicrophoneSaysWhatItsScriptAnswers)
{
    desktop.platform.scripts().setResult({.error = std::nullopt, .text = u"Microphone Muted (0%)"_qs});
    EXPECT_EQ(desktop.run(KeyAction::toggleMicMute),
        QStringList(scriptLine(0, ToggleMicrophone{})) + lines({"0 notice Microphone Muted (0%)"}));
}

TEST_F(SystemPerformerTest, aMicrophoneScriptWithoutAnswerIsOnlyToggled)
{
    desktop.platform.scripts().setResult({.error = u"refused"_qs, .text = std::nullopt});
    EXPECT_EQ(desktop.run(KeyAction::toggleMicMute),
        QStringList(scriptLine(0, ToggleMicrophone{})) + lines({"0 notice Microphone Toggled"}));
}

TEST_F(SystemPerformerTest, aMicrophoneScriptThatCannotBeBuiltSaysNothing)
{
    desktop.platform.scripts().setCanBuild(false);
    EXPECT_EQ(desktop.run(KeyAction::toggleMicMute), QStringList(scriptLine(0, ToggleMicrophone{})));
}

TEST_F(SystemPerformerTest, inTestSafeModeTheKeysAndTheMicrophoneActWithoutTheScripts)
{
    desktop.runInTestSafeMode();
    EXPECT_EQ(desktop.run(KeyAction::volumeUp),
        lines({"0 system soundUp down", "0 notice Volume Up", "30 system soundUp up"}));
    EXPECT_EQ(
        desktop.run(KeyAction::playPause), lines({"0 system play down", "0 notice Play / Pause", "30 system play up"}));
    EXPECT_EQ(desktop.run(KeyAction::toggleMicMute),
        QStringList(scriptLine(0, ToggleMicrophone{})) + lines({"0 notice Microphone Toggled"}));
}

} // namespace

} // namespace tarvin::test
