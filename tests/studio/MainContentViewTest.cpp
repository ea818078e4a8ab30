#include "studio/MainContentView.h"

#include "interception/AccessibilityHelper.h"
#include "interception/EventTapManager.h"
#include "interception/FnKeyModeHelper.h"
#include "shell/BackgroundModeManager.h"
#include "shell/BatteryHelper.h"
#include "studio/AccessibilityWarningBanner.h"
#include "studio/AppProfileFloatingDock.h"
#include "studio/LabelledSwitch.h"
#include "studio/StudioBody.h"
#include "studio/StudioWindow.h"
#include "studio/TopHeaderBar.h"
#include "studio/TopSettingsControls.h"
#include "studio/keyboard/KeyButton.h"
#include "studio/keyboard/MacBookAirKeyboardView.h"
#include "studio/support/StudioDesktop.h"
#include "ui/SwitchControl.h"

#include "support/QtPrinters.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;

namespace {

/// Stands for the pane that edits a key.
class Pane : public QWidget
{
public:
    Pane(FKey forKey, StudioSurfaces::Close closeIt)
        : key(forKey)
        , close(std::move(closeIt))
    { }
    [[nodiscard]] QSize sizeHint() const override { return {330, 400}; }

    FKey key;
    StudioSurfaces::Close close;
};

class MainContent : public testing::Test
{
protected:
    MainContent()
    {
        desktop.platform.functionKeySetting().setStoredText("1");
        desktop.objects.eventTapManager().start();
    }

    StudioCollaborators collaborators()
    {
        return {.keyProfile = desktop.profile,
            .eventTapManager = desktop.objects.eventTapManager(),
            .fnKeyModeHelper = desktop.objects.fnKeyModeHelper(),
            .batteryHelper = desktop.objects.batteryHelper(),
            .tactileEngine = desktop.tactileEngine,
            .backgroundModeManager = desktop.objects.backgroundModeManager(),
            .accessibilityHelper = desktop.objects.accessibilityHelper(),
            .openKeyboardSettings = [this] { opened += u"keyboard settings"_qs; }};
    }
    StudioSurfaces surfaces()
    {
        return {
            .makeActionPicker = [](FKey key, StudioSurfaces::Close close) { return new Pane(key, std::move(close)); },
            .showSettings = [this](QWidget& /*window*/) { opened += u"settings"_qs; },
            .showAddApplication = [this](QWidget& /*window*/) { opened += u"add application"_qs; }};
    }
    MainContentView& show(const QSize& size = MainContentView::idealSize)
    {
        window = std::make_unique<StudioWindow>(collaborators(), surfaces());
        window->resize(size);
        window->show();
        QTest::qWait(0);
        return window->content();
    }
    /// The control of that name, as assistive technology knows it.
    [[nodiscard]] QAbstractButton* button(const QString& name) const
    {
        const auto buttons = window->findChildren<QAbstractButton*>();
        for (QAbstractButton* const candidate : buttons) {
            if (QAccessible::queryAccessibleInterface(candidate)->text(QAccessible::Name) == name)
                return candidate;
        }
        throw std::invalid_argument("no button " + name.toStdString());
    }
    void press(const QString& name) const { button(name)->click(); }
    [[nodiscard]] QStringList messages() const
    {
        QStringList texts;
        const auto labels = window->findChildren<QLabel*>();
        for (const QLabel* const label : labels) {
            if (!label->isHidden())
                texts += label->text();
        }
        return texts;
    }
    [[nodiscard]] bool functionKeyModeIsDedicated()
    {
        return desktop.platform.functionKeySetting().storedText().trimmed() != "0";
    }

    test::StudioDesktop desktop;
    QStringList opened;
    std::unique_ptr<StudioWindow> window;
};

} // namespace

TEST_F(MainContent, theWindowHasItsTitleAndItsSizes)
{
    show();
    EXPECT_EQ(window->windowTitle(), u"Tarvin — MacBook Air Keyboard Studio"_qs);
    EXPECT_EQ(window->size(), QSize(1260, 800));
    EXPECT_EQ(window->minimumSizeHint(), QSize(1180, 760));
}

