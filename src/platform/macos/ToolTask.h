#pragma once

#include "platform/macrequests/ToolLaunch.h"
#include "platform/ports/FunctionKeySetting.h"

#include <QString>

#include <optional>

namespace tarvin::macos {

/// Starts a tool of the system and does not wait for it. Any thread.
/// @return the system's words if it could not be started
[[nodiscard]] std::optional<QString> startTool(const ToolLaunch& launch);

/// Runs a tool to its end and gives back what it printed. What it says of errors is read and dropped. Blocks; while it
/// does, the run loop of a main thread goes on with what is attached to its default mode.
[[nodiscard]] ToolOutcome runTool(const ToolLaunch& launch);

} // namespace tarvin::macos
