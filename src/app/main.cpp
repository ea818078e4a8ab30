#include "app/CommandClient.h"
#include "app/CommandLine.h"
#include "app/ResidentProgram.h"
#include "app/simulate/SimulateCommand.h"

#include <QString>

#include <cstdio>
#include <variant>

namespace {

using namespace tarvin;

constexpr int wrongArguments = 2;

int print(std::FILE* stream, const QString& text)
{
    std::fprintf(stream, "%s\n", text.toUtf8().constData());
    return 0;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    QStringList words;
    for (int i = 1; i < argumentCount; ++i)
        words.append(QString::fromLocal8Bit(arguments[i]));

    const Command parsed = parseCommandLine(words);
    if (const auto* text = std::get_if<PrintText>(&parsed))
        return print(stdout, text->text);
    if (const auto* scenario = std::get_if<SimulateScenario>(&parsed))
        return simulate::runSimulateCommand(scenario->file);
    if (const auto* command = std::get_if<PerformCommand>(&parsed))
        return runCommand(command->name, command->words, argumentCount, arguments);
    if (const auto* error = std::get_if<CommandLineError>(&parsed)) {
        print(stderr, QStringLiteral("tarvin: ") + error->message);
        return wrongArguments;
    }
    return runResidentProgram(argumentCount, arguments);
}
