#pragma once

#include <QString>

namespace tarvin::simulate {

/// The command `tarvin simulate FILE`: plays the scenario of the file, prints what happened to the standard output and
/// errors to the standard error.
/// @param file "-" is the standard input
/// @return the exit code: 0 all went well, 1 the output could not be written, 2 the scenario is wrong or unreadable; in
/// the last case nothing is printed to the standard output
[[nodiscard]] int runSimulateCommand(const QString& file);

} // namespace tarvin::simulate