TEST_F(MainContent, withoutPermissionTheBannerShowsAndTheSwitchStaysWhereItWas)
{
    desktop.platform.permission().setTrusted(false);
    desktop.objects.eventTapManager().stop();
    desktop.objects.eventTapManager().start();
    MainContentView& content = show();
    ASSERT_FALSE(desktop.objects.eventTapManager().hasAccessibilityPermission());
    EXPECT_TRUE(content.banner().isVisible());
    EXPECT_TRUE(content.header().hookStatusToggle().control().isChecked());
    EXPECT_THAT(messages(), Contains(u"Waiting for Authorization"_qs));
    EXPECT_THAT(messages(), Contains(u"Accessibility Permission Required"_qs));
}

TEST_F(MainContent, withPermissionThereIsNoBanner)
{
    MainContentView& content = show();
    ASSERT_TRUE(desktop.objects.eventTapManager().hasAccessibilityPermission());
    EXPECT_FALSE(content.banner().isVisible());
    EXPECT_THAT(messages(), Contains(u"Physical Interception Active"_qs));
}

TEST_F(MainContent, theBannersButtonOpensThePageWhereThePermissionIsGiven)
{
    desktop.platform.permission().setTrusted(false);
    desktop.objects.eventTapManager().stop();
    desktop.objects.eventTapManager().start();
    show();
    desktop.platform.effects().clear();
    press(u"Authorize in System Settings"_qs);
    desktop.platform.scheduler().advance(std::chrono::seconds(1));
    EXPECT_THAT(desktop.platform.effects().effects(), Not(IsEmpty()));
}

TEST_F(MainContent, restoreDefaultsTurnsInterceptionOffAndKeepsAllMappings)
{
    desktop.profile.setAction(KeyAction::clipboardHistory, FKey::f5);
    MainContentView& content = show();
    press(u"Restore Defaults"_qs);
    EXPECT_FALSE(desktop.profile.isInterceptionEnabled());
    EXPECT_FALSE(content.header().hookStatusToggle().control().isChecked());
    EXPECT_FALSE(functionKeyModeIsDedicated());
    EXPECT_EQ(desktop.profile.actionInEditor(FKey::f5), KeyAction::clipboardHistory);
    content.header().hookStatusToggle().control().click();
    EXPECT_NE(desktop.profile.runtimeCustomConfig(FKey::f5), nullptr) << "the mapping is back";
}

TEST_F(MainContent, turningOtherKeysOffLeavesTheFunctionKeyModeAlone)
{
    show();
    press(u"Other Keys"_qs);
    EXPECT_FALSE(desktop.profile.isOtherKeysEnabled());
    EXPECT_TRUE(functionKeyModeIsDedicated());
}

TEST_F(MainContent, turningTheFunctionKeysOffRestoresTheFunctionKeyMode)
{
    show();
    press(u"F1–F12"_qs);
    EXPECT_FALSE(desktop.profile.isFunctionKeysEnabled());
    EXPECT_FALSE(functionKeyModeIsDedicated());
    EXPECT_THAT(messages(), Contains(u"F1–F12: 0/12 (Paused)"_qs));
}

TEST_F(MainContent, turningTheFunctionKeysOnTouchesNoMode)
{
    desktop.profile.setFunctionKeysEnabled(false);
    show();
    press(u"F1–F12"_qs);
    EXPECT_TRUE(desktop.profile.isFunctionKeysEnabled());
    EXPECT_TRUE(functionKeyModeIsDedicated());
}

TEST_F(MainContent, theSwitchOfEverythingRestoresTheFunctionKeyModeWhenItGoesOff)
{
    MainContentView& content = show();
    content.header().hookStatusToggle().control().click();
    EXPECT_FALSE(desktop.profile.isInterceptionEnabled());
    EXPECT_FALSE(functionKeyModeIsDedicated());
    EXPECT_EQ(content.header().hookStatusToggle().look().label, u"Apple Defaults"_qs);
}

TEST_F(MainContent, switchesFollowWhatHappensElsewhere)
{
    MainContentView& content = show();
    desktop.profile.setInterceptionEnabled(false);
    desktop.profile.setOtherKeysEnabled(false);
    desktop.profile.setFunctionKeysEnabled(false);
    EXPECT_FALSE(content.header().hookStatusToggle().control().isChecked());
    EXPECT_FALSE(content.body().controls().otherKeysToggle().control().isChecked());
    EXPECT_FALSE(content.body().controls().functionKeysToggle().control().isChecked());
}

