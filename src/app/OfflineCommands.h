#pragma once

#include "app/cli/CommandMessages.h"

namespace tarvin {

/// Carries out a command on the files, while no program runs. The caller holds the lock of the editors. Needs an
/// application object.
[[nodiscard]] CommandReply performOnFiles(const CommandRequest& request);

} // namespace tarvin
