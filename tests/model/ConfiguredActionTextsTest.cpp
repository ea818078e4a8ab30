#include "model/ConfiguredAction.h"

#include "model/ModelPrinters.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarvin {

namespace {

const CustomShortcut copyKeys{.command = true, .keyCode = 8, .keyDisplay = u"c"_qs};
const CustomShortcut pasteKeys{.command = true, .shift = true, .keyCode = 9, .keyDisplay = u"v"_qs};

/// A record of @p action after @p change.
ConfiguredAction recordOf(KeyAction action, const std::function<void(ConfiguredAction&)>& change = {})
{
    ConfiguredAction record(action);
    if (change)
        change(record);
    return record;
}

ConfiguredAction recordOfText(const QString& text)
{
    return recordOf(KeyAction::textSnippet, [&](ConfiguredAction& record) { record.textSnippet = text; });
}

ConfiguredAction recordOfAddress(const QString& address)
{
    return recordOf(KeyAction::openWebURL, [&](ConfiguredAction& record) { record.customURL = address; });
}

ConfiguredAction recordOfShortcuts(const QList<CustomShortcut>& shortcuts)
{
    return recordOf(KeyAction::keyboardShortcut, [&](ConfiguredAction& record) { record.customShortcuts = shortcuts; });
}

QStringList lines(std::initializer_list<QStringView> texts)
{
    QStringList list;
    for (const QStringView text : texts)
        list << text.toString();
    return list;
}

TEST(DisplayTitle, actionsWithNothingToAddGiveTheirTitle)
{
    constexpr std::array own = {KeyAction::screenCapture, KeyAction::keyboardShortcut, KeyAction::openApplication,
        KeyAction::openWebURL, KeyAction::textSnippet, KeyAction::clipboardHistory, KeyAction::quickAppFlip,
        KeyAction::actionChain, KeyAction::floatingScratchpad, KeyAction::forceQuit};
    for (const KeyAction action : allKeyActions) {
        if (std::ranges::find(own, action) == own.end()) {
            EXPECT_EQ(ConfiguredAction(action).displayTitle(), title(action).toString());
        }
    }
    EXPECT_EQ(ConfiguredAction(KeyAction::playPause).displayTitle(), u"Play / Pause");
    EXPECT_EQ(ConfiguredAction(KeyAction::screenshotFull).displayTitle(), u"Screen capture (Full)");
}

TEST(DisplayTitle, screenCaptureTellsWhatAndWhere)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::screenCapture).displayTitle(), u"Screen capture (Region → Clipboard)");
    EXPECT_EQ(recordOf(KeyAction::screenCapture,
                  [](ConfiguredAction& record) {
                      record.screenCaptureMode = ScreenCaptureMode::window;
                      record.screenCaptureDestination = ScreenCaptureDestination::file;
                  })
                  .displayTitle(),
        u"Screen capture (Window → File)");
}

TEST(DisplayTitle, aShortcutShowsItsKeys)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::keyboardShortcut).displayTitle(), u"Keyboard shortcut");
    EXPECT_EQ(recordOfShortcuts({pasteKeys}).displayTitle(), u"Shortcut (⇧ ⌘ V)");
    EXPECT_EQ(recordOf(KeyAction::keyboardShortcut, [](ConfiguredAction& record) { record.customShortcut = copyKeys; })
                  .displayTitle(),
        u"Shortcut (⌘ C)");
}

TEST(DisplayTitle, severalShortcutsAreCountedAndJoined)
{
    ConfiguredAction record = recordOfShortcuts({copyKeys, pasteKeys});
    EXPECT_EQ(record.displayTitle(), u"Shortcut [2 keys (Simultaneous): ⌘ C + ⇧ ⌘ V]");
    record.multiKeyMode = MultiKeyPlaybackMode::sequential;
    record.customShortcuts << copyKeys << copyKeys << copyKeys;
    EXPECT_EQ(record.displayTitle(), u"Shortcut [5 keys (Sequence): ⌘ C + ⇧ ⌘ V + ⌘ C + ⌘ C + ⌘ C]");
}

