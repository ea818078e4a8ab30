#include "model/KeyAction.h"

#include "model/ModelPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tarvin {

namespace {

using ::testing::ElementsAre;

/// Files hold these names, and lists rely on their order.
const QStringList storedNames = {u"screen_capture"_qs, u"toggle_mic_mute"_qs, u"show_actions_ring"_qs,
    u"keyboard_shortcut"_qs, u"open_application"_qs, u"open_web_url"_qs, u"ai_assistant"_qs, u"smart_work_focus"_qs,
    u"smart_meeting_mute"_qs, u"smart_clean_desk"_qs, u"text_snippet"_qs, u"clipboard_history"_qs, u"quick_app_flip"_qs,
    u"action_chain"_qs, u"floating_scratchpad"_qs, u"snap_window_left"_qs, u"snap_window_right"_qs,
    u"snap_window_maximize"_qs, u"advanced_click"_qs, u"app_expose"_qs, u"back"_qs, u"brightness_down"_qs,
    u"brightness_up"_qs, u"calculator"_qs, u"close_browser_tab"_qs, u"close_window"_qs, u"copy"_qs, u"cut"_qs,
    u"delete"_qs, u"desktop_left"_qs, u"desktop_right"_qs, u"dictation"_qs, u"do_not_disturb"_qs, u"finder"_qs,
    u"force_quit"_qs, u"lock_screen"_qs, u"minimize_window"_qs, u"mission_control"_qs, u"mute"_qs,
    u"new_browser_tab"_qs, u"new_browser_window"_qs, u"next_track"_qs, u"notes"_qs, u"paste"_qs, u"play_pause"_qs,
    u"previous_track"_qs, u"redo"_qs, u"refresh"_qs, u"restart"_qs, u"safari"_qs, u"select_all"_qs, u"show_desktop"_qs,
    u"shut_down"_qs, u"sleep_device"_qs, u"sleep_display"_qs, u"spotlight"_qs, u"system_settings"_qs, u"terminal"_qs,
    u"toggle_fullscreen"_qs, u"undo"_qs, u"volume_down"_qs, u"volume_up"_qs, u"native_caps_lock"_qs,
    u"native_right_option"_qs, u"native_right_command"_qs, u"native_fn_globe"_qs, u"native_section"_qs,
    u"unassigned"_qs, u"screenshot_area"_qs, u"screenshot_full"_qs};

TEST(KeyAction, thereAre70ActionsInTheOrderOfTheirStoredNames)
{
    QStringList names;
    for (const KeyAction action : allKeyActions)
        names << rawValue(action).toString();
    EXPECT_EQ(names.size(), 70);
    EXPECT_EQ(names, storedNames);
}

TEST(KeyAction, everyActionIsFoundByItsStoredName)
{
    for (const KeyAction action : allKeyActions)
        EXPECT_EQ(keyActionFromRawValue(rawValue(action)), action);
}

TEST(KeyAction, aNameThatNoLongerExistsGivesNothing)
{
    for (const QString& name : {u"sleep_mac"_qs, u"Mute"_qs, u"MUTE"_qs, u"mute "_qs, u""_qs, u"a"_qs, u"zzz"_qs,
             u"volume_u"_qs, u"volume_upp"_qs, u"Mute audio"_qs, u"forwardDelete"_qs, QString()})
        EXPECT_EQ(keyActionFromRawValue(name), std::nullopt) << name.toStdString();
}

TEST(KeyAction, everyActionHasItsTexts)
{
    for (const KeyAction action : allKeyActions) {
        EXPECT_FALSE(title(action).isEmpty()) << action;
        EXPECT_FALSE(subtitle(action).isEmpty()) << action;
        EXPECT_FALSE(icon(action).isEmpty()) << action;
        EXPECT_FALSE(keywords(action).empty()) << action;
    }
}

struct Texts
{
    KeyAction action;
    QStringView rawValue;
    QStringView title;
    QStringView subtitle;
    QStringView icon;
};

TEST(KeyAction, textsOfSingleActions)
{
    constexpr auto rows = std::to_array<Texts>({
        {KeyAction::screenCapture, u"screen_capture", u"Screen capture", u"Capture screen, window, or region",
            u"camera.viewfinder"},
        {KeyAction::aiAssistant, u"ai_assistant", u"AI Assistant / Prompt",
            u"Send highlighted text to AI Assistant (Gemini/ChatGPT)", u"sparkles"},
        {KeyAction::smartMeetingMute, u"smart_meeting_mute", u"Smart: Quick Mute & Clean",
            u"Mute system audio & hide all windows", u"bell.slash.fill"},
        {KeyAction::clipboardHistory, u"clipboard_history", u"Clipboard History",
            u"Recent copies HUD with search & 1-9 instant paste", u"doc.on.clipboard.fill"},
        {KeyAction::snapWindowMaximize, u"snap_window_maximize", u"Maximize window (not full screen)",
            u"Expand front window to fill screen (not full screen)", u"arrow.up.left.and.arrow.down.right.square.fill"},
        {KeyAction::appExpose, u"app_expose", u"App Exposé", u"Show windows of current app (^↓)", u"square.grid.2x2"},
        {KeyAction::back, u"back", u"Back", u"Navigate back in browser or Finder (⌘[)", u"arrow.backward"},
        {KeyAction::forwardDelete, u"delete", u"Delete", u"Forward delete character", u"delete.forward"},
        {KeyAction::desktopLeft, u"desktop_left", u"Desktop left", u"Navigate to left space (^←)",
            u"arrow.left.to.line"},
        {KeyAction::desktopRight, u"desktop_right", u"Desktop right", u"Navigate to right space (^→)",
            u"arrow.right.to.line"},
        {KeyAction::forceQuit, u"force_quit", u"Force quit", u"Force quit frontmost app or show dialog (⌥⌘⎋)",
            u"xmark.octagon.fill"},
        {KeyAction::missionControl, u"mission_control", u"Mission Control", u"View all open application windows (^↑)",
            u"rectangle.3.group.fill"},
        {KeyAction::playPause, u"play_pause", u"Play / Pause", u"Toggle music/media playback", u"playpause.fill"},
        {KeyAction::redo, u"redo", u"Redo", u"Reapply undone change (⇧⌘Z)", u"arrow.uturn.forward"},
        {KeyAction::restart, u"restart", u"Restart Mac", u"Safely restart your MacBook", u"restart"},
        {KeyAction::sleepDevice, u"sleep_device", u"Sleep Mac", u"Put your entire Mac to sleep", u"moon.zzz.fill"},
        {KeyAction::toggleFullscreen, u"toggle_fullscreen", u"Full-screen mode",
            u"Toggle native macOS full-screen Space (^⌘F)", u"arrow.up.left.and.arrow.down.right"},
        {KeyAction::volumeUp, u"volume_up", u"Volume up", u"Increase speaker volume", u"speaker.wave.3.fill"},
        {KeyAction::nativeCapsLock, u"native_caps_lock", u"Caps Lock",
            u"macOS default uppercase lock (toggles green LED)", u"capslock.fill"},
        {KeyAction::nativeSection, u"native_section", u"Section (§/±)", u"macOS default § / ± symbol typing",
            u"paragraphsign"},
        {KeyAction::unassigned, u"unassigned", u"Unassigned", u"Default unassigned key", u"keyboard"},
        {KeyAction::screenshotFull, u"screenshot_full", u"Screen capture (Full)", u"Capture full monitor screenshot",
            u"camera.viewfinder"},
    });
    for (const Texts& row : rows) {
        EXPECT_EQ(rawValue(row.action), row.rawValue);
        EXPECT_EQ(title(row.action), row.title);
        EXPECT_EQ(subtitle(row.action), row.subtitle);
        EXPECT_EQ(icon(row.action), row.icon);
    }
}

TEST(KeyAction, theStoredNameOfAnAreaScreenshotKeepsTheTitleOfScreenCapture)
{
    EXPECT_EQ(title(KeyAction::screenshotArea), title(KeyAction::screenCapture));
    EXPECT_EQ(subtitle(KeyAction::screenshotArea), u"Interactive marquee capture");
}

TEST(KeyAction, copyHasItsKeystrokeInTheSubtitle)
{
    EXPECT_EQ(subtitle(KeyAction::copy), u"Copy selection to clipboard (⌘C)");
    EXPECT_EQ(rawValue(KeyAction::copy), u"copy");
}

TEST(KeyAction, closingATabAndClosingAWindowNameTheSameKeystroke)
{
    EXPECT_EQ(subtitle(KeyAction::closeBrowserTab), u"Close current tab (⌘W)");
    EXPECT_EQ(subtitle(KeyAction::closeWindow), u"Close active window (⌘W)");
}

TEST(KeyAction, categoriesFollowThePlaceInTheList)
{
    for (std::size_t position = 0; position < keyActionCount; ++position) {
        ActionCategory expected = ActionCategory::otherActions;
        if (position <= 6)
            expected = ActionCategory::recommended;
        else if (position <= 14)
            expected = ActionCategory::smartActions;
        else if (position <= 17 || position == 58)
            expected = ActionCategory::windowSnapping;
        EXPECT_EQ(category(allKeyActions[position]), expected) << position;
    }
}

TEST(KeyAction, fullScreenModeIsAWindowActionFarFromTheOthers)
{
    EXPECT_EQ(category(KeyAction::toggleFullscreen), ActionCategory::windowSnapping);
    EXPECT_EQ(category(KeyAction::terminal), ActionCategory::otherActions);
    EXPECT_EQ(category(KeyAction::undo), ActionCategory::otherActions);
}

TEST(KeyAction, thePickerOffersTheFirst62Actions)
{
    ASSERT_EQ(allConfigurableKeyActions.size(), 62U);
    EXPECT_TRUE(std::ranges::equal(allConfigurableKeyActions, std::span(allKeyActions).first(62)));
    EXPECT_EQ(allConfigurableKeyActions.front(), KeyAction::screenCapture);
    EXPECT_EQ(allConfigurableKeyActions.back(), KeyAction::volumeUp);
}

TEST(KeyAction, factoryBehavioursAndRetiredScreenshotsAreNeverOffered)
{
    for (const KeyAction action : {KeyAction::nativeCapsLock, KeyAction::nativeRightOption,
             KeyAction::nativeRightCommand, KeyAction::nativeFnGlobe, KeyAction::nativeSection, KeyAction::unassigned,
             KeyAction::screenshotArea, KeyAction::screenshotFull})
        EXPECT_EQ(std::ranges::count(allConfigurableKeyActions, action), 0);
}

TEST(KeyAction, keywordsOfSingleActions)
{
    EXPECT_THAT(keywords(KeyAction::advancedClick),
        ElementsAre(u"right click", u"secondary click", u"context menu", u"click", u"mouse"));
    EXPECT_THAT(keywords(KeyAction::restart),
        ElementsAre(u"restart", u"reboot", u"restart mac", u"reboot mac", u"reset", u"power cycle", u"re-boot", u"boot",
            u"macbook", u"computer", u"restart computer", u"restart macbook"));
    EXPECT_THAT(
        keywords(KeyAction::forwardDelete), ElementsAre(u"delete", u"forward delete", u"remove", u"erase", u"del"));
    EXPECT_THAT(keywords(KeyAction::nativeSection), ElementsAre(u"section", u"paragraph", u"plus minus", u"iso"));
    EXPECT_THAT(keywords(KeyAction::unassigned), ElementsAre(u"unassigned", u"default"));

    EXPECT_EQ(keywords(KeyAction::screenCapture).size(), 22U);
    EXPECT_EQ(keywords(KeyAction::screenCapture).front(), u"screenshot");
    EXPECT_EQ(keywords(KeyAction::screenCapture).back(), u"picture");
    EXPECT_EQ(keywords(KeyAction::forceQuit).size(), 21U);
    EXPECT_EQ(keywords(KeyAction::forceQuit)[10], u"beach ball");
    EXPECT_EQ(keywords(KeyAction::toggleFullscreen)[1], u"full-screen");
    EXPECT_EQ(keywords(KeyAction::shutDown).back(), u"turn off computer");
}

TEST(KeyAction, theRetiredScreenshotsAreFoundLikeScreenCapture)
{
    const auto capture = keywords(KeyAction::screenCapture);
    EXPECT_TRUE(std::ranges::equal(keywords(KeyAction::screenshotArea), capture));
    EXPECT_TRUE(std::ranges::equal(keywords(KeyAction::screenshotFull), capture));
}

TEST(KeyAction, copyAndCutShareWordsButNotTheirLists)
{
    const auto copyWords = keywords(KeyAction::copy);
    const auto cutWords = keywords(KeyAction::cut);
    EXPECT_THAT(copyWords, ElementsAre(u"copy", u"clipboard", u"duplicate", u"cmd c", u"selection"));
    EXPECT_THAT(cutWords, ElementsAre(u"cut", u"clipboard", u"remove", u"cmd x", u"selection"));
}

TEST(KeyAction, noActionHasAnEmptyOrRepeatedKeyword)
{
    for (const KeyAction action : allKeyActions) {
        std::set<QStringView> words;
        for (const QStringView word : keywords(action)) {
            EXPECT_EQ(word.trimmed(), word);
            EXPECT_FALSE(word.isEmpty());
            EXPECT_TRUE(words.insert(word).second) << action;
        }
    }
}

TEST(ActionCategory, headingsAreStoredNames)
{
    QStringList names;
    for (const ActionCategory each : allActionCategories) {
        names << rawValue(each).toString();
        EXPECT_EQ(actionCategoryFromRawValue(rawValue(each)), each);
    }
    EXPECT_EQ(
        names, (QStringList{u"RECOMMENDED"_qs, u"SMART ACTIONS"_qs, u"WINDOW MANAGEMENT"_qs, u"OTHER ACTIONS"_qs}));
    EXPECT_EQ(actionCategoryFromRawValue(u"Recommended"), std::nullopt);
    EXPECT_EQ(actionCategoryFromRawValue(u"windowSnapping"), std::nullopt);
}

} // namespace

} // namespace tarvin
