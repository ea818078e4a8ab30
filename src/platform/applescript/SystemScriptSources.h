#pragma once

#include "platform/ports/Script.h"

#include <QString>

namespace tarvin {

// The sources of the scripts that speak to the system rather than to a window.

[[nodiscard]] QString sourceOf(const AdjustOutputVolume& script);
[[nodiscard]] QString sourceOf(const ToggleOutputMute& script);
[[nodiscard]] QString sourceOf(const ControlMediaPlayer& script);
[[nodiscard]] QString sourceOf(const ToggleMicrophone& script);
[[nodiscard]] QString sourceOf(const RequestPowerByScript& script);
[[nodiscard]] QString sourceOf(const ActivateFileManager& script);
[[nodiscard]] QString sourceOf(const OpenForceQuitDialog& script);

} // namespace tarvin
