#pragma once

#include "platform/ports/Platform.h"
#include "tools/panel/FadingPanel.h"

#include <memory>

namespace tarvin {

class AccessibilityHelper;
class ActionExecutor;
class ActionsRingManager;
class ActionUsageTracker;
class AppDelegate;
class AppQuickFlipManager;
class BackgroundModeManager;
class BatteryHelper;
class ClipboardHistoryHUDManager;
class ClipboardHistoryManager;
class EventTapManager;
class FnKeyModeHelper;
class KeyProfile;
class KeyboardTactileEngine;
class MappingArchive;
class KeystrokeSynthesis;
class MenuBarExtraView;
class QuickScratchpadManager;
class RuntimeLog;
class TestEnvironment;
class ToolPanelWindows;
class TriggerNotice;

/// The objects that exist once, each made at its first use and living until this one goes, and the one place where they
/// meet. The program, the simulation and the tests of the whole all build the same core here, each on its own platform.
///
/// Main thread only.
class SharedObjects
{
public:
    /// Makes nothing yet. The platform and the maker of panel windows outlive this object.
    SharedObjects(const Platform& platform, ToolPanelWindows& panelWindows);
    ~SharedObjects();
    SharedObjects(const SharedObjects&) = delete;
    SharedObjects& operator=(const SharedObjects&) = delete;

    [[nodiscard]] RuntimeLog& runtimeLog();
    [[nodiscard]] TriggerNotice& triggerNotice();
    [[nodiscard]] KeyProfile& keyProfile();
    /// Made early, it remembers every change from then on.
    [[nodiscard]] MappingArchive& mappingArchive();
    [[nodiscard]] ActionUsageTracker& actionUsageTracker();
    [[nodiscard]] TestEnvironment& testEnvironment();
    [[nodiscard]] AppQuickFlipManager& appQuickFlipManager();
    [[nodiscard]] ActionExecutor& actionExecutor();
    [[nodiscard]] KeystrokeSynthesis& keystrokeSynthesis();
    [[nodiscard]] BackgroundModeManager& backgroundModeManager();
    [[nodiscard]] EventTapManager& eventTapManager();
    [[nodiscard]] FnKeyModeHelper& fnKeyModeHelper();
    [[nodiscard]] AccessibilityHelper& accessibilityHelper();
    [[nodiscard]] KeyboardTactileEngine& keyboardTactileEngine();
    [[nodiscard]] BatteryHelper& batteryHelper();
    [[nodiscard]] MenuBarExtraView& menuBarExtraView();
    [[nodiscard]] AppDelegate& appDelegate();
    [[nodiscard]] ClipboardHistoryManager& clipboardHistoryManager();
    [[nodiscard]] ClipboardHistoryHUDManager& clipboardHistoryHUDManager();
    [[nodiscard]] QuickScratchpadManager& quickScratchpadManager();
    [[nodiscard]] ActionsRingManager& actionsRingManager();

private:
    struct Objects;

    [[nodiscard]] FadingPanel::Collaborators panelCollaborators(MakeFloatingPanel makeWindow);

    Platform m_platform;
    ToolPanelWindows& m_panelWindows;
    std::unique_ptr<Objects> m_objects;
};

} // namespace tarvin
