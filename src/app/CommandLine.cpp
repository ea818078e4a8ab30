#include "app/CommandLine.h"

#include "app/cli/CommandTable.h"

#include <algorithm>
#include <array>

namespace tarvin {

namespace {

constexpr std::array<QStringView, 3> quietStartArguments = {u"--startup", u"--background", u"-loginItem"};

[[nodiscard]] bool isQuietStart(const QString& argument)
{
    return std::ranges::find(quietStartArguments, QStringView(argument)) != quietStartArguments.end();
}

[[nodiscard]] Command parseSimulate(const QStringList& operands)
{
    if (operands.size() != 1)
        return CommandLineError{QStringLiteral("simulate takes one file, or - for the standard input")};
    return SimulateScenario{operands.first()};
}

[[nodiscard]] Command parseCommand(const CommandRow& command, const QStringList& words)
{
    const QStringList beforeOperands = words.first(words.contains(u"--"_qs) ? words.indexOf(u"--"_qs) : words.size());
    if (beforeOperands.contains(u"--help"_qs) || beforeOperands.contains(u"-h"_qs))
        return PrintText{helpOf(command)};
    if (command.name == u"simulate")
        return parseSimulate(words);
    return PerformCommand{command.name.toString(), words};
}

} // namespace

Command parseCommandLine(const QStringList& arguments)
{
    const CommandRow* const command = arguments.isEmpty() ? nullptr : findCommand(arguments.first());
    if (command)
        return parseCommand(*command, arguments.mid(1));

    RunProgram run;
    for (const QString& argument : arguments) {
        if (argument == u"--help" || argument == u"-h")
            return PrintText{usageText()};
        if (argument == u"--version")
            return PrintText{QStringLiteral("tarvin " TARVIN_VERSION)};
        // For the build of the package.
        if (argument == u"--print-manual")
            return PrintText{manualPage()};
        if (argument == u"--print-completion")
            return PrintText{completionScript()};
        if (isQuietStart(argument))
            continue;
        if (!argument.startsWith(u"tarvin:", Qt::CaseInsensitive))
            return CommandLineError{
                QStringLiteral("unknown command or argument \"%1\"; try tarvin --help").arg(argument)};
        run.urls.append(argument);
    }
    return run;
}

bool asksForQuietStart(const QStringList& arguments)
{
    return std::ranges::any_of(arguments, isQuietStart);
}

} // namespace tarvin
