#include "app/core/SharedObjects.h"

#include "actions/TestEnvironment.h"
#include "actions/flip/AppQuickFlipManager.h"
#include "actions/usage/ActionUsageTracker.h"
#include "app/core/ActionObjects.h"
#include "app/core/LazyQuickFlip.h"
#include "app/core/LazyStudioPresence.h"
#include "app/core/LazyToolPanel.h"
#include "app/core/ToolPanelWindows.h"
#include "interception/AccessibilityHelper.h"
#include "interception/EventTapManager.h"
#include "interception/FnKeyModeHelper.h"
#include "interception/RuntimeLog.h"
#include "interception/TriggerNotice.h"
#include "profiles/KeyProfile.h"
#include "profiles/MappingArchive.h"
#include "shell/AppDelegate.h"
#include "shell/BackgroundModeManager.h"
#include "shell/BatteryHelper.h"
#include "shell/KeyboardTactileEngine.h"
#include "shell/MenuBarExtraView.h"
#include "tools/clipboard/ClipboardHistoryHUDManager.h"
#include "tools/clipboard/ClipboardHistoryManager.h"
#include "tools/ring/ActionsRingManager.h"
#include "tools/scratchpad/QuickScratchpadManager.h"

#include <utility>

namespace tarvin {

namespace {

/// The tool panels as the executor sees them, made when it first shows one.
struct ToolPanels
{
    LazyToolPanel actionsRing;
    LazyToolPanel clipboardHistory;
    LazyToolPanel floatingScratchpad;
};

template <typename Object, typename... Arguments>
Object& madeOnce(std::unique_ptr<Object>& object, Arguments&&... arguments)
{
    if (!object)
        object = std::make_unique<Object>(std::forward<Arguments>(arguments)...);
    return *object;
}

} // namespace

/// In the order in which they may refer to each other: each is destroyed before what it uses.
struct SharedObjects::Objects
{
    std::unique_ptr<RuntimeLog> runtimeLog;
    std::unique_ptr<TriggerNotice> triggerNotice;
    std::unique_ptr<ActionUsageTracker> actionUsageTracker;
    std::unique_ptr<KeyProfile> keyProfile;
    std::unique_ptr<MappingArchive> mappingArchive;
    std::unique_ptr<TestEnvironment> testEnvironment;
    std::unique_ptr<AppQuickFlipManager> appQuickFlipManager;
    std::unique_ptr<LazyQuickFlip> quickFlip;
    std::unique_ptr<ToolPanels> toolPanels;
    std::unique_ptr<ActionObjects> actions;
    std::unique_ptr<BackgroundModeManager> backgroundModeManager;
    std::unique_ptr<LazyStudioPresence> studioPresence;
    std::unique_ptr<FnKeyModeHelper> fnKeyModeHelper;
    std::unique_ptr<AccessibilityHelper> accessibilityHelper;
    std::unique_ptr<KeyboardTactileEngine> keyboardTactileEngine;
    std::unique_ptr<BatteryHelper> batteryHelper;
    std::unique_ptr<EventTapManager> eventTapManager;
    std::unique_ptr<MenuBarExtraView> menuBarExtraView;
    std::unique_ptr<AppDelegate> appDelegate;
    std::unique_ptr<ClipboardHistoryManager> clipboardHistoryManager;
    std::unique_ptr<ClipboardHistoryHUDManager> clipboardHistoryHUDManager;
    std::unique_ptr<QuickScratchpadManager> quickScratchpadManager;
    std::unique_ptr<ActionsRingManager> actionsRingManager;
};

SharedObjects::SharedObjects(const Platform& platform, ToolPanelWindows& panelWindows)
    : m_platform(platform)
    , m_panelWindows(panelWindows)
    , m_objects(std::make_unique<Objects>())
{ }

SharedObjects::~SharedObjects() = default;

RuntimeLog& SharedObjects::runtimeLog()
{
    return madeOnce(m_objects->runtimeLog, m_platform.files, m_platform.scheduler);
}

TriggerNotice& SharedObjects::triggerNotice()
{
    return madeOnce(m_objects->triggerNotice, m_platform.scheduler);
}

ActionUsageTracker& SharedObjects::actionUsageTracker()
{
    return madeOnce(m_objects->actionUsageTracker, m_platform.files, m_platform.preferences, m_platform.console,
        m_platform.scheduler);
}

KeyProfile& SharedObjects::keyProfile()
{
    return madeOnce(m_objects->keyProfile, m_platform.files, m_platform.preferences, m_platform.workspace,
        m_platform.console, m_platform.uuids, [this](KeyAction action) { actionUsageTracker().recordUsage(action); });
}

MappingArchive& SharedObjects::mappingArchive()
{
    return madeOnce(m_objects->mappingArchive, keyProfile(), m_platform.files, m_platform.uuids, m_platform.scheduler);
}

TestEnvironment& SharedObjects::testEnvironment()
{
    return madeOnce(m_objects->testEnvironment, m_platform.processInfo);
}

AppQuickFlipManager& SharedObjects::appQuickFlipManager()
{
    return madeOnce(m_objects->appQuickFlipManager,
        AppQuickFlipManager::Collaborators{
            .workspace = m_platform.workspace,
            .applications = m_platform.applicationControl,
            .processInfo = m_platform.processInfo,
            .notice = triggerNotice(),
            .scheduler = m_platform.scheduler,
        });
}

ActionExecutor& SharedObjects::actionExecutor()
{
    if (!m_objects->actions) {
        auto& quickFlip = madeOnce(m_objects->quickFlip, [this]() -> QuickFlip& { return appQuickFlipManager(); });
        m_objects->toolPanels = std::make_unique<ToolPanels>(ToolPanels{
            .actionsRing = {[this] { return m_objects->actionsRingManager.get(); },
                [this]() -> ToolPanel& { return actionsRingManager(); }},
            .clipboardHistory = {[this] { return m_objects->clipboardHistoryHUDManager.get(); },
                [this]() -> ToolPanel& { return clipboardHistoryHUDManager(); }},
            .floatingScratchpad = {[this] { return m_objects->quickScratchpadManager.get(); },
                [this]() -> ToolPanel& { return quickScratchpadManager(); }},
        });
        m_objects->actions = std::make_unique<ActionObjects>(m_platform,
            ActionObjects::Surroundings{
                .notice = triggerNotice(),
                .testEnvironment = testEnvironment(),
                .recordUsage = [this](KeyAction action) { actionUsageTracker().recordUsage(action); },
                .mainWindow = [this] { return backgroundModeManager().mainWindow(); },
                .quickFlip = quickFlip,
                .actionsRing = m_objects->toolPanels->actionsRing,
                .clipboardHistory = m_objects->toolPanels->clipboardHistory,
                .floatingScratchpad = m_objects->toolPanels->floatingScratchpad,
            });
    }
    return m_objects->actions->executor;
}

BackgroundModeManager& SharedObjects::backgroundModeManager()
{
    if (!m_objects->backgroundModeManager) {
        auto& made = madeOnce(m_objects->backgroundModeManager, m_platform.appShell, m_platform.preferences,
            m_platform.loginItem, m_platform.scripts, m_platform.scheduler, m_platform.processInfo,
            m_platform.workspace, runtimeLog());
        QObject::connect(&made, &BackgroundModeManager::globalSummonShortcutEnabledChanged, &made, [this] {
            if (m_objects->eventTapManager)
                m_objects->eventTapManager->publishConsumedKeys();
        });
    }
    return *m_objects->backgroundModeManager;
}

EventTapManager& SharedObjects::eventTapManager()
{
    if (!m_objects->eventTapManager) {
        auto& studio = madeOnce(
            m_objects->studioPresence, [this]() -> StudioPresence* { return m_objects->backgroundModeManager.get(); },
            [this]() -> StudioPresence& { return backgroundModeManager(); });
        m_objects->eventTapManager = std::make_unique<EventTapManager>(EventTapManager::Collaborators{
            .keyProfile = keyProfile(),
            .actions = actionExecutor(),
            .studio = studio,
            .feedback = keyboardTactileEngine(),
            .notice = triggerNotice(),
            .log = runtimeLog(),
            .inputTaps = m_platform.inputTaps,
            .permission = m_platform.permission,
            .appShell = m_platform.appShell,
            .scheduler = m_platform.scheduler,
        });
    }
    return *m_objects->eventTapManager;
}

KeystrokeSynthesis& SharedObjects::keystrokeSynthesis()
{
    static_cast<void>(actionExecutor());
    return m_objects->actions->synthesis;
}

FnKeyModeHelper& SharedObjects::fnKeyModeHelper()
{
    return madeOnce(m_objects->fnKeyModeHelper, m_platform.functionKeySetting, m_platform.console);
}

AccessibilityHelper& SharedObjects::accessibilityHelper()
{
    return madeOnce(m_objects->accessibilityHelper, m_platform.permission, m_platform.scripts, m_platform.scheduler);
}

KeyboardTactileEngine& SharedObjects::keyboardTactileEngine()
{
    return madeOnce(m_objects->keyboardTactileEngine,
        KeyboardTactileEngine::Collaborators{
            .sounds = m_platform.sounds,
            .haptics = m_platform.haptics,
            .appShell = m_platform.appShell,
            .keyProfile = keyProfile(),
            .preferences = m_platform.preferences,
            .scheduler = m_platform.scheduler,
        });
}

BatteryHelper& SharedObjects::batteryHelper()
{
    return madeOnce(m_objects->batteryHelper, m_platform.powerSources, m_platform.scheduler);
}

MenuBarExtraView& SharedObjects::menuBarExtraView()
{
    return madeOnce(m_objects->menuBarExtraView,
        MenuBarExtraView::Collaborators{
            .bgManager = backgroundModeManager(),
            .keyProfile = keyProfile(),
            .appShell = m_platform.appShell,
            .fnKeyModeHelper = [this]() -> FnKeyModeHelper& { return fnKeyModeHelper(); },
            .accessibilityHelper = [this]() -> AccessibilityHelper& { return accessibilityHelper(); },
        });
}

AppDelegate& SharedObjects::appDelegate()
{
    return madeOnce(m_objects->appDelegate,
        AppDelegate::Collaborators{
            .eventTapManager = [this]() -> EventTapManager& { return eventTapManager(); },
            .backgroundModeManager = [this]() -> BackgroundModeManager& { return backgroundModeManager(); },
            .fnKeyModeHelper = [this]() -> FnKeyModeHelper& { return fnKeyModeHelper(); },
            .saveEverything =
                [this] {
                    if (m_objects->actionUsageTracker)
                        m_objects->actionUsageTracker->flush();
                },
            .appShell = m_platform.appShell,
            .scheduler = m_platform.scheduler,
            .log = runtimeLog(),
        });
}

ClipboardHistoryManager& SharedObjects::clipboardHistoryManager()
{
    return madeOnce(m_objects->clipboardHistoryManager,
        ClipboardHistoryManager::Collaborators{
            .pasteboard = m_platform.pasteboard,
            .preferences = m_platform.preferences,
            .workspace = m_platform.workspace,
            .poster = m_platform.eventPoster,
            .scheduler = m_platform.scheduler,
            .uuids = m_platform.uuids,
            .testEnvironment = testEnvironment(),
            .log = runtimeLog(),
        });
}

ClipboardHistoryHUDManager& SharedObjects::clipboardHistoryHUDManager()
{
    return madeOnce(
        m_objects->clipboardHistoryHUDManager,
        panelCollaborators([this] { return m_panelWindows.clipboardHistory(clipboardHistoryHUDManager()); }),
        [this]() -> ClipboardHistoryManager& { return clipboardHistoryManager(); }, m_platform.workspace,
        m_platform.processInfo, m_platform.screens, m_platform.pointer);
}

QuickScratchpadManager& SharedObjects::quickScratchpadManager()
{
    return madeOnce(m_objects->quickScratchpadManager,
        panelCollaborators([this] { return m_panelWindows.quickScratchpad(quickScratchpadManager()); }),
        m_platform.screens, m_platform.preferences, m_platform.pasteboard);
}

ActionsRingManager& SharedObjects::actionsRingManager()
{
    return madeOnce(m_objects->actionsRingManager,
        panelCollaborators([this] { return m_panelWindows.actionsRing(actionsRingManager()); }), m_platform.pointer,
        [this](const ConfiguredAction& action) { actionExecutor().execute(action); });
}

FadingPanel::Collaborators SharedObjects::panelCollaborators(MakeFloatingPanel makeWindow)
{
    return {.makeWindow = std::move(makeWindow), .appShell = m_platform.appShell, .scheduler = m_platform.scheduler};
}

} // namespace tarvin
