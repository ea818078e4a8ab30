#pragma once

#include "actions/TestEnvironment.h"
#include "interception/RuntimeLog.h"
#include "platform/simulated/SimulatedFloatingPanel.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tools/panel/FadingPanel.h"

#include <QStringList>

namespace tarvin::test {

/// A simulated desktop with what the tool panels need of the program. Safari is in front, and the program itself runs
/// behind it.
struct ToolsDesktop
{
    static constexpr ProcessIdentifier ownProcess = simulated::SimulatedWorkspace::ownProcess;
    static constexpr ProcessIdentifier safariProcess = 200;

    ToolsDesktop();

    /// What a panel needs; its window is found in `panel` once it was made.
    [[nodiscard]] FadingPanel::Collaborators panelCollaborators(const PanelTraits& traits);
    void bringToFront(ProcessIdentifier process) { platform.workspace().setFrontmostProcess(process); }
    void runInTestSafeMode() { testEnvironment.setSuppressSystemPowerCommandsForTesting(true); }
    void advance(simulated::VirtualTime time) { platform.scheduler().advance(time); }
    /// The lines that the program's log file has got.
    [[nodiscard]] QStringList logLines();
    [[nodiscard]] simulated::EffectLog& effects() { return platform.effects(); }

    simulated::SimulatedPlatform platform;
    Platform ports;
    RuntimeLog log;
    TestEnvironment testEnvironment;
    simulated::SimulatedFloatingPanel* panel = nullptr;
    bool canMakeWindows = true;
    int windowsMade = 0;
};

} // namespace tarvin::test
