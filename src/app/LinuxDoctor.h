#pragma once

#include "app/cli/Doctor.h"

namespace tarvin {

/// Looks at this machine and session. Needs an application object; takes at most some seconds.
/// @param arguments of this process, the program first
[[nodiscard]] DoctorFacts lookAtThisMachine(const QStringList& arguments);

} // namespace tarvin
