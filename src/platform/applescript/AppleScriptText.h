#pragma once

#include "platform/ports/Script.h"

#include <QString>

namespace tarvin {

/// The exact AppleScript source of a script: what macOS runs, and what a simulation shows. Names and paths go in as
/// plain text without quoting, so one that holds a quote mark makes a script that cannot be built.
[[nodiscard]] QString appleScriptSource(const Script& script);

} // namespace tarvin
