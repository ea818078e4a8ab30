#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>

namespace tarvin::simulate {

/// How a scenario ended.
struct SimulationResult
{
    QByteArray output{}; ///< lines of JSON; empty if there are errors
    QStringList errors{}; ///< each names its line and what was expected; empty if all went well
};

/// How long a simulation goes on at most after the last instruction, while anything is left to happen beside timers
/// that repeat for ever.
inline constexpr std::chrono::seconds longestAftermath{10};

/// Plays a scenario from beginning to end. The same text gives the same bytes, on every machine.
/// @param name what errors call the scenario
[[nodiscard]] SimulationResult simulate(const QString& name, const QByteArray& text);

} // namespace tarvin::simulate
