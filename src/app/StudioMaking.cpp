#include "app/StudioMaking.h"

#include "app/core/SharedObjects.h"
#include "interception/EventTapManager.h"
#include "profiles/KeyProfile.h"
#include "shell/BackgroundModeManager.h"
#include "shell/BatteryHelper.h"
#include "studio/StudioWindow.h"

#include <utility>

namespace tarvin {

std::unique_ptr<StudioWindow> makeStudioWindow(
    SharedObjects& objects, StudioSurfaces surfaces, std::function<void()> openKeyboardSettings)
{
    const StudioCollaborators collaborators{
        .keyProfile = objects.keyProfile(),
        .eventTapManager = objects.eventTapManager(),
        .fnKeyModeHelper = objects.fnKeyModeHelper(),
        .batteryHelper = objects.batteryHelper(),
        .tactileEngine = objects.keyboardTactileEngine(),
        .backgroundModeManager = objects.backgroundModeManager(),
        .accessibilityHelper = objects.accessibilityHelper(),
        .openKeyboardSettings = std::move(openKeyboardSettings),
    };
    return std::make_unique<StudioWindow>(collaborators, std::move(surfaces));
}

} // namespace tarvin
