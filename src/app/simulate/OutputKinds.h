#pragma once

#include <QStringList>

namespace tarvin::simulate {

/// Every kind of line that a simulation writes: the effects, and "log" for the lines of the program's log file, which
/// reach the desktop as files written.
[[nodiscard]] QStringList outputKinds();

} // namespace tarvin::simulate
