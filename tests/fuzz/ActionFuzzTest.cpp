#include "actions/content/WebAddress.h"
#include "actions/support/PerformingDesktop.h"
#include "fuzz/support/Chance.h"

#include <gtest/gtest.h>

#include <map>

// All actions by both dispatchers on desktops of all kinds. Whatever the desktop is like, what goes down comes up
// again, the program never ends itself, secrets stay secret, and test-safe mode keeps its word.

namespace tarvin::test {

namespace {

using namespace simulated;
using namespace std::chrono_literals;

const QString secret = u"secret of somebody"_qs;

constexpr ProcessIdentifier editorProcess = 350;

/// Desktops and deeds at random.
class ActionFuzz : public testing::TestWithParam<int>
{
protected:
    ActionFuzz() { desktop.runApplication(editorProcess, u"Editor"_qs, {u"com.microsoft.VSCode"_qs}); }

    void rearrange()
    {
        desktop.runApplication(PerformingDesktop::safariProcess, u"Safari"_qs, {u"com.apple.Safari"_qs});
        if (chance.percent(20))
            desktop.runApplication(400, u"Finder"_qs, {u"com.apple.finder"_qs});
        const std::vector<std::optional<ProcessIdentifier>> fronts = {std::nullopt, PerformingDesktop::ownProcess,
            PerformingDesktop::safariProcess, PerformingDesktop::mailProcess, editorProcess};
        std::optional<ProcessIdentifier> front = chance.oneOf(fronts);
        if (front && !desktop.workspace().applicationWithProcess(*front))
            front = std::nullopt;
        desktop.workspace().setFrontmostProcess(front);
        desktop.workspace().setOnScreenWindows(
            {{.owner = static_cast<ProcessIdentifier>(100 * (1 + chance.below(4))), .layer = 0, .size = {300, 300}}});
        arrangeWindows();
        desktop.platform.pasteboard().setAnswerDelay(VirtualTime(chance.percent(30) ? chance.below(500'000) : 0));
        if (chance.percent(30))
            desktop.platform.pasteboard().copyWithoutText();
        else
            desktop.platform.pasteboard().copy({.text = chance.percent(50) ? secret : u"public"_qs, .isSecret = true});
        desktop.platform.permission().setTrusted(chance.percent(80));
        desktop.platform.scripts().setCanBuild(chance.percent(80));
        desktop.platform.displayBrightness().setCurrent(
            chance.percent(20) ? std::nullopt : std::optional(static_cast<double>(chance.below(101)) / 100.0));
        desktop.testEnvironment.setSuppressSystemPowerCommandsForTesting(chance.percent(50));
        desktop.platform.scheduler().runPosted();
    }

    void arrangeWindows()
    {
        std::vector<AccessibleWindow> windows;
        for (const ProcessIdentifier process :
            {PerformingDesktop::safariProcess, PerformingDesktop::mailProcess, PerformingDesktop::ownProcess}) {
            if (chance.percent(30))
                continue;
            AccessibleWindow window{.process = process, .title = QString::number(process)};
            window.frame = {
                {static_cast<double>(chance.below(3000)) - 500, static_cast<double>(chance.below(1500)) - 200},
                {static_cast<double>(chance.below(2000)), static_cast<double>(chance.below(1500))}};
            window.hasFocus = chance.percent(80);
            window.isFullScreen = chance.percent(20);
            for (const WindowPart part : {WindowPart::position, WindowPart::size, WindowPart::fullScreen,
                     WindowPart::minimized, WindowPart::fullScreenButton, WindowPart::minimizeButton}) {
                if (chance.percent(20))
                    window.unreadable.insert(part);
                if (chance.percent(20))
                    window.unwritable.insert(part);
            }
            windows.push_back(window);
        }
        desktop.platform.windowControl().setWindows(windows);
    }

    CustomShortcut shortcut()
    {
        return {.command = chance.percent(50),
            .shift = chance.percent(50),
            .keyCode = static_cast<KeyCode>(chance.below(4)),
            .keyDisplay = chance.percent(70) ? u"K"_qs : QString()};
    }

    ActionChainStep step()
    {
        ActionChainStep step;
        step.type = chance.oneOf(allActionChainStepTypes);
        if (chance.percent(80))
            step.customShortcut = shortcut();
        if (chance.percent(80))
            step.textSnippet = u"snippet"_qs;
        if (chance.percent(80))
            step.customURL = u"example.org"_qs;
        step.delayMs = static_cast<std::int64_t>(chance.below(200)) - 20;
        if (chance.percent(80))
            step.keyAction = chance.oneOf(allKeyActions);
        return step;
    }

    ConfiguredAction record()
    {
        ConfiguredAction config(chance.oneOf(allKeyActions));
        for (std::uint64_t count = chance.below(4); count > 0; --count)
            config.customShortcuts.append(shortcut());
        config.multiKeyMode =
            chance.oneOf(std::array{MultiKeyPlaybackMode::simultaneous, MultiKeyPlaybackMode::sequential});
        if (chance.percent(60))
            config.textSnippet = u"snippet"_qs;
        if (chance.percent(60))
            config.customURL = chance.percent(50) ? u"example.org"_qs : u"no address"_qs;
        if (chance.percent(60))
            config.customAppBundleId = u"com.example.mail"_qs;
        if (chance.percent(60))
            config.quickFlipCompanionBundleId = chance.percent(50) ? u"com.example.mail"_qs : u"com.example.none"_qs;
        config.forceQuitMode = chance.oneOf(std::array{ForceQuitMode::activeApp, ForceQuitMode::systemDialog});
        config.screenCaptureMode =
            chance.oneOf(std::array{ScreenCaptureMode::screen, ScreenCaptureMode::window, ScreenCaptureMode::region});
        config.screenCaptureDestination =
            chance.oneOf(std::array{ScreenCaptureDestination::clipboard, ScreenCaptureDestination::file});
        for (std::uint64_t count = chance.below(5); count > 0; --count)
            config.chainSteps.append(step());
        return config;
    }

    template <typename Kind> std::vector<Kind> all() { return desktop.platform.effects().all<Kind>(); }

    /// How often each thing went down more than up.
    template <typename Kind, typename Identity, typename IsDown>
    void expectBalance(const Identity& identity, const IsDown& isDown)
    {
        std::map<int, int> balance;
        for (const Kind& effect : all<Kind>())
            balance[static_cast<int>(identity(effect))] += isDown(effect) ? 1 : -1;
        for (const auto& [key, difference] : balance)
            EXPECT_EQ(difference, 0) << key;
    }

    void expectOrder()
    {
        EXPECT_TRUE(all<PortMisused>().empty());
        expectBalance<KeyPosted>([](const KeyPosted& key) { return key.keyCode; },
            [](const KeyPosted& key) { return key.state == KeyState::down; });
        expectBalance<SystemKeyPosted>([](const SystemKeyPosted& key) { return static_cast<int>(key.key); },
            [](const SystemKeyPosted& key) { return key.motion == SystemKeyMotion::down; });
        expectBalance<ClickPosted>([](const ClickPosted&) { return 0; },
            [](const ClickPosted& click) { return click.state == KeyState::down; });
        for (const KeyPosted& key : all<KeyPosted>())
            EXPECT_EQ(key.userData, selfPostedMarker);
        for (const ApplicationForceQuit& quit : all<ApplicationForceQuit>()) {
            EXPECT_NE(quit.process, PerformingDesktop::ownProcess);
            EXPECT_NE(quit.process, editorProcess);
        }
        for (const ProcessKilled& killed : all<ProcessKilled>()) {
            EXPECT_NE(killed.process, PerformingDesktop::ownProcess);
            EXPECT_NE(killed.process, editorProcess);
        }
        for (const UrlOpened& opened : all<UrlOpened>())
            EXPECT_FALSE(opened.url.contains(u"secret"));
        for (const PasteboardSet& set : all<PasteboardSet>())
            EXPECT_EQ(set.content.isSecret, set.content.text == secret || set.content.text == u"public"_qs);
    }

    /// @param mayPlayChord whether the deed was one that plays several keys at once
    void expectSafety(bool wasSelfInFront, bool mayPlayChord)
    {
        EXPECT_TRUE(mayPlayChord || all<KeyPosted>().empty());
        for (const ScriptRun& script : all<ScriptRun>())
            EXPECT_EQ(script.source, appleScriptSource(ToggleMicrophone{}));
        EXPECT_TRUE(all<ToolLaunched>().empty());
        EXPECT_TRUE(all<LoginWindowAsked>().empty());
        EXPECT_TRUE(all<AppleMenuPressed>().empty());
        EXPECT_TRUE(all<PathOpened>().empty());
        for (const ApplicationOpened& opened : all<ApplicationOpened>())
            EXPECT_EQ(opened.path, u"/System/Applications/Mission Control.app"_qs);
        for (const UrlOpened& opened : all<UrlOpened>())
            EXPECT_TRUE(opened.url.startsWith(assistantAddress(QString()))) << opened.url.toStdString();
        EXPECT_TRUE(all<PasteboardSet>().empty());
        EXPECT_TRUE(all<ApplicationForceQuit>().empty());
        EXPECT_TRUE(all<ProcessKilled>().empty());
        EXPECT_TRUE(wasSelfInFront || all<ApplicationActivated>().empty());
    }

    std::size_t countedUses()
    {
        std::size_t uses = 0;
        for (const ConsoleLine& line : all<ConsoleLine>())
            uses += line.line.startsWith(u"use ") ? 1U : 0U;
        return uses;
    }

    PerformingDesktop desktop;
    Chance chance{static_cast<std::uint64_t>(GetParam())};
};

TEST_P(ActionFuzz, everyActionKeepsOrderAndTestSafeModeKeepsItsWord)
{
    constexpr int deeds = 300;
    for (int deed = 0; deed < deeds && !HasFailure(); ++deed) {
        rearrange();
        const bool isSafe = desktop.testEnvironment.isRunningInTestEnvironment();
        const auto front = desktop.workspace().frontmostApplication();
        const bool wasSelfInFront = front && front->processIdentifier == PerformingDesktop::ownProcess;
        const ConfiguredAction config = record();
        const bool isByName = chance.percent(50);
        SCOPED_TRACE(u"deed %1: %2%3%4"_qs
                         .arg(QString::number(deed), rawValue(config.action).toString(),
                             isByName ? u" by name"_qs : QString(), isSafe ? u", safe"_qs : QString())
                         .toStdString());
        desktop.platform.effects().clear();
        if (isByName)
            desktop.actions.executor.execute(config.action);
        else
            desktop.actions.executor.execute(config);
        desktop.platform.scheduler().advance(10s);

        expectOrder();
        EXPECT_EQ(countedUses(), isByName ? 0U : 1U);
        const bool mayPlayChord = !isByName && config.action == KeyAction::keyboardShortcut
            && config.multiKeyMode == MultiKeyPlaybackMode::simultaneous && config.allShortcuts().size() > 1;
        if (isSafe)
            expectSafety(wasSelfInFront, mayPlayChord);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ActionFuzz, testing::Range(1, 21));

} // namespace

} // namespace tarvin::test
