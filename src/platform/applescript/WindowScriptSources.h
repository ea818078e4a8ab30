#pragma once

#include "platform/ports/Script.h"

#include <QString>

namespace tarvin {

// The sources of the scripts that act on the front window of the application in front.

[[nodiscard]] QString sourceOf(const SnapWindowByScript& script);
[[nodiscard]] QString sourceOf(const ToggleFullScreenByScript& script);
[[nodiscard]] QString sourceOf(const MinimizeWindowByScript& script);

} // namespace tarvin
