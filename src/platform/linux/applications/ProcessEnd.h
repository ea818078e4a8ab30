#pragma once

#include "platform/ports/Workspace.h"

namespace tarvin::applications {

/// Whether the process runs no more. One that has ended and whose parent has not asked for its end yet counts as gone.
[[nodiscard]] bool hasEnded(ProcessIdentifier process);

/// Sends the signal that no process can refuse. Never to this process, nor to any number that means more than one.
/// @return whether it could be sent
bool endByForce(ProcessIdentifier process);

} // namespace tarvin::applications
