#pragma once

namespace tarvin {

/// Waits for a command that found no program running and may be editing the files: they are to be read only after it.
/// For a few seconds at most.
void waitForCommandAtWork();

} // namespace tarvin