TEST_F(MainContent, messagesFollowMappingsAndProfiles)
{
    show();
    desktop.profile.setAction(KeyAction::copy, FKey::f5);
    desktop.profile.setAction(KeyAction::copy, FKey::capsLock);
    EXPECT_THAT(messages(), Contains(u"2 customized for All Applications"_qs));
    EXPECT_THAT(messages(), Contains(u"F1–F12: 1/12"_qs));
    EXPECT_THAT(messages(), Contains(u"Other: 1/5"_qs));
    press(u"Safari"_qs);
    EXPECT_EQ(desktop.profile.currentProfile(), AppProfile::safari());
    EXPECT_THAT(messages(), Contains(u"0 customized for Safari"_qs));
}

TEST_F(MainContent, theLastTriggerShowsWhileItStands)
{
    show();
    desktop.objects.eventTapManager().recordTriggerDirectly(u"Copied"_qs);
    EXPECT_THAT(messages(), Contains(u"Copied"_qs));
    desktop.platform.scheduler().advance(std::chrono::seconds(4));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !messages().contains(u"Copied"_qs); }));
}

TEST_F(MainContent, resetEmptiesTheCurrentProfile)
{
    desktop.profile.setAction(KeyAction::copy, FKey::f5);
    show();
    press(u"Reset all function keys for All Applications to Apple defaults"_qs);
    EXPECT_FALSE(desktop.profile.isCustomized(FKey::f5));
}

TEST_F(MainContent, theBacklightButtonCyclesAndTheSoundButtonToggles)
{
    show();
    press(u"Keyboard Backlight: 85% (Click to cycle)"_qs);
    EXPECT_EQ(desktop.tactileEngine.backlightLevel(), 1.0);
    press(u"Keyboard Backlight: 100% (Click to cycle)"_qs);
    EXPECT_EQ(desktop.tactileEngine.backlightLevel(), 0.0);
    press(u"Key Click Sound: Active (Click to Mute)"_qs);
    EXPECT_FALSE(desktop.tactileEngine.isSoundEnabled());
    press(u"Key Click Sound: Muted (Click to Unmute)"_qs);
    EXPECT_TRUE(desktop.tactileEngine.isSoundEnabled());
}

TEST_F(MainContent, buttonsLeadToTheSheetsAndTheSystemsSettings)
{
    show();
    press(u"Settings"_qs);
    press(u"Background"_qs);
    press(u"Background: Default (Zero Power)"_qs);
    press(u"Add Application Profile..."_qs);
    press(u"macOS Keyboard Settings"_qs);
    EXPECT_EQ(opened,
        (QStringList{u"settings"_qs, u"settings"_qs, u"settings"_qs, u"add application"_qs, u"keyboard settings"_qs}));
}

TEST_F(MainContent, theFooterFollowsBatteryAndMode)
{
    show();
    EXPECT_THAT(messages(), Contains(u"100%"_qs));
    desktop.objects.backgroundModeManager().setStartupDockMode(StartupDockMode::showInDock);
    EXPECT_NE(button(u"Background: OFF (Zero Power)"_qs), nullptr);
}

TEST_F(MainContent, theActivePillGlidesToTheProfileThatIsChosen)
{
    MainContentView& content = show();
    const AppProfileFloatingDock& dock = content.header().dock();
    const double before = dock.activePill().left();
    press(u"Terminal"_qs);
    EXPECT_EQ(dock.activePill().left(), before) << "it starts where it was";
    const QRect goal = button(u"Terminal"_qs)->geometry();
    EXPECT_TRUE(QTest::qWaitFor([&] { return dock.activePill().left() > before + 20; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return dock.activePill().left() == goal.left(); }));
    EXPECT_EQ(dock.activePill().width(), goal.width());
    EXPECT_TRUE(button(u"Terminal"_qs)->isChecked());
    EXPECT_FALSE(button(u"MacBook Air & Pro"_qs)->isChecked());
}

