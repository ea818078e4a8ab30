#pragma once

#include "app/simulate/Instruction.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace tarvin::simulate {

/// A scenario as read, or what is wrong with it.
struct Scenario
{
    std::vector<ScenarioLine> lines{};
    QStringList errors{}; ///< one per wrong line, each beginning with the name and the number of the line
};

/// Reads a whole scenario and checks everything that can be known before it runs: the fields of each line, that time
/// does not go back, and that the stage is set before the play.
/// @param name what errors call the scenario, such as the name of its file
[[nodiscard]] Scenario readScenario(const QString& name, const QByteArray& text);

/// The form of every error.
[[nodiscard]] QString errorAt(const QString& name, int line, const QString& message);

} // namespace tarvin::simulate