TEST(DisplayTitle, anApplicationIsNamed)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::openApplication).displayTitle(), u"Open Application");
    const auto named = [](const QString& name) {
        return recordOf(KeyAction::openApplication, [&](ConfiguredAction& record) { record.customAppName = name; });
    };
    EXPECT_EQ(named(u""_qs).displayTitle(), u"Open Application");
    EXPECT_EQ(named(u"Xcode"_qs).displayTitle(), u"Open Application (Xcode)");
}

TEST(DisplayTitle, anAddressIsShownWhole)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::openWebURL).displayTitle(), u"Open Website URL");
    EXPECT_EQ(recordOfAddress(u""_qs).displayTitle(), u"Open Website URL");
    EXPECT_EQ(recordOfAddress(u"https://example.org/path"_qs).displayTitle(), u"Open URL (https://example.org/path)");
}

TEST(DisplayTitle, aSnippetOf14CharactersStandsWholeAndOneOf15DoesNot)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::textSnippet).displayTitle(), u"Insert Text Snippet");
    EXPECT_EQ(recordOfText(u""_qs).displayTitle(), u"Insert Text Snippet");
    EXPECT_EQ(recordOfText(u"12345678901234"_qs).displayTitle(), u"Text Snippet (\"12345678901234\")");
    EXPECT_EQ(recordOfText(u"123456789012345"_qs).displayTitle(), u"Text Snippet (\"123456789012...\")");
}

TEST(DisplayTitle, lengthsCountCharactersOfTheReader)
{
    const QString accented = u"e\u0301"_qs;
    EXPECT_EQ(
        recordOfText(accented.repeated(14)).displayTitle(), u"Text Snippet (\""_qs + accented.repeated(14) + u"\")"_qs);
    EXPECT_EQ(recordOfText(accented.repeated(15)).displayTitle(),
        u"Text Snippet (\""_qs + accented.repeated(12) + u"...\")"_qs);
}

TEST(DisplayTitle, aQuickFlipNamesItsCompanion)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::quickAppFlip).displayTitle(), u"Quick-Flip Apps");
    const auto with = [](const QString& name) {
        return recordOf(
            KeyAction::quickAppFlip, [&](ConfiguredAction& record) { record.quickFlipCompanionAppName = name; });
    };
    EXPECT_EQ(with(u""_qs).displayTitle(), u"Quick-Flip Apps");
    EXPECT_EQ(with(u"Terminal"_qs).displayTitle(), u"Quick-Flip (Terminal)");
}

TEST(DisplayTitle, aMacroCountsItsSteps)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::actionChain).displayTitle(), u"Action Chain (0 Steps)");
    EXPECT_EQ(
        recordOf(KeyAction::actionChain, [](ConfiguredAction& record) { record.chainSteps.resize(1); }).displayTitle(),
        u"Action Chain (1 Steps)");
}

TEST(DisplayTitle, toolsHaveTheirNames)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::clipboardHistory).displayTitle(), u"Clipboard History");
    EXPECT_EQ(ConfiguredAction(KeyAction::floatingScratchpad).displayTitle(), u"Quick Scratchpad");
}

TEST(DisplayTitle, forceQuitTellsItsMode)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::forceQuit).displayTitle(), u"Force Quit (Frontmost App)");
    EXPECT_EQ(recordOf(KeyAction::forceQuit,
                  [](ConfiguredAction& record) { record.forceQuitMode = ForceQuitMode::systemDialog; })
                  .displayTitle(),
        u"Force Quit (System Dialog ⌥⌘⎋)");
}