TEST_F(MainContent, aProfileThatIsAddedHasItsPill)
{
    show();
    desktop.profile.addAppProfile(u"Editor"_qs, u"org.example.editor"_qs, u"app.fill"_qs);
    EXPECT_TRUE(button(u"Editor"_qs)->isChecked());
}

TEST_F(MainContent, moreProfilesThanFitAreScrolled)
{
    MainContentView& content = show();
    for (int number = 1; number <= 30; ++number) {
        const QString name = u"Application %1"_qs.arg(number);
        desktop.profile.addAppProfile(name, u"org.example.app%1"_qs.arg(number), u"app.fill"_qs);
    }
    QTest::qWait(0);
    const AppProfileFloatingDock& dock = content.header().dock();
    const QRect dockBox = dock.geometry();
    EXPECT_GT(dockBox.left(), 140) << "clear of the name";
    EXPECT_LT(dockBox.right(), button(u"Settings"_qs)->x()) << "clear of the buttons";
    const auto isInSight = [&](const QString& name) {
        const QWidget* const pill = button(name);
        return QRect(QPoint(), pill->parentWidget()->size()).contains(pill->geometry());
    };
    EXPECT_TRUE(isInSight(u"Application 30"_qs)) << "the one that was added last is current";
    EXPECT_FALSE(isInSight(u"Safari"_qs));
    desktop.profile.setCurrentProfile(AppProfile::safari());
    EXPECT_TRUE(isInSight(u"Safari"_qs));
    EXPECT_FALSE(isInSight(u"Application 30"_qs));
}

TEST_F(MainContent, aLongNoticeGivesWayToTheOtherMessages)
{
    MainContentView& content = show(MainContentView::leastSize);
    content.body().keyboard().setSelectedKey(FKey::f5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return content.header().width() == 1180 - 331; }));
    desktop.objects.eventTapManager().recordTriggerDirectly(QString(200, u'x'));
    const auto labels = content.body().findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
        const QRect box(label->mapTo(&content.body(), QPoint()), label->size());
        EXPECT_TRUE(content.body().rect().contains(box)) << label->text().toStdString();
    }
}

TEST_F(MainContent, aSelectedKeyOpensItsPaneAtTheRightAndClosingItClearsTheSelection)
{
    MainContentView& content = show();
    content.body().keyboard().button(*keycapOf(FKey::f5)).click();
    auto* const pane = dynamic_cast<Pane*>(content.actionPicker());
    ASSERT_NE(pane, nullptr);
    EXPECT_EQ(pane->key, FKey::f5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pane->x() == 1260 - 330; }));
    EXPECT_EQ(pane->size(), QSize(330, 800));
    EXPECT_EQ(content.header().width(), 1260 - 331);
    pane->close();
    EXPECT_EQ(content.selectedKey(), std::nullopt);
    EXPECT_TRUE(QTest::qWaitFor([&] { return content.actionPicker() == nullptr; }));
    EXPECT_EQ(content.header().width(), 1260);
}

TEST_F(MainContent, aPaneThatHadTheKeyboardLeavesItWithItsKey)
{
    MainContentView& content = show();
    MacBookAirKeyboardView& keyboard = content.body().keyboard();
    keyboard.setSelectedKey(FKey::f5);
    auto* const field = new QLineEdit(content.actionPicker());
    field->show();
    field->setFocus();
    ASSERT_EQ(window->focusWidget(), field);
    dynamic_cast<Pane*>(content.actionPicker())->close();
    EXPECT_EQ(window->focusWidget(), &keyboard.button(*keycapOf(FKey::f5)));
    EXPECT_TRUE(keyboard.button(*keycapOf(FKey::f5)).focusPolicy() & Qt::TabFocus);
    EXPECT_FALSE(keyboard.button(*keycapOf(FKey::f1)).focusPolicy() & Qt::TabFocus) << "Tab reaches one key alone";
}

TEST_F(MainContent, aPaneWithoutTheKeyboardTakesItFromNobody)
{
    MainContentView& content = show();
    content.body().keyboard().setSelectedKey(FKey::f5);
    dynamic_cast<Pane*>(content.actionPicker())->close();
    EXPECT_EQ(window->focusWidget(), &content);
}

