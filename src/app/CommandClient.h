#pragma once

#include <QString>
#include <QStringList>

namespace tarvin {

/// Carries out one command of the command line in this process: through the program that runs, or without one on its
/// files.
/// @param argumentCount, arguments as `main` got them
/// @return the exit code
[[nodiscard]] int runCommand(const QString& command, const QStringList& words, int& argumentCount, char** arguments);

} // namespace tarvin
