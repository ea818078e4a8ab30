#pragma once

#include <QString>
#include <QStringList>

#include <variant>

namespace tarvin {

/// Start the resident program, or reach the one that runs already.
struct RunProgram
{
    QStringList urls; ///< addresses of the program's own scheme, in the order given
    friend bool operator==(const RunProgram&, const RunProgram&) = default;
};

/// Play a scenario on the simulated desktop.
struct SimulateScenario
{
    QString file; ///< "-" is the standard input
    friend bool operator==(const SimulateScenario&, const SimulateScenario&) = default;
};

/// One of the commands of the table.
struct PerformCommand
{
    QString name;
    QStringList words; ///< behind the command
    friend bool operator==(const PerformCommand&, const PerformCommand&) = default;
};

/// Print a text and end well.
struct PrintText
{
    QString text;
    friend bool operator==(const PrintText&, const PrintText&) = default;
};

/// The arguments make no sense.
struct CommandLineError
{
    QString message;
    friend bool operator==(const CommandLineError&, const CommandLineError&) = default;
};

using Command = std::variant<RunProgram, SimulateScenario, PerformCommand, PrintText, CommandLineError>;

/// What the user asks for.
/// @param arguments without the path of the executable
[[nodiscard]] Command parseCommandLine(const QStringList& arguments);

/// Whether this start is one of those that the system makes by itself, which opens no window.
/// @param arguments as above
[[nodiscard]] bool asksForQuietStart(const QStringList& arguments);

} // namespace tarvin
