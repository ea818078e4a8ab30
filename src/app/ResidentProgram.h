#pragma once

namespace tarvin {

/// Runs the resident program on this desktop until it is asked to end, or hands the request to the one that runs
/// already. The build picks the desktop.
/// @param argumentCount, arguments as `main` got them; they live as long as the process
/// @return the exit code of the process
[[nodiscard]] int runResidentProgram(int& argumentCount, char** arguments);

} // namespace tarvin
