#include "app/core/StudioEditing.h"

#include "app/core/NoToolPanelWindows.h"
#include "app/core/SharedObjects.h"
#include "model/ActionSearch.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "studio/picker/PickerRow.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

class Editing : public testing::Test
{
protected:
    simulated::SimulatedPlatform platform;
    NoToolPanelWindows panels;
    SharedObjects objects{platform.ports(), panels};
    StudioEditing editing{platform.ports(), objects};
};

TEST_F(Editing, aSearchedActionIsInForceAtOnce)
{
    const auto f5 = editing.editKey(FKey::f5);
    f5->picker.setSearchText(QStringLiteral("clip"));
    f5->picker.choose(f5->picker.searchResults().first());
    EXPECT_EQ(objects.keyProfile().runtimeCustomAction(FKey::f5), KeyAction::clipboardHistory);
}

TEST_F(Editing, aRecordedShortcutIsStoredAndPlayed)
{
    const auto f5 = editing.editKey(FKey::f5);
    f5->picker.choose(rowFor(KeyAction::keyboardShortcut));
    f5->recorder.recordOne();
    platform.keyRecording().press({.keyCode = 8, .flags = EventFlags::command, .characters = QStringLiteral("c")});
    EXPECT_EQ(objects.keyProfile().actionConfig(FKey::f5).displayTitle(), u"Shortcut (⌘ C)");
    f5->recorder.test();
    platform.scheduler().runPosted();
    const auto posted = platform.effects().all<simulated::KeyPosted>();
    ASSERT_FALSE(posted.empty());
    EXPECT_EQ(posted.front().keyCode, 8);
    EXPECT_EQ(posted.front().flags, EventFlags::command);
}

TEST_F(Editing, aRecordingEndsWithItsPicker)
{
    auto f5 = editing.editKey(FKey::f5);
    f5->recorder.recordSequence();
    f5.reset();
    EXPECT_FALSE(platform.keyRecording().isRecording());
}

TEST_F(Editing, anApplicationIsChosenFromTheList)
{
    platform.applicationFolders().install(ApplicationFolder::applications,
        {.path = QStringLiteral("/Applications/Paint.app"), .bundleIdentifier = QStringLiteral("org.example.paint")});
    const auto f5 = editing.editKey(FKey::f5);
    f5->openApplication.load();
    platform.scheduler().runPosted();
    f5->openApplication.choose(f5->openApplication.filteredInstalledApps().first());
    EXPECT_EQ(objects.keyProfile().actionConfig(FKey::f5).displayTitle(), u"Open Application (Paint)");
}

TEST_F(Editing, anApplicationIsChosenInTheDialogOfTheSystem)
{
    platform.applicationFolders().install(ApplicationFolder::applications,
        {.path = QStringLiteral("/Applications/Paint.app"), .bundleIdentifier = QStringLiteral("org.example.paint")});
    const auto f5 = editing.editKey(FKey::f5);
    EXPECT_TRUE(f5->openApplication.browse());
    platform.applicationChooser().choose(QStringLiteral("/Applications/Paint.app"));
    EXPECT_EQ(objects.keyProfile().actionConfig(FKey::f5).displayTitle(), u"Open Application (Paint)");
}

TEST_F(Editing, bothSheetsEditTheSharedObjects)
{
    int closings = 0;
    const auto settings = editing.settings([&] { ++closings; });
    settings->setSwitch(SwitchCard::otherKeys, false);
    EXPECT_FALSE(objects.keyProfile().isOtherKeysEnabled());
    settings->close();

    platform.applicationFolders().install(ApplicationFolder::applications,
        {.path = QStringLiteral("/Applications/Paint.app"), .bundleIdentifier = QStringLiteral("org.example.paint")});
    const auto sheet = editing.addApplication([&] { ++closings; });
    platform.scheduler().runPosted();
    sheet->choose(sheet->filteredApps().first());
    EXPECT_EQ(objects.keyProfile().currentProfile().name, u"Paint");
    EXPECT_EQ(closings, 2);
}

} // namespace

} // namespace tarvin
