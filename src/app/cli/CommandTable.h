#pragma once

#include <QString>
#include <QStringView>

#include <span>

namespace tarvin {

/// How a command is carried out.
enum class CommandRoad {
    service, ///< by the running program, or without one on the files
    live, ///< by the running program only
    here, ///< by the process that was started
};

/// One command of the command line, and all that is said about it anywhere: help, manual page, shell completion.
struct CommandRow
{
    QStringView name;
    QStringView operands; ///< as the usage line shows them; may be empty
    QStringView summary; ///< one line, no full stop
    QStringView details; ///< paragraphs for the command's own help
    QStringView options; ///< parted by blanks, for the completion
    CommandRoad road{};
};

[[nodiscard]] std::span<const CommandRow> commandTable();
/// Null for a word that is no command.
[[nodiscard]] const CommandRow* findCommand(QStringView name);

/// What `tarvin --help` prints.
[[nodiscard]] QString usageText();
/// What `tarvin COMMAND --help` prints.
[[nodiscard]] QString helpOf(const CommandRow& command);
/// The manual page tarvin(1).
[[nodiscard]] QString manualPage();
/// The completion for bash.
[[nodiscard]] QString completionScript();

} // namespace tarvin
