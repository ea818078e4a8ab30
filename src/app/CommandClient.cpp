#include "app/CommandClient.h"

#include "app/ControlPaths.h"
#include "app/MachineDoctor.h"
#include "app/OfflineCommands.h"
#include "app/cli/Arguments.h"
#include "app/cli/CommandTable.h"
#include "app/cli/Listing.h"
#include "app/cli/WatchLine.h"
#include "platform/posix/ControlSocket.h"
#include "platform/posix/InstanceLock.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

#include <cstdio>
#include <thread>

namespace tarvin {

namespace {

using namespace std::chrono_literals;
using posix::ControlConnection;

/// How long a program that has just started, or another command at work, is waited for.
constexpr auto roadTimeout = 20s;
constexpr auto answerTimeout = 30s;
constexpr auto pauseBetweenAttempts = 20ms;

bool print(FILE* stream, const QByteArray& text)
{
    return std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stream)
        == static_cast<std::size_t>(text.size())
        && std::fflush(stream) == 0;
}

int fail(int code, const QString& command, const QString& message)
{
    print(stderr, QStringLiteral("tarvin %1: %2\n").arg(command, message).toUtf8());
    return code;
}

int printReply(const QString& command, const CommandReply& reply)
{
    if (!reply.output.isEmpty() && !print(stdout, reply.output.toUtf8() + '\n'))
        return fail(exitFailed, command, QStringLiteral("the output can't be written"));
    return reply.error.isEmpty() ? reply.exitCode : fail(reply.exitCode, command, reply.error);
}

/// The one operand of a command that reads or writes a file; empty if the words are wrong, which the service tells.
QString fileOf(const QStringList& words)
{
    const Arguments arguments(words, {{u"--replace"}});
    return arguments.error() ? QString() : arguments.operands().value(0);
}

std::optional<QByteArray> readInput(const QString& name, QString& problem)
{
    QFile file(name);
    const bool isOpen = name == u"-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (isOpen) {
        QByteArray content = file.readAll();
        if (file.error() == QFileDevice::NoError)
            return content;
    }
    problem = QStringLiteral("%1 can't be read: %2").arg(name, file.errorString());
    return std::nullopt;
}

/// In one step: a file that was there stays whole until the new one is.
int writeOutput(const QString& command, const QString& name, const QByteArray& content)
{
    if (name == u"-") {
        return print(stdout, content) ? exitWell
                                      : fail(exitFailed, command, QStringLiteral("the output can't be written"));
    }
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        return fail(exitFailed, command, QStringLiteral("%1 can't be written: %2").arg(name, file.errorString()));
    return exitWell;
}

std::optional<CommandReply> askProgram(ControlConnection& program, const CommandRequest& request)
{
    const auto line = program.send(toLine(request)) ? program.readLine(answerTimeout) : std::nullopt;
    return line ? commandReplyFromLine(*line) : std::nullopt;
}

/// Through the program if one runs, else on the files under the lock of the editors.
CommandReply perform(const CommandRequest& request)
{
    const ControlPaths paths = ControlPaths::fromEnvironment();
    const QDeadlineTimer deadline(roadTimeout);
    for (;;) {
        std::optional<posix::InstanceLock> lock(paths.edit);
        if (lock->state() != posix::InstanceLock::State::heldByAnother) {
            // Under the lock: a program that starts now waits until the files are edited.
            auto program = ControlConnection::open(paths.control);
            if (!program)
                return performOnFiles(request);
            lock.reset();
            if (const std::optional<CommandReply> reply = askProgram(*program, request))
                return *reply;
            return {.exitCode = exitFailed, .error = QStringLiteral("Tarvin runs, but does not answer")};
        }
        if (deadline.hasExpired()) {
            return {.exitCode = exitFailed,
                .error = QStringLiteral("another command is at work and does not come to an end")};
        }
        std::this_thread::sleep_for(pauseBetweenAttempts);
    }
}

int runService(const QString& command, const QStringList& words)
{
    CommandRequest request{.command = command, .words = words};
    const QString file = fileOf(words);
    if (command == u"import" && !file.isEmpty()) {
        QString problem;
        request.input = readInput(file, problem);
        if (!request.input)
            return fail(exitFailed, command, problem);
    }
    const CommandReply reply = perform(request);
    if (reply.file && reply.exitCode == exitWell)
        return writeOutput(command, file, *reply.file);
    return printReply(command, reply);
}

int runActions(const QString& command, const QStringList& words)
{
    const Arguments arguments(words, {{u"--json"}});
    if (arguments.error())
        return fail(exitWrongInput, command, *arguments.error());
    // Several words are one query, as in the search field.
    const std::optional<QString> query =
        arguments.operands().isEmpty() ? std::nullopt : std::optional(arguments.operands().join(u' '));
    return printReply(command, {.output = arguments.has(u"--json") ? printed(actionsJson(query)) : actionsText(query)});
}

int runDoctor(const QString& command, const QStringList& words)
{
    const Arguments arguments(words, {{u"--json"}});
    if (arguments.error() || !arguments.operands().isEmpty())
        return fail(exitWrongInput, command, arguments.error().value_or(QStringLiteral("doctor takes no operand")));
    const Diagnosis diagnosis = diagnoseThisMachine(QCoreApplication::arguments());
    return printReply(command,
        {.exitCode = diagnosis.canWork ? exitWell : exitFailed,
            .output = arguments.has(u"--json") ? printed(diagnosisJson(diagnosis)) : diagnosisText(diagnosis)});
}

int runWatch(const QString& command, const QStringList& words)
{
    const Arguments arguments(words, {{u"--json"}});
    if (arguments.error() || !arguments.operands().isEmpty())
        return fail(exitWrongInput, command, arguments.error().value_or(QStringLiteral("watch takes no operand")));
    auto program = ControlConnection::open(ControlPaths::fromEnvironment().control);
    if (!program)
        return fail(exitNotRunning, command, QStringLiteral("Tarvin does not run; start it first"));
    const auto greeting = program->send(toLine(CommandRequest{.command = command, .words = words}))
        ? program->readLine(answerTimeout)
        : std::nullopt;
    if (!greeting)
        return fail(exitFailed, command, QStringLiteral("Tarvin runs, but does not answer"));
    while (const auto line = program->readLine(-1ms)) {
        const QByteArray text =
            arguments.has(u"--json") ? *line : watchText(QJsonDocument::fromJson(*line).object()).toUtf8();
        // Nobody reads any more, as behind "head".
        if (!print(stdout, text + '\n'))
            return exitWell;
    }
    return fail(exitNotRunning, command, QStringLiteral("Tarvin has ended"));
}

} // namespace

int runCommand(const QString& command, const QStringList& words, int& argumentCount, char** arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    if (command == u"actions")
        return runActions(command, words);
    if (command == u"doctor")
        return runDoctor(command, words);
    if (command == u"watch")
        return runWatch(command, words);
    return runService(command, words);
}

} // namespace tarvin
