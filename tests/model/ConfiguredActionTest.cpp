#include "model/ConfiguredAction.h"

#include "model/ModelPrinters.h"

#include <gtest/gtest.h>

#include <functional>

namespace tarvin {

namespace {

CustomShortcut shortcutOf(const QString& keyDisplay, std::uint16_t keyCode = 0)
{
    return {.id = QUuid::createUuid(), .keyCode = keyCode, .keyDisplay = keyDisplay};
}

/// A record made by the full constructor with these two shortcut fields.
ConfiguredAction withShortcuts(std::optional<CustomShortcut> shortcut, QList<CustomShortcut> shortcuts)
{
    return ConfiguredAction(KeyAction::keyboardShortcut, ScreenCaptureMode::region, ScreenCaptureDestination::clipboard,
        ForceQuitMode::activeApp, std::move(shortcut), std::move(shortcuts), MultiKeyPlaybackMode::simultaneous, {}, {},
        {}, {}, {}, {}, {}, {});
}

ConfiguredAction changed(ConfiguredAction record, const std::function<void(ConfiguredAction&)>& change)
{
    change(record);
    return record;
}

TEST(ConfiguredAction, aNewRecordHasNoParameters)
{
    const ConfiguredAction record(KeyAction::forceQuit);
    EXPECT_EQ(record.action, KeyAction::forceQuit);
    EXPECT_EQ(record.screenCaptureMode, ScreenCaptureMode::region);
    EXPECT_EQ(record.screenCaptureDestination, ScreenCaptureDestination::clipboard);
    EXPECT_EQ(record.forceQuitMode, ForceQuitMode::activeApp);
    EXPECT_EQ(record.customShortcut, std::nullopt);
    EXPECT_TRUE(record.customShortcuts.isEmpty());
    EXPECT_EQ(record.multiKeyMode, MultiKeyPlaybackMode::simultaneous);
    EXPECT_EQ(record.textSnippet, std::nullopt);
    EXPECT_EQ(record.customURL, std::nullopt);
    EXPECT_EQ(record.customAppName, std::nullopt);
    EXPECT_EQ(record.customAppBundleId, std::nullopt);
    EXPECT_EQ(record.customAppPath, std::nullopt);
    EXPECT_TRUE(record.chainSteps.isEmpty());
    EXPECT_EQ(record.quickFlipCompanionBundleId, std::nullopt);
    EXPECT_EQ(record.quickFlipCompanionAppName, std::nullopt);
}

TEST(ConfiguredAction, theFullConstructorTakesEveryFieldInOrder)
{
    const CustomShortcut first = shortcutOf(u"A"_qs);
    const CustomShortcut second = shortcutOf(u"B"_qs);
    const ActionChainStep step{.id = QUuid::createUuid(), .type = ActionChainStepType::delay, .delayMs = 5};
    const ConfiguredAction record(KeyAction::actionChain, ScreenCaptureMode::window, ScreenCaptureDestination::file,
        ForceQuitMode::systemDialog, first, {first, second}, MultiKeyPlaybackMode::sequential, u"text"_qs,
        u"address"_qs, u"name"_qs, u"bundle"_qs, u"path"_qs, {step}, u"companion"_qs, u"companion name"_qs);
    EXPECT_EQ(record.action, KeyAction::actionChain);
    EXPECT_EQ(record.screenCaptureMode, ScreenCaptureMode::window);
    EXPECT_EQ(record.screenCaptureDestination, ScreenCaptureDestination::file);
    EXPECT_EQ(record.forceQuitMode, ForceQuitMode::systemDialog);
    EXPECT_EQ(record.customShortcut, first);
    EXPECT_EQ(record.customShortcuts, (QList{first, second}));
    EXPECT_EQ(record.multiKeyMode, MultiKeyPlaybackMode::sequential);
    EXPECT_EQ(record.textSnippet, u"text");
    EXPECT_EQ(record.customURL, u"address");
    EXPECT_EQ(record.customAppName, u"name");
    EXPECT_EQ(record.customAppBundleId, u"bundle");
    EXPECT_EQ(record.customAppPath, u"path");
    EXPECT_EQ(record.chainSteps, QList{step});
    EXPECT_EQ(record.quickFlipCompanionBundleId, u"companion");
    EXPECT_EQ(record.quickFlipCompanionAppName, u"companion name");
}

TEST(ConfiguredAction, theFullConstructorMakesALoneShortcutTheList)
{
    const CustomShortcut shortcut = shortcutOf(u"A"_qs);
    const ConfiguredAction record = withShortcuts(shortcut, {});
    EXPECT_EQ(record.customShortcut, shortcut);
    EXPECT_EQ(record.customShortcuts, QList{shortcut});
}

TEST(ConfiguredAction, theFullConstructorTakesTheFirstOfTheListForAnAbsentShortcut)
{
    const QList<CustomShortcut> shortcuts = {shortcutOf(u"A"_qs), shortcutOf(u"B"_qs)};
    const ConfiguredAction record = withShortcuts({}, shortcuts);
    EXPECT_EQ(record.customShortcut, shortcuts.first());
    EXPECT_EQ(record.customShortcuts, shortcuts);
}

TEST(ConfiguredAction, theFullConstructorKeepsBothShortcutFieldsEvenIfTheyDiffer)
{
    const CustomShortcut other = shortcutOf(u"C"_qs);
    const QList<CustomShortcut> shortcuts = {shortcutOf(u"A"_qs), shortcutOf(u"B"_qs)};
    const ConfiguredAction record = withShortcuts(other, shortcuts);
    EXPECT_EQ(record.customShortcut, other);
    EXPECT_EQ(record.customShortcuts, shortcuts);
}

TEST(ConfiguredAction, theFullConstructorLeavesBothShortcutFieldsEmpty)
{
    const ConfiguredAction record = withShortcuts({}, {});
    EXPECT_EQ(record.customShortcut, std::nullopt);
    EXPECT_TRUE(record.customShortcuts.isEmpty());
}

TEST(ConfiguredAction, equalityComparesEveryFieldInDepth)
{
    const ConfiguredAction record = changed(withShortcuts(shortcutOf(u"A"_qs), {}),
        [](ConfiguredAction& other) { other.chainSteps = {ActionChainStep{.id = QUuid::createUuid()}}; });
    EXPECT_EQ(ConfiguredAction(record), record);

    const std::vector<std::function<void(ConfiguredAction&)>> changes = {
        [](ConfiguredAction& other) { other.action = KeyAction::mute; },
        [](ConfiguredAction& other) { other.screenCaptureMode = ScreenCaptureMode::screen; },
        [](ConfiguredAction& other) { other.screenCaptureDestination = ScreenCaptureDestination::file; },
        [](ConfiguredAction& other) { other.forceQuitMode = ForceQuitMode::systemDialog; },
        [](ConfiguredAction& other) { other.customShortcut->id = QUuid::createUuid(); },
        [](ConfiguredAction& other) { other.customShortcuts[0].id = QUuid::createUuid(); },
        [](ConfiguredAction& other) { other.multiKeyMode = MultiKeyPlaybackMode::sequential; },
        [](ConfiguredAction& other) { other.textSnippet = u""_qs; },
        [](ConfiguredAction& other) { other.customURL = u""_qs; },
        [](ConfiguredAction& other) { other.customAppName = u""_qs; },
        [](ConfiguredAction& other) { other.customAppBundleId = u""_qs; },
        [](ConfiguredAction& other) { other.customAppPath = u""_qs; },
        [](ConfiguredAction& other) { other.chainSteps[0].id = QUuid::createUuid(); },
        [](ConfiguredAction& other) { other.quickFlipCompanionBundleId = u""_qs; },
        [](ConfiguredAction& other) { other.quickFlipCompanionAppName = u""_qs; },
    };
    for (std::size_t position = 0; position < changes.size(); ++position)
        EXPECT_NE(changed(record, changes[position]), record) << "field " << position;
}

TEST(AllShortcuts, theListIsTheResultWhateverItHolds)
{
    ConfiguredAction record(KeyAction::keyboardShortcut);
    record.customShortcut = shortcutOf(u"C"_qs);
    record.customShortcuts = {CustomShortcut(), shortcutOf(u"B"_qs)};
    EXPECT_EQ(record.allShortcuts(), record.customShortcuts);
}

TEST(AllShortcuts, aSingleShortcutCountsIfItNamesAKey)
{
    ConfiguredAction record(KeyAction::keyboardShortcut);
    EXPECT_TRUE(record.allShortcuts().isEmpty());
    record.customShortcut = shortcutOf(u"B"_qs, 11);
    EXPECT_EQ(record.allShortcuts(), QList{*record.customShortcut});
    record.customShortcut = shortcutOf({}, 1);
    EXPECT_EQ(record.allShortcuts(), QList{*record.customShortcut});
}

TEST(AllShortcuts, keyCodeZeroWithANameIsAShortcut)
{
    ConfiguredAction record(KeyAction::mute);
    record.customShortcut = shortcutOf(u"A"_qs, 0);
    EXPECT_EQ(record.allShortcuts(), QList{*record.customShortcut});
    EXPECT_TRUE(record.isEffectivelyCustom(FKey::f10));
}

TEST(AllShortcuts, aShortcutWithoutAKeyIsNone)
{
    ConfiguredAction record(KeyAction::mute);
    record.customShortcut = CustomShortcut{.id = QUuid::createUuid(), .command = true};
    EXPECT_TRUE(record.allShortcuts().isEmpty());
    EXPECT_FALSE(record.isEffectivelyCustom(FKey::f10));
}

TEST(IsEffectivelyCustom, theFactoryActionIsNotCustomOnItsOwnKeyAndIsOnEveryOther)
{
    for (const FKey key : allFKeys) {
        for (const FKey other : allFKeys) {
            EXPECT_EQ(ConfiguredAction(defaultAction(other)).isEffectivelyCustom(key),
                defaultAction(other) != defaultAction(key));
        }
    }
}

TEST(IsEffectivelyCustom, modesAndTheCompanionsNameDoNotCount)
{
    ConfiguredAction record(KeyAction::mute);
    record.forceQuitMode = ForceQuitMode::systemDialog;
    EXPECT_FALSE(record.isEffectivelyCustom(FKey::f10));
    record.screenCaptureMode = ScreenCaptureMode::screen;
    record.screenCaptureDestination = ScreenCaptureDestination::file;
    record.multiKeyMode = MultiKeyPlaybackMode::sequential;
    record.quickFlipCompanionAppName = u"Notes"_qs;
    EXPECT_FALSE(record.isEffectivelyCustom(FKey::f10));
}

TEST(IsEffectivelyCustom, anEmptyAddressIsNoAddress)
{
    ConfiguredAction record(KeyAction::unassigned);
    record.customURL = u""_qs;
    EXPECT_FALSE(record.isEffectivelyCustom(FKey::f13));
    record.customURL = u"example.org"_qs;
    EXPECT_TRUE(record.isEffectivelyCustom(FKey::f13));
}

TEST(IsEffectivelyCustom, eachTextCountsWhenItIsNotEmpty)
{
    for (std::optional<QString> ConfiguredAction::*text : {&ConfiguredAction::textSnippet, &ConfiguredAction::customURL,
             &ConfiguredAction::customAppName, &ConfiguredAction::customAppBundleId, &ConfiguredAction::customAppPath,
             &ConfiguredAction::quickFlipCompanionBundleId}) {
        ConfiguredAction record(KeyAction::mute);
        record.*text = u""_qs;
        EXPECT_FALSE(record.isEffectivelyCustom(FKey::f10));
        record.*text = u" "_qs;
        EXPECT_TRUE(record.isEffectivelyCustom(FKey::f10));
    }
}

TEST(IsEffectivelyCustom, shortcutsAndStepsCount)
{
    ConfiguredAction record(KeyAction::mute);
    record.customShortcuts = {CustomShortcut()};
    EXPECT_TRUE(record.isEffectivelyCustom(FKey::f10));
    record = ConfiguredAction(KeyAction::mute);
    record.chainSteps = {ActionChainStep()};
    EXPECT_TRUE(record.isEffectivelyCustom(FKey::f10));
}

} // namespace

} // namespace tarvin
