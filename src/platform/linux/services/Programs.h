#pragma once

#include <QString>
#include <QStringList>

namespace tarvin::services {

/// Starts a program of the search path on its own and does not wait for it. Takes milliseconds, so not for the main
/// thread. What it prints is not shown.
/// @return false if there is no such program
[[nodiscard]] bool startProgram(const QString& program, const QStringList& arguments);

/// Whether a process of this name runs for this user, by the kernel's list of processes. A few milliseconds.
[[nodiscard]] bool isProgramRunning(QStringView name);

/// Whether the search path has a program of this name.
[[nodiscard]] bool isProgramInstalled(const QString& name);

} // namespace tarvin::services
