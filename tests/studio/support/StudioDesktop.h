#pragma once

#include "app/core/NoToolPanelWindows.h"
#include "app/core/SharedObjects.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "shell/KeyboardTactileEngine.h"

#include <gtest/gtest.h>

namespace tarvin::test {

/// The managers that the Studio shows, on a desktop in memory.
class StudioDesktop
{
public:
    simulated::SimulatedPlatform platform;
    NoToolPanelWindows panels;
    SharedObjects objects{platform.ports(), panels};
    KeyProfile& profile = objects.keyProfile();
    KeyboardTactileEngine& tactileEngine = objects.keyboardTactileEngine();
};

} // namespace tarvin::test