TEST_F(MainContent, aPaneMayGoBeforeTheWindow)
{
    MainContentView& content = show();
    content.body().keyboard().setSelectedKey(FKey::f5);
    delete content.actionPicker();
    EXPECT_EQ(content.actionPicker(), nullptr);
    content.body().keyboard().setSelectedKey(std::nullopt);
    EXPECT_TRUE(QTest::qWaitFor([&] { return content.header().width() == 1260; }));
}

TEST_F(MainContent, anotherKeyGetsAPaneOfItsOwn)
{
    MainContentView& content = show();
    content.body().keyboard().setSelectedKey(FKey::f5);
    content.body().keyboard().setSelectedKey(FKey::capsLock);
    ASSERT_NE(content.actionPicker(), nullptr);
    EXPECT_EQ(dynamic_cast<Pane*>(content.actionPicker())->key, FKey::capsLock);
}

TEST_F(MainContent, aNarrowMainColumnLeavesWordsOut)
{
    MainContentView& content = show();
    const int wide = button(u"Settings"_qs)->width();
    content.body().keyboard().setSelectedKey(FKey::f5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return content.header().width() == 1260 - 331; }));
    EXPECT_LT(button(u"Settings"_qs)->width(), wide - 20);
    EXPECT_LT(button(u"Safari"_qs)->width(), 40);
}

TEST_F(MainContent, noControlsOverlapAtAnyWidth)
{
    for (const int width : {1180, 1260, 1600, 3840}) {
        MainContentView& content = show({width, 800});
        for (const bool withPane : {false, true}) {
            if (withPane) {
                content.body().keyboard().setSelectedKey(FKey::f5);
                ASSERT_TRUE(QTest::qWaitFor([&] { return content.header().width() == width - 331; }));
            }
            const auto buttons = content.header().findChildren<QAbstractButton*>();
            for (const QAbstractButton* const first : buttons) {
                const QRect box(first->mapTo(window.get(), QPoint()), first->size());
                EXPECT_TRUE(QRect(0, 0, content.header().width(), 56).contains(box)) << width << withPane;
                for (const QAbstractButton* const second : buttons) {
                    const QRect other(second->mapTo(window.get(), QPoint()), second->size());
                    EXPECT_TRUE(first == second || !box.intersects(other))
                        << width << withPane << first->text().toStdString() << second->text().toStdString();
                }
            }
        }
    }
}

TEST_F(MainContent, theBodyFitsAtTheLeastSizeAndScrollsOnlyBelowIt)
{
    MainContentView content(collaborators(), surfaces());
    content.setMinimumSize(0, 0);
    content.resize(MainContentView::leastSize);
    content.show();
    const QScrollBar& bar = *content.findChild<QScrollArea*>()->verticalScrollBar();
    EXPECT_EQ(bar.maximum(), 0);
    content.resize(1180, 420);
    EXPECT_GT(bar.maximum(), 50);
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.isVisible(); }));
    EXPECT_EQ(content.findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(MainContent, everyControlHasANameForAssistiveTechnology)
{
    show();
    const auto buttons = window->findChildren<QAbstractButton*>();
    EXPECT_GT(buttons.size(), 90);
    for (QAbstractButton* const control : buttons)
        EXPECT_FALSE(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty());
}

TEST_F(MainContent, tabLeadsThroughAllControlsAndOneKey)
{
    show();
    QSet<QString> reached;
    QWidget* widget = window->content().nextInFocusChain();
    for (int step = 0; step < 400; ++step, widget = widget->nextInFocusChain()) {
        if (widget->focusPolicy() & Qt::TabFocus)
            reached += QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    }
    for (const QString& name : {u"Safari"_qs, u"Settings"_qs, u"Custom Keys"_qs, u"F1–F12"_qs, u"Other Keys"_qs,
             u"Restore Defaults"_qs, u"F1, customisable: Brightness down"_qs, u"macOS Keyboard Settings"_qs})
        EXPECT_TRUE(reached.contains(name)) << name.toStdString();
    EXPECT_FALSE(reached.contains(u"Q"_qs));
}

TEST_F(MainContent, noControlIsMarkedBeforeTheUserReachesForOne)
{
    MainContentView& content = show();
    EXPECT_EQ(window->focusWidget(), &content);
}

} // namespace tarvin
