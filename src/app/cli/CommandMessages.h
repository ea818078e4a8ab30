#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace tarvin {

/// The exit codes of the program.
enum ExitCode : int { exitWell = 0, exitFailed = 1, exitWrongInput = 2, exitNotRunning = 3 };

/// One command for whoever carries it out.
struct CommandRequest
{
    QString command;
    QStringList words; ///< behind the command
    std::optional<QByteArray> input{}; ///< the content of the file that the command reads

    friend bool operator==(const CommandRequest&, const CommandRequest&) = default;
};

struct CommandReply
{
    int exitCode = exitWell;
    QString output{}; ///< for the standard output; no line end at its end
    QString error{}; ///< for the standard error
    std::optional<QByteArray> file{}; ///< the content of the file that the command writes

    friend bool operator==(const CommandReply&, const CommandReply&) = default;
};

// Each as one line of text with its end, for the socket between the command and the program.

[[nodiscard]] QByteArray toLine(const CommandRequest& request);
[[nodiscard]] QByteArray toLine(const CommandReply& reply);
/// Absent for what is no request.
[[nodiscard]] std::optional<CommandRequest> commandRequestFromLine(const QByteArray& line);
[[nodiscard]] std::optional<CommandReply> commandReplyFromLine(const QByteArray& line);

} // namespace tarvin
