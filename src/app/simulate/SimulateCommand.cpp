#include "app/simulate/SimulateCommand.h"

#include "app/simulate/Simulation.h"

#include <QFile>

#include <cstdio>

namespace tarvin::simulate {

namespace {

constexpr int allWentWell = 0;
constexpr int outputFailed = 1;
constexpr int scenarioIsWrong = 2;

bool write(FILE* stream, const QByteArray& text)
{
    QFile file;
    return file.open(stream, QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

void complain(const QString& message)
{
    // Where even this cannot be written, only the exit code is left to tell.
    static_cast<void>(write(stderr, (message + u'\n').toUtf8()));
}

bool openScenario(QFile& file, const QString& name)
{
    if (name == u"-")
        return file.open(stdin, QIODevice::ReadOnly);
    file.setFileName(name);
    return file.open(QIODevice::ReadOnly);
}

} // namespace

int runSimulateCommand(const QString& file)
{
    QFile scenario;
    if (!openScenario(scenario, file)) {
        complain(u"tarvin simulate: cannot read %1: %2"_qs.arg(file, scenario.errorString()));
        return scenarioIsWrong;
    }
    const SimulationResult result = simulate(file == u"-" ? u"standard input"_qs : file, scenario.readAll());
    for (const QString& error : result.errors)
        complain(error);
    if (!result.errors.isEmpty())
        return scenarioIsWrong;
    if (!write(stdout, result.output)) {
        complain(u"tarvin simulate: cannot write the output"_qs);
        return outputFailed;
    }
    return allWentWell;
}

} // namespace tarvin::simulate