TEST(SummaryLines, fixedLinesOfSingleActions)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::toggleMicMute).summaryLines(), lines({u"Microphone", u"Mute Toggle"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::showActionsRing).summaryLines(), lines({u"Actions Ring", u"Quick Menu"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::aiAssistant).summaryLines(), lines({u"AI Assistant", u"Prompt Selection"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::clipboardHistory).summaryLines(), lines({u"Clipboard", u"History HUD"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::floatingScratchpad).summaryLines(), lines({u"Scratchpad", u"Floating HUD"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::snapWindowLeft).summaryLines(), lines({u"Snap Window", u"Left Half"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::snapWindowRight).summaryLines(), lines({u"Snap Window", u"Right Half"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::snapWindowMaximize).summaryLines(),
        lines({u"Snap Window", u"Maximize (Not Full Screen)"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::restart).summaryLines(), lines({u"Restart Mac", u"Reboot System"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::shutDown).summaryLines(), lines({u"Shut Down", u"Power Off Mac"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::sleepDevice).summaryLines(), lines({u"Sleep Mac", u"System Standby"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::sleepDisplay).summaryLines(), lines({u"Sleep Display", u"Screen Off"}));
    EXPECT_EQ(ConfiguredAction(KeyAction::toggleFullscreen).summaryLines(), lines({u"Full Screen", u"Toggle Space"}));
}

TEST(SummaryLines, everyOtherActionGivesItsTitleAlone)
{
    constexpr std::array own = {KeyAction::screenCapture, KeyAction::toggleMicMute, KeyAction::showActionsRing,
        KeyAction::keyboardShortcut, KeyAction::openApplication, KeyAction::openWebURL, KeyAction::aiAssistant,
        KeyAction::textSnippet, KeyAction::clipboardHistory, KeyAction::quickAppFlip, KeyAction::actionChain,
        KeyAction::floatingScratchpad, KeyAction::snapWindowLeft, KeyAction::snapWindowRight,
        KeyAction::snapWindowMaximize, KeyAction::forceQuit, KeyAction::restart, KeyAction::shutDown,
        KeyAction::sleepDevice, KeyAction::sleepDisplay, KeyAction::toggleFullscreen};
    for (const KeyAction action : allKeyActions) {
        if (std::ranges::find(own, action) == own.end()) {
            EXPECT_EQ(ConfiguredAction(action).summaryLines(), lines({title(action)}));
        }
    }
    EXPECT_EQ(ConfiguredAction(KeyAction::screenshotArea).summaryLines(), lines({u"Screen capture"}));
}

TEST(SummaryLines, screenCaptureTellsWhatAndWhere)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::screenCapture).summaryLines(),
        lines({u"Screen capture", u"Capture", u"Region to", u"Clipboard"}));
    EXPECT_EQ(recordOf(KeyAction::screenCapture,
                  [](ConfiguredAction& record) {
                      record.screenCaptureMode = ScreenCaptureMode::screen;
                      record.screenCaptureDestination = ScreenCaptureDestination::file;
                  })
                  .summaryLines(),
        lines({u"Screen capture", u"Capture", u"Screen to", u"File"}));
}

TEST(SummaryLines, aShortcutAsksToBeRecordedOrShowsItsKeys)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::keyboardShortcut).summaryLines(), lines({u"Shortcut", u"Press to record"}));
    EXPECT_EQ(recordOfShortcuts({pasteKeys}).summaryLines(), lines({u"Shortcut", u"⇧ ⌘ V"}));
}

TEST(SummaryLines, severalShortcutsAreCutFrom17CharactersOn)
{
    ConfiguredAction record = recordOfShortcuts({copyKeys, pasteKeys});
    EXPECT_EQ(record.summaryLines(), lines({u"2 Keys (Simultaneous)", u"⌘ C + ⇧ ⌘ V"}));

    record.multiKeyMode = MultiKeyPlaybackMode::sequential;
    const auto key = [](QStringView name) { return CustomShortcut{.keyDisplay = name.toString()}; };
    record.customShortcuts = {key(u"1234567"), key(u"890123")};
    EXPECT_EQ(record.summaryLines(), lines({u"2 Keys (Sequence)", u"1234567 + 890123"})) << "16 characters";
    record.customShortcuts = {key(u"1234567"), key(u"8901234")};
    EXPECT_EQ(record.summaryLines(), lines({u"2 Keys (Sequence)", u"1234567 + 8901..."})) << "17 characters";
    record.customShortcuts = {copyKeys, copyKeys, pasteKeys};
    EXPECT_EQ(record.summaryLines(), lines({u"3 Keys (Sequence)", u"⌘ C + ⌘ C + ⇧ ..."}));
}

TEST(SummaryLines, anApplicationIsNamedOrAskedFor)
{
    const auto named = [](const QString& name) {
        return recordOf(KeyAction::openApplication, [&](ConfiguredAction& record) { record.customAppName = name; });
    };
    EXPECT_EQ(ConfiguredAction(KeyAction::openApplication).summaryLines(), lines({u"Open App", u"Select App"}));
    EXPECT_EQ(named(u""_qs).summaryLines(), lines({u"Open App", u"Select App"}));
    EXPECT_EQ(named(u"Xcode"_qs).summaryLines(), lines({u"Open App", u"Xcode"}));
}

TEST(SummaryLines, anAddressIsReducedToItsHost)
{
    const auto hostLine = [](const QString& address) { return recordOfAddress(address).summaryLines().at(1); };
    EXPECT_EQ(ConfiguredAction(KeyAction::openWebURL).summaryLines(), lines({u"Open Website", u"Enter URL"}));
    EXPECT_EQ(recordOfAddress(u""_qs).summaryLines(), lines({u"Open Website", u"Enter URL"}));
    EXPECT_EQ(recordOfAddress(u"https://example.org/a/b"_qs).summaryLines(), lines({u"Open Website", u"example.org"}));
    EXPECT_EQ(hostLine(u"http://example.org:8080/a"_qs), u"example.org:8080");
    EXPECT_EQ(hostLine(u"example.org"_qs), u"example.org");
    EXPECT_EQ(hostLine(u"example.org/a?b=https://c/d"_qs), u"example.org");
    EXPECT_EQ(hostLine(u"https://http://example.org/"_qs), u"example.org") << "every scheme is taken away";
    EXPECT_EQ(hostLine(u"ahttps://bhttps://c/d"_qs), u"abc") << "wherever it stands";
    EXPECT_EQ(hostLine(u"ftp://example.org"_qs), u"ftp:");
    EXPECT_EQ(hostLine(u"HTTPS://example.org"_qs), u"HTTPS:") << "schemes are compared exactly";
    EXPECT_EQ(hostLine(u"https://"_qs), u"");
    EXPECT_EQ(hostLine(u"/path"_qs), u"");
}

TEST(SummaryLines, aSnippetOf12CharactersStandsWholeAndOneOf13DoesNot)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::textSnippet).summaryLines(), lines({u"Insert Text", u"Custom text"}));
    EXPECT_EQ(recordOfText(u""_qs).summaryLines(), lines({u"Insert Text", u"Custom text"}));
    EXPECT_EQ(recordOfText(u"123456789012"_qs).summaryLines(), lines({u"Insert Text", u"\"123456789012\""}));
    EXPECT_EQ(recordOfText(u"1234567890123"_qs).summaryLines(), lines({u"Insert Text", u"\"1234567890...\""}));
    EXPECT_EQ(recordOfText(u"🇩🇪"_qs.repeated(13)).summaryLines().at(1), u'"' + u"🇩🇪"_qs.repeated(10) + u"...\""_qs);
}

