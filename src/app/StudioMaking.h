#pragma once

#include "studio/StudioCollaborators.h"

#include <functional>
#include <memory>

namespace tarvin {

class SharedObjects;
class StudioWindow;

/// Makes the Studio, hidden, of the program's objects, which outlive it.
/// @param openKeyboardSettings shows the settings of the system
[[nodiscard]] std::unique_ptr<StudioWindow> makeStudioWindow(
    SharedObjects& objects, StudioSurfaces surfaces, std::function<void()> openKeyboardSettings);

} // namespace tarvin
