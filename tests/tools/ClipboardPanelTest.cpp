#include "tools/clipboard/ClipboardHistoryHUDManager.h"

#include "support/QtPrinters.h"
#include "tools/clipboard/ClipboardItemJson.h"
#include "tools/support/ClipboardDesktop.h"

#include <QJsonArray>

#include <gmock/gmock.h>

namespace tarvin {
namespace {

using namespace std::chrono_literals;
using simulated::ApplicationActivated;
using simulated::KeyPosted;
using testing::ElementsAre;

class ClipboardPanel : public testing::Test
{
protected:
    void SetUp() override { desktop.platform.pointer().setPosition({700, 450}); }

    [[nodiscard]] std::optional<ProcessIdentifier> target() const
    {
        const auto& application = panel.previousFrontmostApp();
        return application ? std::optional(application->processIdentifier) : std::nullopt;
    }

    test::ClipboardDesktop desktop;
    ClipboardHistoryHUDManager panel{desktop.panelCollaborators(ClipboardHistoryHUDManager::traits),
        [this]() -> ClipboardHistoryManager& { return desktop.history(); }, desktop.ports.workspace,
        desktop.ports.processInfo, desktop.platform.screens(), desktop.ports.pointer};
};

TEST_F(ClipboardPanel, theFirstShowingMakesTheHistoryAndCapturesNothingOfBefore)
{
    desktop.platform.preferences().stage(u"Tarvin_ClipboardHistory_Items"_qs,
        QJsonArray{toJson({.id = QUuid::createUuid(), .text = u"stored"_qs, .timestamp = {}})});
    desktop.copy(u"before"_qs);
    EXPECT_FALSE(desktop.isHistoryMade());
    panel.show();
    EXPECT_TRUE(desktop.isHistoryMade());
    desktop.advance(5s);
    EXPECT_EQ(desktop.texts(), (QStringList{u"stored"_qs}));
}

TEST_F(ClipboardPanel, laterShowingsBringTheHistoryUpToDateAtOnce)
{
    panel.show();
    panel.hide();
    desktop.advance(1s);
    desktop.pasteboard().copy({.text = u"just now"_qs});
    panel.show();
    EXPECT_EQ(desktop.texts(), (QStringList{u"just now"_qs}));
}

TEST_F(ClipboardPanel, itOpensAroundThePointer)
{
    panel.show();
    EXPECT_EQ(desktop.panel->frame(), (Rect{{470, 210}, {460, 480}}));
}

TEST_F(ClipboardPanel, itKeepsAMarginToTheEdgesOfTheVisiblePart)
{
    const Rect visible{{0, 25}, {1440, 875}};
    EXPECT_EQ(clipboardPanelFrame(visible, {0, 0}).origin, (Point{20, 45}));
    EXPECT_EQ(clipboardPanelFrame(visible, {1440, 900}).origin, (Point{960, 400}));
}

TEST_F(ClipboardPanel, whereThereIsNotRoomEnoughTheLeftAndTheBottomMarginHold)
{
    EXPECT_EQ(clipboardPanelFrame({{10, 10}, {300, 300}}, {100, 100}).origin, (Point{30, -190}));
}

TEST_F(ClipboardPanel, withoutAMainScreenItStaysWhereItWas)
{
    panel.show();
    panel.hide();
    desktop.advance(1s);
    const Rect place = desktop.panel->frame();
    desktop.platform.screens().setScreens({});
    desktop.platform.pointer().setPosition({0, 0});
    panel.show();
    EXPECT_EQ(desktop.panel->frame(), place);
}

TEST_F(ClipboardPanel, itRemembersTheApplicationInFront)
{
    panel.show();
    EXPECT_EQ(target(), test::ToolsDesktop::safariProcess);
}

TEST_F(ClipboardPanel, openedFromTheProgramItselfItKeepsTheOldTarget)
{
    panel.show();
    panel.hide();
    desktop.advance(1s);
    ASSERT_TRUE(desktop.platform.workspace().isOwnProcessFrontmost());
    panel.show();
    EXPECT_EQ(target(), test::ToolsDesktop::safariProcess);
}

TEST_F(ClipboardPanel, withNothingInFrontItKeepsTheOldTarget)
{
    panel.show();
    panel.hide();
    desktop.advance(1s);
    desktop.platform.workspace().setFrontmostProcess(std::nullopt);
    panel.show();
    EXPECT_EQ(target(), test::ToolsDesktop::safariProcess);
}

TEST_F(ClipboardPanel, pastingClosesThePanelAndGivesTheFocusBack)
{
    panel.show();
    desktop.copy(u"text"_qs);
    desktop.effects().clear();
    panel.pasteItem(desktop.history().items().first());
    EXPECT_TRUE(panel.isVisible());
    EXPECT_THAT(desktop.effects().all<ApplicationActivated>(),
        ElementsAre(ApplicationActivated{test::ToolsDesktop::safariProcess, u"Safari"_qs}));
    desktop.advance(1s);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(desktop.pasteboard().content(), (PasteboardText{.text = u"text"_qs}));
    EXPECT_EQ(desktop.effects().count<KeyPosted>(), 2u);
    EXPECT_EQ(desktop.history().items().size(), 1);
}

TEST_F(ClipboardPanel, withoutATargetTheKeystrokeIsSentAllTheSame)
{
    desktop.bringToFront(test::ToolsDesktop::ownProcess);
    panel.show();
    desktop.copy(u"text"_qs);
    desktop.effects().clear();
    panel.pasteItem(desktop.history().items().first());
    desktop.advance(1s);
    EXPECT_EQ(desktop.effects().count<ApplicationActivated>(), 0u);
    EXPECT_EQ(desktop.effects().count<KeyPosted>(), 2u);
}

TEST_F(ClipboardPanel, closingGivesNoFocusBack)
{
    panel.show();
    desktop.advance(1s);
    panel.hide();
    desktop.advance(1s);
    EXPECT_EQ(desktop.effects().count<ApplicationActivated>(), 0u);
}

TEST_F(ClipboardPanel, withoutAWindowNothingIsVisibleButTheTargetIsKnown)
{
    desktop.canMakeWindows = false;
    panel.show();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(target(), test::ToolsDesktop::safariProcess);
}

TEST_F(ClipboardPanel, itFadesInAndOutAtItsOwnPace)
{
    panel.show();
    panel.hide();
    desktop.advance(1s);
    EXPECT_THAT(desktop.effects().all<simulated::PanelFaded>(),
        ElementsAre(simulated::PanelFaded{u"Panel"_qs, 1, 160ms}, simulated::PanelFaded{u"Panel"_qs, 0, 120ms}));
}

} // namespace
} // namespace tarvin