TEST(SummaryLines, aCompanionWithAnEmptyNameStaysEmpty)
{
    const auto with = [](const QString& name) {
        return recordOf(
            KeyAction::quickAppFlip, [&](ConfiguredAction& record) { record.quickFlipCompanionAppName = name; });
    };
    EXPECT_EQ(ConfiguredAction(KeyAction::quickAppFlip).summaryLines(), lines({u"Quick-Flip", u"Recent Apps"}));
    EXPECT_EQ(with(u"Terminal"_qs).summaryLines(), lines({u"Quick-Flip", u"Terminal"}));
    EXPECT_EQ(with(u""_qs).summaryLines(), lines({u"Quick-Flip", u""}));
}

TEST(SummaryLines, aMacroCountsItsSteps)
{
    EXPECT_EQ(
        recordOf(KeyAction::actionChain, [](ConfiguredAction& record) { record.chainSteps.resize(12); }).summaryLines(),
        lines({u"Action Chain", u"12 Steps"}));
}

TEST(SummaryLines, forceQuitTellsItsMode)
{
    EXPECT_EQ(ConfiguredAction(KeyAction::forceQuit).summaryLines(), lines({u"Force Quit", u"Frontmost App"}));
    EXPECT_EQ(recordOf(KeyAction::forceQuit,
                  [](ConfiguredAction& record) { record.forceQuitMode = ForceQuitMode::systemDialog; })
                  .summaryLines(),
        lines({u"Force Quit", u"System Dialog (⌥⌘⎋)"}));
}

} // namespace

} // namespace tarvin
