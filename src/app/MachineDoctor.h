#pragma once

#include "app/cli/Doctor.h"

namespace tarvin {

class ProcessInfo;

/// Looks at this machine and session, each kind with its own eyes. Needs an application object; takes at most some
/// seconds.
/// @param arguments of this process, the program first
[[nodiscard]] Diagnosis diagnoseThisMachine(const QStringList& arguments);

/// What every machine can tell: the versions, what the running program says of itself, and what holds it back.
[[nodiscard]] DoctorFacts factsOfTheProgram(const ProcessInfo& processInfo);

} // namespace tarvin
